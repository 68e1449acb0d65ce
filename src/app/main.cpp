#include "document/DocumentController.h"
#include "platform/UserDefaults.h"
#include "prefs/CurvegrabPrefs.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QTranslator>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("curvegrab"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CURVEGRAB_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Curvegrab X"));
    QGuiApplication::setDesktopFileName(QStringLiteral("curvegrab"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/curvegrab.svg")));
    QTranslator texts;
    if (texts.load(QStringLiteral(":/i18n/curvegrab_en.qm")))
        QCoreApplication::installTranslator(&texts);

    QCommandLineParser commandLine;
    commandLine.setApplicationDescription(qtTrId("app.description"));
    commandLine.addHelpOption();
    commandLine.addVersionOption();
    commandLine.addPositionalArgument(QStringLiteral("pictures"), qtTrId("app.pictures"),
                                      QStringLiteral("[picture…]"));
    commandLine.process(application);

    UserDefaults defaults(UserDefaults::standardPath());
    CurvegrabPrefs prefs(defaults);
    DocumentController documents(prefs);
    prefs.awakeFromNib();
    documents.openFiles(commandLine.positionalArguments());
    return QApplication::exec();
}
