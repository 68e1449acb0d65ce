// A document keeps its picture encoded. A large one takes a while, which the window must not feel.
#include "imageview/GraphImageView.h"

#include <utility>

namespace {

/// Smaller pictures are encoded within a few frames.
constexpr qint64 largePicture = 1'000'000;

bool isLarge(const QImage &pixels)
{
    return static_cast<qint64>(pixels.width()) * pixels.height() >= largePicture;
}

} // namespace

void GraphImageView::encodePicture(std::function<void()> ready)
{
    if (!m_originalImage || m_archivedImage != nullptr || !isLarge(m_originalImage->pixels())) {
        ready();
        return;
    }
    m_waitingForEncoding.push_back(std::move(ready));
    if (m_waitingForEncoding.size() == 1)
        beginEncoding();
}

void GraphImageView::beginEncoding()
{
    m_encoding = std::jthread([this, picture = *m_originalImage] {
        std::shared_ptr<const ArchivedPicture> encoded = ArchivedPicture::archived(picture);
        QMetaObject::invokeMethod(
            this,
            [this, key = picture.pixels().cacheKey(), encoded = std::move(encoded)] {
                endEncoding(key, encoded);
            },
            Qt::QueuedConnection);
    });
}

void GraphImageView::endEncoding(qint64 pixelsKey, std::shared_ptr<const ArchivedPicture> encoded)
{
    const bool isPresent = m_originalImage && m_originalImage->pixels().cacheKey() == pixelsKey;
    if (isPresent && m_archivedImage == nullptr)
        m_archivedImage = std::move(encoded);
    else if (m_originalImage && !isPresent && m_archivedImage == nullptr) {
        beginEncoding(); // another picture has taken its place meanwhile
        return;
    }
    for (const std::function<void()> &ready : std::exchange(m_waitingForEncoding, {}))
        ready();
}
