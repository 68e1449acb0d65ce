#include "platform/NotificationCentre.h"

#include <gtest/gtest.h>

#include <QStringList>

TEST(NotificationCentre, tellsEveryObserverBeforePostReturns)
{
    NotificationCentre centre;
    QStringList heard;
    QObject::connect(&centre, &NotificationCentre::posted, &centre,
                     [&heard](const QString &name) { heard += QStringLiteral("first ") + name; });
    QObject::connect(&centre, &NotificationCentre::posted, &centre,
                     [&heard](const QString &name) { heard += QStringLiteral("second ") + name; });
    centre.post(QStringLiteral("changed"));
    EXPECT_EQ(heard,
              QStringList({QStringLiteral("first changed"), QStringLiteral("second changed")}));
}
