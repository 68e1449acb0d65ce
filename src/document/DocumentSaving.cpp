#include "document/DocumentSaving.h"

#include "document/DocumentFile.h"
#include "document/DocumentServices.h"
#include "document/DocumentTypes.h"
#include "document/MyDocument.h"
#include "document/SavingProgress.h"
#include "imageview/ArchivedPicture.h"
#include "imageview/GraphImageView.h"
#include "imageview/PictureMemory.h"
#include "platform/DurableFile.h"
#include "platform/Texts.h"

#include <QFileInfo>
#include <QSet>
#include <QStatusBar>

#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::milliseconds timeBeforeProgress{500};
constexpr std::chrono::milliseconds timeBetweenLooks{100};

/// Smaller files are written within a few frames.
constexpr std::size_t largeFile = 4'000'000;

/// The bytes of the encoded picture; zero without one.
std::size_t pictureSizeIn(const ArchiveDictionary &root)
{
    const auto picture = documentarchive::pictureIn(root);
    return picture == nullptr ? 0 : picture->bytes()->size();
}

/// Where documents of this program are being written just now: two with one name take turns.
QSet<QString> &pathsBeingWritten()
{
    static QSet<QString> paths;
    return paths;
}

QString withName(const char *key, const QString &path)
{
    return texts::localized(key).arg(QFileInfo(path).fileName());
}

} // namespace

DocumentSaving::Outcome DocumentSaving::write(const QString &path, const ArchiveDictionary &root)
{
    const std::optional<QString> refused =
        durablefile::write(path, documentarchive::archivedData(root));
    return {refused, durablefile::stampOf(path)};
}

DocumentSaving::DocumentSaving(MyDocument &document, const WindowDialogs &dialogs,
                               QStatusBar &statusBar)
    : m_document(document)
    , m_dialogs(dialogs)
{
    m_progress = new SavingProgress(&statusBar);
    statusBar.addPermanentWidget(m_progress);
    m_progress->hide();
    connect(m_progress, &SavingProgress::cancelled, this, &DocumentSaving::cancel);
    m_progressTimer.setSingleShot(true);
    connect(&m_progressTimer, &QTimer::timeout, this, &DocumentSaving::showProgress);
}

DocumentSaving::~DocumentSaving()
{
    if (m_writing.isWorking())
        pathsBeingWritten().remove(m_path);
}

void DocumentSaving::save(Saved saved)
{
    if (m_isBusy) {
        onceMore(saved);
        return;
    }
    const QString path = m_document.fileUrl().toLocalFile();
    if (path.isEmpty()) {
        saveAs(std::move(saved));
        return;
    }
    const auto &known = m_document.fileStamp();
    const auto present = durablefile::stampOf(path);
    if (!present || present == known)
        writeTo({path, present}, saved);
    else
        askToOverwrite(known ? "document.save.changedText" : "document.save.existsText",
                       {path, present}, saved);
}

// What already waits for the save under way still comes, after this.
void DocumentSaving::onceMore(const Saved &saved)
{
    const auto both = [saved, earlier = std::exchange(m_next, {})] {
        for (const Saved &step : {saved, earlier}) {
            if (step)
                step();
        }
    };
    m_next = [this, both] {
        if (m_document.isDocumentEdited())
            save(both);
        else
            both();
    };
}

void DocumentSaving::saveAs(Saved saved)
{
    if (m_isBusy)
        return;
    const QString path = m_document.fileUrl().toLocalFile();
    const QString proposed = path.isEmpty() ? m_document.displayName() + QLatin1Char('.') +
                                                  QLatin1String(documenttypes::extension)
                                            : path;
    // The panel has asked about a file that is there.
    m_dialogs.panels->chooseDocumentToSave(
        proposed, [this, saved = std::move(saved)](const QString &chosen) {
            const QString target = QFileInfo(chosen).absoluteFilePath();
            writeTo({target, durablefile::stampOf(target)}, saved);
        });
}

void DocumentSaving::askToOverwrite(const char *textKey, const Target &target, const Saved &saved)
{
    m_dialogs.sheets->present({withName("document.save.overwriteTitle", target.path),
                               texts::localized(textKey), texts::localized("document.save.saveAs"),
                               texts::localized("Cancel"),
                               texts::localized("document.save.overwrite")},
                              [this, target, saved](SheetAnswer answer) {
                                  if (answer == SheetAnswer::Default)
                                      saveAs(saved);
                                  else if (answer == SheetAnswer::Other)
                                      writeTo(target, saved);
                              });
}

void DocumentSaving::writeTo(const Target &target, const Saved &saved)
{
    m_isBusy = true;
    m_path = target.path;
    m_progressTimer.start(timeBeforeProgress);
    ++m_saves;
    m_document.graphView().encodePicture(again(target, saved));
}

DocumentSaving::Saved DocumentSaving::again(const Target &target, const Saved &saved)
{
    return [this, target, saved, save = m_saves] {
        if (save == m_saves && m_isBusy)
            encodedFor(target, saved);
    };
}

void DocumentSaving::showProgress()
{
    const QString name = QFileInfo(m_path).fileName();
    if (m_writing.isWorking())
        m_progress->showWriting(name);
    else
        m_progress->showPreparing(name);
}

// The file is as it was. The encoding goes on: the next save needs it.
void DocumentSaving::cancel()
{
    if (!m_isBusy || m_writing.isWorking())
        return;
    end();
    m_next = {};
}

void DocumentSaving::end()
{
    m_isBusy = false;
    m_progressTimer.stop();
    m_progress->hide();
}

// What is written is the document of this moment, whatever was done while the picture was encoded
// and whatever is done while the file is written. An anchor on its way is not where it is meant to
// be; and the file may have become another one since the user was asked.
void DocumentSaving::encodedFor(const Target &target, const Saved &saved)
{
    if (m_document.graphView().isTrackingAnchorDrag()) {
        connect(&m_document.graphView(), &GraphImageView::anchorDragEnded, this,
                again(target, saved), Qt::SingleShotConnection);
        return;
    }
    if (pathsBeingWritten().contains(target.path)) {
        QTimer::singleShot(timeBetweenLooks, this, again(target, saved));
        return;
    }
    const auto present = durablefile::stampOf(target.path);
    if (present && present != target.agreed) {
        end();
        m_next = {};
        askToOverwrite(target.agreed ? "document.save.changedText" : "document.save.existsText",
                       {target.path, present}, saved);
        return;
    }
    begin(target.path, saved);
}

void DocumentSaving::begin(const QString &path, const Saved &saved)
{
    // What could not be encoded for want of memory is not tried again.
    const ArchiveDictionary root = m_document.graphView().pictureIsEncoded()
                                       ? m_document.rootDictionary()
                                       : m_document.rootDictionaryAsFarAsEncoded();
    if (m_document.hasImage() && pictureSizeIn(root) == 0) {
        written(path, saved, {texts::localized("document.save.noMemory"), {}});
        return;
    }
    m_document.isBeingSaved();
    if (pictureSizeIn(root) < largeFile) {
        written(path, saved, write(path, root));
        return;
    }
    pathsBeingWritten().insert(path);
    m_writing.begin([this, path, saved, root](const std::stop_token &) -> BackgroundWork::Handler {
        return [this, path, saved, outcome = write(path, root)] {
            pathsBeingWritten().remove(path);
            written(path, saved, outcome);
        };
    });
    if (!m_progress->isHidden())
        showProgress();
}

void DocumentSaving::written(const QString &path, const Saved &saved, const Outcome &outcome)
{
    end();
    const Saved next = std::exchange(m_next, {});
    if (outcome.refused) {
        refused(path, *outcome.refused);
        return;
    }
    m_document.wasSavedTo(path, outcome.stamp);
    for (const Saved &step : {saved, next}) {
        if (step)
            step();
    }
}

void DocumentSaving::refused(const QString &path, const QString &reason)
{
    m_dialogs.sheets->present({withName("document.save.failedTitle", path),
                               texts::localized("document.save.failedText").arg(reason),
                               texts::localized("OK"),
                               QString(),
                               {}},
                              {});
}

void DocumentSaving::askToSave(Saved agreed)
{
    m_agreed = std::move(agreed);
    if (m_isAsking)
        return;
    m_isAsking = true;
    m_dialogs.sheets->present(
        {texts::localized("document.close.title").arg(m_document.displayName()),
         texts::localized("document.close.text"), texts::localized("document.close.save"),
         texts::localized("Cancel"), texts::localized("document.close.dontSave")},
        [this](SheetAnswer answer) {
            m_isAsking = false;
            const Saved agreedTo = std::exchange(m_agreed, {});
            if (answer == SheetAnswer::Default)
                save([this, agreedTo] { agreedUnlessEdited(agreedTo); });
            else if (answer == SheetAnswer::Other)
                agreedTo();
        });
}

// Something may have been done while the file was written.
void DocumentSaving::agreedUnlessEdited(const Saved &agreed)
{
    if (m_document.isDocumentEdited())
        askToSave(agreed);
    else
        agreed();
}

void DocumentSaving::revert()
{
    if (!m_document.fileStamp() || m_isBusy)
        return;
    if (!m_document.isDocumentEdited()) {
        reread();
        return;
    }
    m_dialogs.sheets->present(
        {withName("document.revert.title", m_document.fileUrl().toLocalFile()),
         texts::localized("document.revert.text"),
         texts::localized("document.revert.revert"),
         texts::localized("Cancel"),
         {}},
        [this](SheetAnswer answer) {
            if (answer == SheetAnswer::Default)
                reread();
        });
}

void DocumentSaving::reread()
{
    const QString path = m_document.fileUrl().toLocalFile();
    m_document.readInBackground(
        QFileInfo(path).fileName(),
        [this, path](const std::stop_token &stop, std::atomic<int> &percent) {
            documentfile::Document read =
                documentfile::read(path, picturememory::available(), stop, &percent);
            return [this, path, read = std::move(read)] { wasReread(path, read); };
        },
        [] {});
}

void DocumentSaving::wasReread(const QString &path, const documentfile::Document &read)
{
    QString reason = read.error;
    if (reason.isEmpty() && !m_document.loadReading(read.reading))
        reason = documentarchive::description(m_document.refusedReading().damages);
    if (reason.isEmpty()) {
        m_document.revertToLoaded(read.stamp);
        return;
    }
    m_dialogs.sheets->present({withName("document.open.failedTitle", path),
                               reason,
                               texts::localized("OK"),
                               QString(),
                               {}},
                              {});
}
