// The manual page says what the program does.
#include "platform/Texts.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

QString manualPath() { return QStringLiteral(CURVEGRAB_SOURCE "/docs/curvegrab.1"); }

QString manual()
{
    QFile file(manualPath());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).remove(u'\\')
                                          : QString();
}

QSet<QString> longOptionsIn(const QString &text)
{
    static const QRegularExpression option(QStringLiteral("--[a-z][a-z-]*"));
    QSet<QString> options;
    for (const QRegularExpressionMatch &match : option.globalMatch(text))
        options.insert(match.captured());
    return options;
}

} // namespace

TEST(Manual, hasTheOptionsThatTheHelpHas)
{
    const QSet<QString> inHelp = longOptionsIn(texts::localized("app.help"));
    EXPECT_EQ(inHelp, QSet<QString>({"--export", "--format", "--digits", "--series", "--titles",
                                     "--no-titles", "--info", "--json", "--help", "--version"}));
    EXPECT_EQ(longOptionsIn(manual()), inHelp);
}

TEST(Manual, isSoundInTheEyesOfItsFormatter)
{
    QProcess groff;
    groff.start(QStringLiteral("groff"), {"-man", "-Tutf8", "-ww", "-z", manualPath()});
    ASSERT_TRUE(groff.waitForFinished());
    EXPECT_EQ(groff.readAllStandardError(), QByteArray());
    EXPECT_EQ(groff.exitCode(), 0);
}
