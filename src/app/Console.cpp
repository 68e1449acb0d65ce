#include "app/Console.h"

#include "app/CommandLine.h"
#include "platform/Texts.h"

bool Console::print(const QByteArray &bytes) const
{
    if (out.write(bytes) == bytes.size())
        return true;
    complain(texts::localized("app.standardOutput") + QStringLiteral(": ") + out.errorString());
    return false;
}

void Console::complain(const QString &message) const
{
    err.write((QStringLiteral("curvegrab: ") + message + u'\n').toUtf8());
}

void Console::complainAbout(const QString &file, const QString &message) const
{
    complain(displayName(file) + QStringLiteral(": ") + message);
}

QString Console::displayName(const QString &file)
{
    return file == CommandLine::standardStream ? texts::localized("app.standardInput") : file;
}
