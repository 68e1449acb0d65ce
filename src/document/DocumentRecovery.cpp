#include "document/DocumentRecovery.h"

#include "document/MyDocument.h"
#include "document/RecoveryStore.h"
#include "imageview/ArchivedPicture.h"
#include "imageview/GraphImageView.h"
#include "platform/Texts.h"

#include <QPointer>
#include <QStatusBar>

#include <chrono>
#include <optional>
#include <utility>

namespace {

// Many changes in a row are kept together.
constexpr std::chrono::seconds delay{2};

} // namespace

DocumentRecovery::DocumentRecovery(MyDocument &document, RecoveryStore &store,
                                   QStatusBar &statusBar)
    : m_document(document)
    , m_store(store)
    , m_statusBar(statusBar)
    , m_writer(store)
{
    connect(&m_writer, &RecoveryWriter::wrote, this, &DocumentRecovery::wrote);
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
    takeBackWhatWasTold();
    for (QString *key : {&m_key, &m_replaces}) {
        if (!key->isEmpty())
            m_writer.remove(std::exchange(*key, {}));
    }
}

void DocumentRecovery::keepNow(const QString &insteadOf)
{
    m_replaces = insteadOf;
    keep();
}

// Encoding a large picture takes longer than a crash waits: it need not be encoded for this.
void DocumentRecovery::keep()
{
    m_timer.stop();
    if (!m_document.isDocumentEdited())
        return;
    if (m_key.isEmpty())
        m_key = m_store.newKey();
    if (m_key.isEmpty()) {
        tellOnce(texts::localized("document.recovery.noFolder"));
        return;
    }
    const GraphImageView &view = m_document.graphView();
    const ArchiveDictionary root = view.pictureIsEncoded()
                                       ? m_document.rootDictionary()
                                       : m_document.rootDictionaryAsFarAsEncoded();
    m_writer.keep({m_key,
                   {root, m_document.fileUrl().toLocalFile(), m_document.displayName(),
                    m_document.fileStamp()},
                   view.originalImage(),
                   documentarchive::pictureIn(root),
                   m_replaces});
}

void DocumentRecovery::wrote(const std::optional<QString> &reason)
{
    if (!reason) {
        takeBackWhatWasTold();
        return;
    }
    if (m_document.graphView().pictureIsEncoded())
        tellOnce(*reason);
    else
        keepWhenEncoded();
}

// A disk that has no room for the pixels may have some for the encoded picture.
void DocumentRecovery::keepWhenEncoded()
{
    if (std::exchange(m_awaitsEncoding, true))
        return;
    m_document.graphView().encodePicture([self = QPointer(this)] {
        if (self.isNull())
            return;
        self->m_awaitsEncoding = false;
        if (self->m_document.graphView().pictureIsEncoded())
            self->keep();
        else
            self->tellOnce(texts::localized("document.save.noMemory"));
    });
}

void DocumentRecovery::tellOnce(const QString &reason)
{
    if (std::exchange(m_wasTold, true))
        return;
    m_statusBar.showMessage(texts::localized("document.recovery.failed").arg(reason));
}

// Saved, or kept safe after all: the hints may come back.
void DocumentRecovery::takeBackWhatWasTold()
{
    if (std::exchange(m_wasTold, false))
        m_statusBar.clearMessage();
}
