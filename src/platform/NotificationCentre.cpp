#include "platform/NotificationCentre.h"

NotificationCentre::NotificationCentre(QObject *parent)
    : QObject(parent)
{}

void NotificationCentre::post(const QString &name) { Q_EMIT posted(name); }
