#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

class ArchivedPicture;
class MyDocument;
class QStatusBar;
class RecoveryStore;

/// Keeps one document's unsaved changes safe from a crash: a few seconds after a change they are on
/// the disk, apart from the document's file.
class DocumentRecovery : public QObject
{
    Q_OBJECT

public:
    DocumentRecovery(MyDocument &document, RecoveryStore &store, QStatusBar &statusBar);

    /// The document was changed, or its changes were saved or undone.
    void documentChanged();
    /// The document closes, and what was not saved is not wanted.
    void forget();
    /// Keeps the document now if it is modified; false if the disk refused.
    bool keepNow();

private:
    void keep();
    [[nodiscard]] bool keepPicture(const std::shared_ptr<const ArchivedPicture> &picture);
    void tellOnce(const QString &reason);

    MyDocument &m_document;
    RecoveryStore &m_store;
    QStatusBar &m_statusBar;
    QTimer m_timer;
    QString m_key;         ///< empty: nothing is kept
    QString m_pictureName; ///< the file of m_picture; empty: there is none
    std::shared_ptr<const ArchivedPicture> m_picture;
    int m_lastPicture = 0;
    bool m_wasTold = false;
};
