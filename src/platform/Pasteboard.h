#pragma once

#include <QObject>

class QMimeData;

/// The general pasteboard, as far as things come in from it.
class Pasteboard : public QObject
{
    Q_OBJECT

public:
    /// What is on it, valid until it changes; null for nothing. Reading it may have to wait for
    /// the program that filled it.
    [[nodiscard]] virtual const QMimeData *content() const = 0;

Q_SIGNALS:
    void changed();
};
