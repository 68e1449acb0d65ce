#include "app/ConsoleCommands.h"

#include "app/ExportCommand.h"
#include "app/InfoCommand.h"
#include "platform/Texts.h"

#include <QCoreApplication>

namespace {

int print(const QString &text, const Console &console)
{
    return console.print(text.toUtf8()) ? exitcode::success : exitcode::failure;
}

} // namespace

namespace consolecommands {

bool serve(const CommandLine &commandLine)
{
    return commandLine.mistake || commandLine.action != CommandLine::Action::OpenWindows;
}

int run(const CommandLine &commandLine, bool titlesByDefault, const Console &console)
{
    if (commandLine.mistake) {
        const QString text = texts::localized(commandLine.mistake->text);
        console.complain(
            text.contains(QStringLiteral("%1")) ? text.arg(commandLine.mistake->argument) : text);
        console.complain(texts::localized("app.usage.hint"));
        return exitcode::wrongUse;
    }
    switch (commandLine.action) {
    case CommandLine::Action::Export:
        return exportcommand::run(commandLine, titlesByDefault, console);
    case CommandLine::Action::Info:
        return infocommand::run(commandLine, console);
    case CommandLine::Action::Help:
        return print(texts::localized("app.help") + u'\n', console);
    case CommandLine::Action::Version:
        return print(QStringLiteral("curvegrab %1\n").arg(QCoreApplication::applicationVersion()),
                     console);
    case CommandLine::Action::OpenWindows:
        break;
    }
    return exitcode::success;
}

} // namespace consolecommands
