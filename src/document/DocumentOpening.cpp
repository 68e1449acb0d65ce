// How the application opens files: which window a file gets, and what is said about files that
// cannot be opened.
#include "document/DocumentController.h"

#include "document/DocumentTypes.h"
#include "document/DocumentWindow.h"
#include "document/ExampleDocuments.h"
#include "document/MyDocument.h"
#include "imageview/PictureMemory.h"
#include "imageview/PictureReadAhead.h"
#include "platform/Texts.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <new>
#include <utility>

namespace {

/// What two names of one file have in common.
QString identityOf(const QString &path)
{
    const QFileInfo file(path);
    const QString real = file.canonicalFilePath();
    return real.isEmpty() ? file.absoluteFilePath() : real;
}

/// What a crash left, read whole in any thread.
std::optional<RecoveryStore::Document>
readRecovered(const QString &key, const std::stop_token &stop, std::atomic<int> *percentRead)
{
    try {
        std::optional<RecoveryStore::Document> recovered =
            RecoveryStore::read(key, stop, percentRead);
        if (!recovered || stop.stop_requested())
            return recovered;
        documentarchive::Reading reading{std::move(recovered->root), std::move(recovered->damages)};
        documentfile::decodePicture(reading, picturememory::available(), stop, percentRead);
        recovered->root = std::move(reading.root);
        recovered->damages = std::move(reading.damages);
        return recovered;
    } catch (const std::bad_alloc &) {
        return std::nullopt;
    }
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
    afterOpening([this] { offerRecovered(); });
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
        readDocument(path, OpenAs::Itself);
    } else if (documenttypes::isPicture(path)) {
        readPicture(path);
    } else {
        refuse(path, texts::localized("document.open.unknownType"));
    }
}

void DocumentController::openCopy(const QString &path) { readDocument(path, OpenAs::Copy); }

QString DocumentController::examplesFolder() const
{
    return exampledocuments::folderFor(QCoreApplication::applicationDirPath());
}

void DocumentController::readDocument(const QString &path, OpenAs as)
{
    if (!QFileInfo(path).isFile()) {
        refuse(path, texts::localized("document.open.noFile"));
        return;
    }
    MyDocument &document = documentForOpening();
    const bool isNew = !document.window().isVisible();
    if (as == OpenAs::Itself)
        document.setFileUrl(QUrl::fromLocalFile(path));
    if (!isNew)
        document.raise();
    document.readInBackground(
        QFileInfo(path).fileName(),
        [this, &document, isNew, path, as](const std::stop_token &stop, std::atomic<int> &percent) {
            documentfile::Document read =
                documentfile::read(path, picturememory::available(), stop, &percent);
            return [this, &document, isNew, path, as, read = std::move(read)] {
                wasRead(document, isNew, path, as, read);
            };
        },
        [this, &document, isNew] { giveUpOpening(document, isNew); });
}

void DocumentController::wasRead(MyDocument &document, bool isNew, const QString &path, OpenAs as,
                                 const documentfile::Document &read)
{
    if (!read.error.isEmpty()) {
        giveUpOpening(document, isNew);
        refuse(path, read.error);
        return;
    }
    if (document.loadReading(read.reading)) {
        show(document);
        if (as == OpenAs::Itself)
            document.wasReadFrom(path, read.stamp);
    } else {
        document.setFileUrl(QUrl());
        offerRemains(document, path);
    }
    openingEnded();
}

void DocumentController::readPicture(const QString &path)
{
    std::shared_ptr<PictureReadAhead> ahead = PictureReadAhead::begin(path);
    MyDocument &document = documentForOpening();
    document.setFileUrl(QUrl::fromLocalFile(path));
    document.expectPicture(std::move(ahead));
    if (document.loadDataRepresentation({}, QFileInfo(path).suffix())) {
        show(document);
        document.raise();
    }
    m_recentFiles.add(path);
}

// A window that was on the screen while its file was read stays where the user has put it.
void DocumentController::show(MyDocument &document)
{
    if (document.window().isVisible()) {
        document.showLoaded();
        return;
    }
    document.showWindow();
    document.raise();
}

// The window that was made for the file goes again, but not the last one.
void DocumentController::giveUpOpening(MyDocument &document, bool isNew)
{
    document.setFileUrl(QUrl());
    const bool isOnly =
        std::none_of(m_documents.begin(), m_documents.end(), [&document](const auto &other) {
            return other.get() != &document && other->window().isVisible();
        });
    if (isNew && !isOnly)
        document.window().close();
    else if (!document.window().isVisible())
        document.showWindow();
    openingEnded();
}

bool DocumentController::isOpening() const
{
    return std::any_of(m_documents.begin(), m_documents.end(),
                       [](const auto &document) { return document->isReading(); });
}

void DocumentController::afterOpening(std::function<void()> action)
{
    m_afterOpening.push_back(std::move(action));
    openingEnded();
}

void DocumentController::openingEnded()
{
    if (isOpening() || m_documents.empty())
        return;
    for (const std::function<void()> &action : std::exchange(m_afterOpening, {}))
        action();
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
        if (const auto document = RecoveryStore::readWithoutPicture(key))
            names.append(document->name);
        else if (QFileInfo(key).size() == 0)
            RecoveryStore::remove(key); // a program ended before it wrote anything
    }
    if (names.isEmpty())
        return;
    MyDocument &document = documentForMessages();
    // A question finds its place over a window only where that has one.
    document.whenOnScreen([this, &document, remains, names] {
        document.sheets().present(
            {texts::localized("document.recovery.title"),
             texts::localized("document.recovery.text").arg(names.join(QLatin1Char('\n'))),
             texts::localized("document.recovery.bringBack"),
             texts::localized("document.recovery.later"),
             texts::localized("document.recovery.discard")},
            [this, remains](SheetAnswer answer) { recoveryAnswered(remains, answer); });
    });
}

void DocumentController::recoveryAnswered(const QStringList &remains, SheetAnswer answer)
{
    for (const QString &key : remains) {
        if (answer == SheetAnswer::Default)
            bringBack(key);
        else if (answer == SheetAnswer::Other)
            RecoveryStore::remove(key);
    }
}

void DocumentController::bringBack(const QString &key)
{
    const std::optional<RecoveryStore::Document> recovered = RecoveryStore::readWithoutPicture(key);
    if (!recovered)
        return;
    MyDocument *shown = recovered->path.isEmpty() ? nullptr : documentOf(recovered->path);
    // Newer work on the same file: this becomes a document of its own.
    const bool isApart = shown != nullptr && (shown->isDocumentEdited() || shown->isReading());
    const bool isShown = shown != nullptr && !isApart;
    MyDocument &document = isShown ? *shown : documentForOpening();
    const bool isNew = !document.window().isVisible();
    // A document that is shown already keeps its file if nothing comes of this.
    const auto giveUp = [this, &document, isNew, isShown] {
        if (isShown)
            openingEnded();
        else
            giveUpOpening(document, isNew);
    };
    document.readInBackground(
        recovered->name,
        [this, &document, key, isApart, giveUp, name = recovered->name](
            const std::stop_token &stop, std::atomic<int> &percent) -> BackgroundWork::Handler {
            std::optional<RecoveryStore::Document> whole = readRecovered(key, stop, &percent);
            if (!whole)
                return [this, name, giveUp] {
                    giveUp();
                    presentDamage(documentForMessages(), name, {documentarchive::Damage{}});
                };
            if (isApart) {
                whole->path.clear();
                whole->fileStamp.reset();
            }
            return [this, &document, key, whole = std::move(*whole)] {
                wasBroughtBack(document, key, whole);
            };
        },
        giveUp);
}

// What was kept goes only once it is kept anew, and not if there is more in it. The file of a
// document that did not come back whole may have what is missing: it is not to be overwritten.
void DocumentController::wasBroughtBack(MyDocument &document, const QString &key,
                                        RecoveryStore::Document recovered)
{
    const QString name = recovered.name;
    const std::vector<documentarchive::Damage> damages = recovered.damages;
    if (!damages.empty()) {
        recovered.path.clear();
        recovered.fileStamp.reset();
    }
    document.loadRecovered(std::move(recovered));
    show(document);
    if (!damages.empty())
        presentDamage(document, name, damages);
    else
        document.keepSafeNow(key);
    openingEnded();
}

void DocumentController::presentDamage(MyDocument &document, const QString &name,
                                       const std::vector<documentarchive::Damage> &damages)
{
    document.sheets().present({titleFor("document.open.damagedTitle", name),
                               documentarchive::description(damages),
                               texts::localized("OK"),
                               QString(),
                               {}},
                              {});
}

void DocumentController::refuse(const QString &path, const QString &reason)
{
    if (isOpening() && !showsAWindow())
        afterOpening([this, path, reason] { presentRefusal(path, reason); });
    else
        presentRefusal(path, reason);
}

void DocumentController::presentRefusal(const QString &path, const QString &reason)
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
            const bool comesFromIt = document->fileStamp() || document->isReading();
            return !own.isEmpty() && comesFromIt && identityOf(own) == wanted;
        });
    return found == m_documents.end() ? nullptr : found->get();
}

MyDocument &DocumentController::documentForOpening()
{
    MyDocument *untouched = m_keyDocument;
    if (untouched == nullptr || !untouched->isUntouched()) {
        const auto found =
            std::find_if(m_documents.begin(), m_documents.end(),
                         [](const auto &document) { return document->isUntouched(); });
        if (found == m_documents.end())
            return addDocument();
        untouched = found->get();
    }
    untouched->setFileUrl(QUrl()); // that of a picture that did not come
    return *untouched;
}

MyDocument &DocumentController::documentForMessages()
{
    if (m_keyDocument != nullptr)
        return *m_keyDocument;
    if (!showsAWindow())
        newDocument();
    return **std::find_if(m_documents.rbegin(), m_documents.rend(),
                          [](const auto &document) { return document->window().isVisible(); });
}
