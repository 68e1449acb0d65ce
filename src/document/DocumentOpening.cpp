// How the application opens files: which window a file gets, and what is said about files that
// cannot be opened.
#include "document/DocumentController.h"

#include "document/DocumentTypes.h"
#include "document/DocumentWindow.h"
#include "document/MyDocument.h"
#include "platform/Texts.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

/// What two names of one file have in common.
QString identityOf(const QString &path)
{
    const QFileInfo file(path);
    const QString real = file.canonicalFilePath();
    return real.isEmpty() ? file.absoluteFilePath() : real;
}

QString titleFor(const char *key, const QString &path)
{
    return texts::localized(key).arg(QFileInfo(path).fileName());
}

} // namespace

void DocumentController::start(const QStringList &paths)
{
    openFiles(paths);
    if (m_documents.empty())
        newDocument();
    offerRecovered();
}

void DocumentController::reopen()
{
    if (m_documents.empty())
        newDocument();
    else
        (m_keyDocument != nullptr ? m_keyDocument : m_documents.back().get())->raise();
}

void DocumentController::openFiles(const QStringList &paths)
{
    for (const QString &path : paths)
        open(QFileInfo(path).absoluteFilePath());
}

void DocumentController::open(const QString &path)
{
    if (MyDocument *document = documentOf(path)) {
        document->raise();
        return;
    }
    const QFileInfo file(path);
    if (!file.exists()) {
        m_recentFiles.remove(path);
        refuse(path, texts::localized("document.open.missing"));
    } else if (documenttypes::isDocument(path)) {
        readDocument(path);
    } else if (documenttypes::isPicture(path)) {
        readPicture(path);
    } else {
        refuse(path, texts::localized("document.open.unknownType"));
    }
}

void DocumentController::readDocument(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        refuse(path, file.errorString());
        return;
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        refuse(path, file.errorString());
        return;
    }
    MyDocument &document = documentForOpening();
    document.setFileUrl(QUrl::fromLocalFile(path));
    if (document.loadDataRepresentation(bytes, QLatin1String(documenttypes::curvegrabDocument))) {
        finishOpening(document);
        document.wasSavedTo(path);
    } else {
        document.setFileUrl(QUrl());
        offerRemains(document, path);
    }
}

void DocumentController::readPicture(const QString &path)
{
    MyDocument &document = documentForOpening();
    document.setFileUrl(QUrl::fromLocalFile(path));
    if (document.loadDataRepresentation({}, QFileInfo(path).suffix()))
        finishOpening(document);
    m_recentFiles.add(path);
}

void DocumentController::finishOpening(MyDocument &document)
{
    if (document.window().isVisible())
        document.showLoaded();
    else
        document.showWindow();
    document.raise();
}

// The message stands at the window that what is left is to be shown in.
void DocumentController::offerRemains(MyDocument &document, const QString &path)
{
    const documentarchive::Reading &reading = document.refusedReading();
    const QString damage = documentarchive::description(reading.damages);
    if (!document.window().isVisible())
        document.showWindow();
    const QString title = titleFor("document.open.damagedTitle", path);
    if (!documentarchive::offersSomething(reading.root)) {
        document.sheets().present({title, damage, texts::localized("OK"), QString(), {}}, {});
        return;
    }
    document.sheets().present({title,
                               texts::localized("document.open.remainsText").arg(damage),
                               texts::localized("document.open.remains"),
                               texts::localized("Cancel"),
                               {}},
                              [&document](SheetAnswer answer) {
                                  if (answer != SheetAnswer::Default)
                                      return;
                                  document.loadRemains(document.refusedReading().root);
                                  document.windowControllerDidLoadNib();
                              });
}

void DocumentController::offerRecovered()
{
    const QStringList remains = m_recovery.remains();
    QStringList names;
    for (const QString &key : remains) {
        if (const auto document = RecoveryStore::read(key))
            names.append(document->name);
        else
            RecoveryStore::remove(key);
    }
    if (names.isEmpty())
        return;
    documentForMessages().sheets().present(
        {texts::localized("document.recovery.title"),
         texts::localized("document.recovery.text").arg(names.join(QLatin1Char('\n'))),
         texts::localized("document.recovery.bringBack"),
         texts::localized("document.recovery.later"),
         texts::localized("document.recovery.discard")},
        [this, remains](SheetAnswer answer) {
            for (const QString &key : remains) {
                if (answer == SheetAnswer::Default)
                    bringBack(key);
                else if (answer == SheetAnswer::Other)
                    RecoveryStore::remove(key);
            }
        });
}

// What was kept goes only once it is kept anew.
void DocumentController::bringBack(const QString &key)
{
    std::optional<RecoveryStore::Document> recovered = RecoveryStore::read(key);
    if (!recovered)
        return;
    MyDocument *shown = recovered->path.isEmpty() ? nullptr : documentOf(recovered->path);
    if (shown != nullptr && shown->isDocumentEdited()) {
        // Newer work on the same file: this becomes a document of its own.
        shown = nullptr;
        recovered->path.clear();
        recovered->fileStamp.reset();
    }
    MyDocument &document = shown != nullptr ? *shown : documentForOpening();
    document.loadRecovered(std::move(*recovered));
    finishOpening(document);
    if (document.keepSafeNow())
        RecoveryStore::remove(key);
}

void DocumentController::refuse(const QString &path, const QString &reason)
{
    documentForMessages().sheets().present({titleFor("document.open.failedTitle", path),
                                            reason,
                                            texts::localized("OK"),
                                            QString(),
                                            {}},
                                           {});
}

MyDocument *DocumentController::documentOf(const QString &path) const
{
    const QString wanted = identityOf(path);
    const auto found =
        std::find_if(m_documents.begin(), m_documents.end(), [&wanted](const auto &document) {
            const QString own = document->fileUrl().toLocalFile();
            return !own.isEmpty() && document->fileStamp() && identityOf(own) == wanted;
        });
    return found == m_documents.end() ? nullptr : found->get();
}

MyDocument &DocumentController::documentForOpening()
{
    if (m_keyDocument != nullptr && m_keyDocument->isUntouched())
        return *m_keyDocument;
    const auto untouched =
        std::find_if(m_documents.begin(), m_documents.end(),
                     [](const auto &document) { return document->isUntouched(); });
    return untouched == m_documents.end() ? addDocument() : **untouched;
}

MyDocument &DocumentController::documentForMessages()
{
    if (m_documents.empty())
        newDocument();
    return m_keyDocument != nullptr ? *m_keyDocument : *m_documents.back();
}
