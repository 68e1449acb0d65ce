#pragma once

#include "document/DocumentFile.h"
#include "platform/BackgroundWork.h"
#include "platform/DurableFile.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <optional>
#include <utility>

class MyDocument;
class QStatusBar;
class SavingProgress;
struct WindowDialogs;

/// Saves one document, with the questions that belong to it. Nothing blocks: what comes after a
/// save is handed in, and does not happen if the user cancels or the disk refuses.
class DocumentSaving : public QObject
{
    Q_OBJECT

public:
    using Saved = std::function<void()>;

    DocumentSaving(MyDocument &document, const WindowDialogs &dialogs, QStatusBar &statusBar);
    ~DocumentSaving() override;

    /// Writes the document's file, or asks where to if it has none. While another save is under way
    /// it comes after that one, if there is still something to be saved.
    void save(Saved saved);
    void saveAs(Saved saved);
    /// Asks whether changes are to be saved; `agreed` runs after they were, or if they need not be.
    /// Asked once more before the answer, the last `agreed` counts.
    void askToSave(Saved agreed);
    /// Asks, and then shows what the file has.
    void revert();

    /// The picture is still being encoded for a save, or the file written.
    [[nodiscard]] bool isBusy() const { return m_isBusy; }
    /// What comes after the save that is under way, too; nothing does if the disk refuses it.
    void whenSaved(Saved next) { m_next = std::move(next); }

private:
    struct Outcome
    {
        std::optional<QString> refused; ///< why; nothing if the file is written
        std::optional<durablefile::Stamp> stamp;
    };

    [[nodiscard]] static Outcome write(const QString &path, const ArchiveDictionary &root);
    /// A file, and its state that the user has agreed to replace; nothing: there was none.
    struct Target
    {
        QString path;
        std::optional<durablefile::Stamp> agreed;
    };

    void writeTo(const Target &target, const Saved &saved);
    void cancel();
    void showProgress();
    void encodedFor(const Target &target, const Saved &saved);
    /// Calls encodedFor() again, if the save is not cancelled meanwhile.
    [[nodiscard]] Saved again(const Target &target, const Saved &saved);
    void begin(const QString &path, const Saved &saved);
    void end();
    void onceMore(const Saved &saved);
    void written(const QString &path, const Saved &saved, const Outcome &outcome);
    void refused(const QString &path, const QString &reason);
    void askToOverwrite(const char *textKey, const Target &target, const Saved &saved);
    void agreedUnlessEdited(const Saved &agreed);
    void reread();
    void wasReread(const QString &path, const documentfile::Document &read);

    MyDocument &m_document;
    const WindowDialogs &m_dialogs;
    BackgroundWork m_writing;
    QTimer m_progressTimer;
    SavingProgress *m_progress; // owned by the status bar
    QString m_path;             ///< of the save under way
    int m_saves = 0;            ///< begun up to now
    Saved m_next;
    Saved m_agreed;
    bool m_isBusy = false;
    bool m_isAsking = false;
};
