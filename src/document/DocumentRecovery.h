#pragma once

#include "document/RecoveryWriter.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <optional>

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
    /// Keeps the document from now on, if it is modified. What is kept under the key `insteadOf`,
    /// if any, is removed once it is.
    void keepNow(const QString &insteadOf = {});

private:
    void keep();
    void wrote(const std::optional<QString> &reason);
    void keepWhenEncoded();
    void tellOnce(const QString &reason);
    void takeBackWhatWasTold();

    MyDocument &m_document;
    RecoveryStore &m_store;
    QStatusBar &m_statusBar;
    RecoveryWriter m_writer;
    QTimer m_timer;
    QString m_key;      ///< empty: nothing is kept
    QString m_replaces; ///< another key, which this document takes the place of; or empty
    bool m_awaitsEncoding = false;
    bool m_wasTold = false;
};
