// The built program in a process of its own, without a display.
#include "app/ConsoleFixture.h"

#include <QProcess>
#include <QProcessEnvironment>

#include <utility>
#include <vector>

namespace {

struct Result
{
    int exitCode = -1;
    QByteArray out;
    QString err;
};

class Program : public ConsoleFixture
{
protected:
    Result program(const QStringList &arguments, const QByteArray &input = {},
                   const QString &outputFile = {}) const
    {
        return programIn({{"CURVEGRAB_LANGUAGE", "en"}}, arguments, input, outputFile);
    }

    /// `variables` join the environment.
    Result programIn(const std::vector<std::pair<QString, QString>> &variables,
                     const QStringList &arguments, const QByteArray &input = {},
                     const QString &outputFile = {}) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QString::fromLatin1(name));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path("config"));
        for (const auto &[name, value] : variables)
            environment.insert(name, value);
        QProcess process;
        process.setProcessEnvironment(environment);
        if (!outputFile.isEmpty())
            process.setStandardOutputFile(outputFile);
        process.start(QStringLiteral(CURVEGRAB_PROGRAM), arguments);
        process.write(input);
        process.closeWriteChannel();
        if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
            return {};
        return {process.exitCode(), process.readAllStandardOutput(),
                QString::fromUtf8(process.readAllStandardError())};
    }
};

} // namespace

TEST_F(Program, exportsWithoutADisplay)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({2}));
    const Result result = program({"--export", "-", file});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "Series_01_x\tSeries_01_y\n1\t-1\n2\t-2\n");
    EXPECT_EQ(result.err, QString());
}

TEST_F(Program, speaksTheLanguageOfTheDesktop)
{
    const auto complaint = [this](const QString &desktop, const QString &override) {
        const std::vector<std::pair<QString, QString>> variables = {
            {"LANGUAGE", desktop}, {"CURVEGRAB_LANGUAGE", override}};
        return programIn(variables, {"--info"}).err;
    };
    EXPECT_TRUE(complaint("de_AT:en", "").contains("Nennen Sie mindestens ein Dokument."));
    EXPECT_TRUE(complaint("fi", "").contains("Name at least one document."));
    EXPECT_TRUE(complaint("de", "zh_CN").contains(QStringLiteral("请至少指定一个文档。")));
}

TEST_F(Program, writesNumbersWithAPointInEveryLanguage)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({2}));
    const Result english = program({"--export", "-", file});
    const Result german = programIn({{"CURVEGRAB_LANGUAGE", "de"}, {"LC_ALL", "de_DE.UTF-8"}},
                                    {"--export", "-", file});
    EXPECT_EQ(german.exitCode, 0);
    EXPECT_EQ(german.out, english.out);
}

TEST_F(Program, followsThePreferenceForTitles)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({1}));
    ASSERT_TRUE(QDir().mkpath(path("config/curvegrab")));
    writeBytes("config/curvegrab/preferences.json", R"({"Save with Titles": false})");
    EXPECT_EQ(program({"--export", "-", file}).out, "1\t-1\n");
}

TEST_F(Program, readsADocumentFromAPipe)
{
    const Result result = program({"--export", "-", "--no-titles", "-"},
                                  documentarchive::archivedData(rootWithPoints({1})));
    EXPECT_EQ(result.out, "1\t-1\n");
}

TEST_F(Program, printsInfoWithoutADisplay)
{
    const QString file =
        writeDocument("a.crvgrab", sampleroots::root(sampleroots::Kind::Quadrangle));
    const Result result = program({"--info", file});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.out.contains("Quadrangle"));
}

TEST_F(Program, printsHelpAndVersionOnStandardOutput)
{
    const Result help = program({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_TRUE(help.out.startsWith("Usage: curvegrab"));
    const Result version = program({"--version"});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_TRUE(version.out.startsWith("curvegrab ")) << version.out.constData();
}

TEST_F(Program, wrongUseEndsWithTwoAndAHint)
{
    const Result result = program({"--bogus"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, QByteArray());
    EXPECT_TRUE(result.err.startsWith("curvegrab: There is no option '--bogus'."))
        << qPrintable(result.err);
    EXPECT_TRUE(result.err.contains("curvegrab --help"));
}

TEST_F(Program, aMissingFileEndsWithOneAndItsName)
{
    const Result result = program({"--export", "-", path("missing.crvgrab")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.contains("missing.crvgrab")) << qPrintable(result.err);
}

TEST_F(Program, aFullDiskBehindStandardOutputEndsWithOne)
{
    const QString file = writeDocument("a.crvgrab", rootWithPoints({2}));
    for (const QStringList &arguments :
         {QStringList{"--export", "-", file}, QStringList{"--info", file}, QStringList{"--help"}}) {
        const Result result = program(arguments, {}, QStringLiteral("/dev/full"));
        EXPECT_EQ(result.exitCode, 1) << qPrintable(arguments.join(' '));
        EXPECT_TRUE(result.err.contains("standard output")) << qPrintable(result.err);
    }
}

TEST_F(Program, aReaderThatHasEnoughIsNoError)
{
    // More than a pipe holds, so that the writer notices that nobody reads on.
    const QString file = writeDocument("a.crvgrab", rootWithPoints({20'000}));
    QProcess shell;
    shell.start(QStringLiteral("/bin/bash"),
                {QStringLiteral("-c"),
                 QStringLiteral("set -o pipefail; \"$0\" --export - \"$1\" | head -n 1; exit $?"),
                 QStringLiteral(CURVEGRAB_PROGRAM), file});
    ASSERT_TRUE(shell.waitForFinished());
    EXPECT_EQ(shell.readAllStandardOutput(), "Series_01_x\tSeries_01_y\n");
    EXPECT_EQ(shell.readAllStandardError(), QByteArray());
    constexpr int endedByBrokenPipe = 128 + 13;
    EXPECT_EQ(shell.exitCode(), endedByBrokenPipe);
}

TEST_F(Program, withoutADisplayAWindowIsRefusedWithAnExplanation)
{
    const Result result = program({});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.contains("no display")) << qPrintable(result.err);
    EXPECT_TRUE(result.err.contains("--export"));
}
