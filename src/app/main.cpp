#include "app/CommandKeys.h"
#include "app/CommandLine.h"
#include "app/ConsoleCommands.h"
#include "app/RunningProgram.h"
#include "document/ApplicationPanels.h"
#include "document/DocumentController.h"
#include "document/MenuBarStyle.h"
#include "helpbook/HelpBookViewer.h"
#include "platform/FirstPaint.h"
#include "platform/FontsAhead.h"
#include "platform/Languages.h"
#include "platform/TextCatalogues.h"
#include "platform/Texts.h"
#include "platform/UserDefaults.h"
#include "prefs/CurvegrabPrefs.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>

#include <cstdio>
#include <memory>

namespace {

QStringList argumentsAfterName(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments += QFile::decodeName(argv[i]);
    return arguments;
}

QStringList absolute(QStringList paths)
{
    for (QString &path : paths)
        path = QFileInfo(path).absoluteFilePath();
    return paths;
}

void introduce()
{
    QCoreApplication::setApplicationName(QStringLiteral("curvegrab"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CURVEGRAB_VERSION));
}

QString languageOfUser() { return languages::choice(languages::wanted(), languages::available()); }

/// Whether windows have somewhere to open, so that the toolkit does not have to give up.
bool hasDisplay([[maybe_unused]] const CommandLine &commandLine)
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    return commandLine.choosesPlatform || qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
           !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

int runWithoutWindow(int argc, char **argv, const CommandLine &commandLine)
{
    const QCoreApplication application(argc, argv);
    introduce();
    const TextCatalogues catalogues(languageOfUser());
    // Without the library's own buffer a write tells at once whether there was room.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    QFile in;
    QFile out;
    QFile err;
    if (!in.open(stdin, QIODevice::ReadOnly) ||
        !out.open(stdout, QIODevice::WriteOnly | QIODevice::Unbuffered) ||
        !err.open(stderr, QIODevice::WriteOnly | QIODevice::Unbuffered))
        return exitcode::failure;
    const Console console{in, out, err};
    if (!consolecommands::serve(commandLine)) {
        console.complain(texts::localized("app.noDisplay"));
        return exitcode::failure;
    }
    UserDefaults defaults(UserDefaults::standardPath());
    CurvegrabPrefs prefs(defaults);
    prefs.awakeFromNib();
    return consolecommands::run(commandLine, prefs.saveWithTitle(), console);
}

} // namespace

int main(int argc, char **argv)
{
    const CommandLine commandLine = CommandLine::parse(argumentsAfterName(argc, argv));
    if (consolecommands::serve(commandLine) || !hasDisplay(commandLine))
        return runWithoutWindow(argc, argv, commandLine);

    FontsAhead fonts;
    QApplication application(argc, argv);
    introduce();
    const TextCatalogues catalogues(languageOfUser());
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Curvegrab X"));
    QGuiApplication::setDesktopFileName(QStringLiteral(CURVEGRAB_DESKTOP_ID));
    QApplication::setStyle(std::make_unique<MenuBarStyle>().release()); // it owns it now

    const QString stateFolder = DocumentController::standardStateFolder();
    RunningProgram running(RunningProgram::nameFor(stateFolder));
    if (running.handOver(absolute(commandLine.files)))
        return 0;

    UserDefaults defaults(UserDefaults::standardPath());
    CurvegrabPrefs prefs(defaults);
    HelpBookViewer help(
        QDir(stateFolder).filePath(QStringLiteral("help.json")),
        [](const QString &command) {
            return commandkeys::ofCommand(command, QApplication::topLevelWidgets());
        },
        catalogues.language());
    DocumentController documents(prefs, stateFolder);
    QObject::connect(&running, &RunningProgram::filesGiven, &documents,
                     [&documents](const QStringList &paths) {
                         if (paths.isEmpty())
                             documents.reopen();
                         else
                             documents.openFiles(paths);
                     });
    documents.panels().setHelpViewer(&help);
    prefs.awakeFromNib();
    // What is not needed to see the first window comes after it.
    firstpaint::whenOver(application, [&prefs] {
        QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/curvegrab.svg")));
        prefs.applicationDidFinishLaunching();
    });
    fonts.await();
    documents.start(commandLine.files);
    return QApplication::exec();
}
