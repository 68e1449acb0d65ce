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

bool GraphImageView::pictureIsEncoded() const
{
    return !m_originalImage || m_archivedImage != nullptr || !isLarge(m_originalImage->pixels());
}

void GraphImageView::encodePicture(std::function<void()> ready)
{
    if (pictureIsEncoded()) {
        ready();
        return;
    }
    m_waitingForEncoding.push_back(std::move(ready));
    if (!m_encoding.isWorking())
        otherPictureCame();
}

// Those who wait for the encoding of the earlier picture wait for this one's.
void GraphImageView::otherPictureCame()
{
    m_encoding.abandon();
    if (pictureIsEncoded() && m_waitingForEncoding.empty())
        return;
    m_encoding.begin([this, picture = m_originalImage, isEncoded = pictureIsEncoded()](
                         const std::stop_token &stop) -> BackgroundWork::Handler {
        std::shared_ptr<const ArchivedPicture> encoded =
            isEncoded ? nullptr : ArchivedPicture::archived(*picture, stop);
        return [this, encoded = std::move(encoded)] { pictureWasEncoded(encoded); };
    });
}

void GraphImageView::pictureWasEncoded(std::shared_ptr<const ArchivedPicture> encoded)
{
    if (m_archivedImage == nullptr)
        m_archivedImage = std::move(encoded);
    for (const std::function<void()> &ready : std::exchange(m_waitingForEncoding, {}))
        ready();
}
