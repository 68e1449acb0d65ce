#pragma once

#include <QObject>
#include <QString>

/// The hub through which parts of the program that do not know each other tell what happened.
class NotificationCentre : public QObject
{
    Q_OBJECT

public:
    explicit NotificationCentre(QObject *parent = nullptr);

    /// Tells every observer, in the order in which they connected, before it returns; `object` is
    /// whoever it is about.
    void post(const QString &name, QObject *object = nullptr);

Q_SIGNALS:
    void posted(const QString &name, QObject *object);
};
