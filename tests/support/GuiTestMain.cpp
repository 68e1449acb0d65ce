#include "platform/Modules.h"

#include <QApplication>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>

// The application of every GUI test: English texts loaded and the program's modules found as in the
// program, and a configuration folder of its own so that no test touches the user's.
int main(int argc, char **argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    QStandardPaths::setTestModeEnabled(false);
    const QApplication application(argc, argv);
    modules::setFolder(QStringLiteral(CURVEGRAB_MODULE_FOLDER));
    QTranslator texts;
    if (!texts.load(QStringLiteral(":/i18n/curvegrab_en.qm")))
        return 2;
    QCoreApplication::installTranslator(&texts);
    return RUN_ALL_TESTS();
}
