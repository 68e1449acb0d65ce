#include "document/DocumentRecovery.h"

#include "document/DocumentKeys.h"
#include "document/MyDocument.h"
#include "document/RecoveryStore.h"
#include "imageview/ArchivedPicture.h"
#include "imageview/GraphImageView.h"
#include "platform/Texts.h"

#include <QFileInfo>
#include <QStatusBar>

#include <chrono>
#include <optional>
#include <utility>

namespace {

// Many changes in a row are kept together; the picture's encoding may take a while longer.
constexpr std::chrono::seconds delay{2};

std::shared_ptr<const ArchivedPicture> pictureOf(const ArchiveDictionary &root)
{
    const ArchiveDictionary *view = root.dictionaryForKey(documentkeys::graphImageViewData);
    return std::dynamic_pointer_cast<const ArchivedPicture>(view->objectForKey("Original Image"));
}

} // namespace

DocumentRecovery::DocumentRecovery(MyDocument &document, RecoveryStore &store,
                                   QStatusBar &statusBar)
    : m_document(document)
    , m_store(store)
    , m_statusBar(statusBar)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &DocumentRecovery::keep);
}

// The timer is not started anew, so that a busy user is kept safe as well.
void DocumentRecovery::documentChanged()
{
    if (!m_document.isDocumentEdited())
        forget();
    else if (!m_timer.isActive())
        m_timer.start(delay);
}

void DocumentRecovery::forget()
{
    m_timer.stop();
    if (m_key.isEmpty())
        return;
    RecoveryStore::remove(std::exchange(m_key, {}));
    m_pictureName.clear();
    m_picture.reset();
}

void DocumentRecovery::keep()
{
    m_document.graphView().encodePicture([this] { keepNow(); });
}

bool DocumentRecovery::keepNow()
{
    if (!m_document.isDocumentEdited())
        return true;
    m_timer.stop();
    if (m_key.isEmpty())
        m_key = m_store.newKey();
    if (m_key.isEmpty()) {
        tellOnce(texts::localized("document.recovery.noFolder"));
        return false;
    }
    const ArchiveDictionary root = m_document.rootDictionary();
    const QString earlierPicture = m_pictureName;
    if (!keepPicture(pictureOf(root)))
        return false;
    const std::optional<QString> reason =
        RecoveryStore::keep(m_key,
                            {root, m_document.fileUrl().toLocalFile(), m_document.displayName(),
                             m_document.fileStamp()},
                            m_pictureName);
    if (reason) {
        tellOnce(*reason);
        return false;
    }
    if (!earlierPicture.isEmpty() && earlierPicture != m_pictureName)
        RecoveryStore::removePicture(m_key, earlierPicture);
    return true;
}

// A new picture takes a new name: the document that is kept up to now goes on referring to its own.
bool DocumentRecovery::keepPicture(const std::shared_ptr<const ArchivedPicture> &picture)
{
    if (picture == m_picture)
        return true;
    QString name;
    if (picture != nullptr) {
        name = QStringLiteral("%1-%2.picture")
                   .arg(QFileInfo(m_key).completeBaseName())
                   .arg(++m_lastPicture);
        if (const auto reason = RecoveryStore::keepPicture(m_key, *picture, name)) {
            tellOnce(*reason);
            return false;
        }
    }
    m_pictureName = name;
    m_picture = picture;
    return true;
}

void DocumentRecovery::tellOnce(const QString &reason)
{
    if (std::exchange(m_wasTold, true))
        return;
    m_statusBar.showMessage(texts::localized("document.recovery.failed").arg(reason));
}
