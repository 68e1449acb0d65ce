#include "platform/NotificationCentre.h"

NotificationCentre::NotificationCentre(QObject *parent)
    : QObject(parent)
{}

void NotificationCentre::post(const QString &name, QObject *object) { Q_EMIT posted(name, object); }
