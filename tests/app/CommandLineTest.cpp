#include "app/CommandLine.h"

#include "app/ConsoleCommands.h"

#include <gtest/gtest.h>

using Action = CommandLine::Action;

namespace {

std::string mistakeIn(const QStringList &arguments)
{
    const auto mistake = CommandLine::parse(arguments).mistake;
    return mistake ? mistake->text : "none";
}

} // namespace

TEST(CommandLine, filesAloneOpenWindows)
{
    const CommandLine line = CommandLine::parse({"a.crvgrab", "b.png"});
    EXPECT_EQ(line.action, Action::OpenWindows);
    EXPECT_EQ(line.files, QStringList({"a.crvgrab", "b.png"}));
    EXPECT_FALSE(line.mistake);
    EXPECT_FALSE(consolecommands::serve(line));
}

TEST(CommandLine, noArgumentsOpenAnEmptyWindow)
{
    EXPECT_EQ(CommandLine::parse({}).action, Action::OpenWindows);
    EXPECT_FALSE(CommandLine::parse({}).mistake);
}

TEST(CommandLine, theOutputOfAnExportStandsBehindItsOption)
{
    for (const QStringList &arguments : {QStringList{"--export", "out.txt", "a.crvgrab"},
                                         QStringList{"--export=out.txt", "a.crvgrab"},
                                         QStringList{"a.crvgrab", "--export", "out.txt"}}) {
        const CommandLine line = CommandLine::parse(arguments);
        EXPECT_EQ(line.action, Action::Export);
        EXPECT_EQ(line.output, QStringLiteral("out.txt"));
        EXPECT_EQ(line.files, QStringList("a.crvgrab"));
        EXPECT_TRUE(consolecommands::serve(line));
    }
}

TEST(CommandLine, aDashIsAStreamAndNoOption)
{
    const CommandLine line = CommandLine::parse({"--export", "-", "-"});
    EXPECT_EQ(line.output, QStringLiteral("-"));
    EXPECT_EQ(line.files, QStringList("-"));
    EXPECT_FALSE(line.mistake);
}

TEST(CommandLine, standardInputCannotBecomeAWindow)
{
    EXPECT_EQ(mistakeIn({"-"}), "app.usage.openStandardInput");
}

TEST(CommandLine, afterTwoDashesEverythingIsAFile)
{
    const CommandLine line = CommandLine::parse({"--info", "--", "--json", "--", "-x"});
    EXPECT_EQ(line.files, QStringList({"--json", "--", "-x"}));
    EXPECT_FALSE(line.asJson);
}

TEST(CommandLine, withoutTitleOptionsThePreferencesDecide)
{
    EXPECT_FALSE(CommandLine::parse({"--export", "-", "a"}).titles);
    EXPECT_EQ(CommandLine::parse({"--export", "-", "--titles", "a"}).titles, true);
    EXPECT_EQ(CommandLine::parse({"--export", "-", "--no-titles", "a"}).titles, false);
}

TEST(CommandLine, helpAndVersionNeedNothingElse)
{
    for (const QString option : {"--help", "-h"})
        EXPECT_EQ(CommandLine::parse({option}).action, Action::Help);
    for (const QString option : {"--version", "-v"})
        EXPECT_EQ(CommandLine::parse({option}).action, Action::Version);
}

TEST(CommandLine, helpWinsOverWhatFollowsIt)
{
    const CommandLine line = CommandLine::parse({"--export", "-", "--help", "--bogus"});
    EXPECT_EQ(line.action, Action::Help);
    EXPECT_FALSE(line.mistake);
}

TEST(CommandLine, whatIsWrongIsNamed)
{
    EXPECT_EQ(mistakeIn({"--bogus"}), "app.usage.unknown");
    EXPECT_EQ(mistakeIn({"-x"}), "app.usage.unknown");
    EXPECT_EQ(mistakeIn({"--export"}), "app.usage.noValue");
    EXPECT_EQ(mistakeIn({"--export=", "a"}), "app.usage.noValue");
    EXPECT_EQ(mistakeIn({"--export", "-"}), "app.usage.noFile");
    EXPECT_EQ(mistakeIn({"--info"}), "app.usage.noFile");
    EXPECT_EQ(mistakeIn({"--info=x", "a"}), "app.usage.unwantedValue");
    EXPECT_EQ(mistakeIn({"--export", "-", "--titles", "--no-titles", "a"}), "app.usage.bothTitles");
    EXPECT_EQ(mistakeIn({"--export", "-", "--info", "a"}), "app.usage.exportAndInfo");
    EXPECT_EQ(mistakeIn({"--series", "1", "a"}), "app.usage.exportOnly");
    EXPECT_EQ(mistakeIn({"--series", "all", "a"}), "app.usage.exportOnly");
    EXPECT_EQ(mistakeIn({"--no-titles", "--info", "a"}), "app.usage.exportOnly");
    EXPECT_EQ(mistakeIn({"--json", "a"}), "app.usage.infoOnly");
    EXPECT_EQ(mistakeIn({"--export", "-", "--json", "a"}), "app.usage.infoOnly");
}

TEST(CommandLine, theWrongOptionIsToldAsItWasTyped)
{
    EXPECT_EQ(CommandLine::parse({"--bogus=7"}).mistake->argument, QStringLiteral("--bogus=7"));
    EXPECT_EQ(CommandLine::parse({"--no-titles", "a"}).mistake->argument,
              QStringLiteral("--no-titles"));
}

TEST(CommandLine, aForgottenOutputDoesNotOverwriteADocument)
{
    EXPECT_EQ(mistakeIn({"--export", "a.crvgrab", "b.crvgrab"}), "app.usage.outputIsDocument");
    EXPECT_EQ(mistakeIn({"--export", "A.CRVGRAB", "b.crvgrab"}), "app.usage.outputIsDocument");
}

TEST(CommandLine, anOptionIsNoOutput)
{
    EXPECT_EQ(mistakeIn({"--export", "--titles", "a.crvgrab"}), "app.usage.noValue");
    EXPECT_EQ(mistakeIn({"--export", "--", "a.crvgrab"}), "app.usage.noValue");
    EXPECT_EQ(CommandLine::parse({"--export=--titles", "a.crvgrab"}).output,
              QStringLiteral("--titles"));
}

TEST(CommandLine, theSeriesAreReadInTheOrderOfTheNumbers)
{
    const CommandLine line = CommandLine::parse({"--export", "-", "--series", "3-1", "a"});
    EXPECT_EQ(line.series, std::optional(IndexSet{0, 1, 2}));
    EXPECT_FALSE(line.mistake);
}

TEST(CommandLine, aSeriesThatIsNotThereIsNamed)
{
    const CommandLine line = CommandLine::parse({"--export", "-", "--series", "11", "a"});
    ASSERT_TRUE(line.mistake);
    EXPECT_STREQ(line.mistake->text, "app.usage.series");
    EXPECT_EQ(line.mistake->argument, QStringLiteral("11"));
}

TEST(CommandLine, theFormatIsTheOneNamedOrThatOfTheOutput)
{
    const auto formatOf = [](const QStringList &arguments) {
        return CommandLine::parse(arguments).exportFormat();
    };
    EXPECT_EQ(formatOf({"--export", "out.csv", "a"}), ExchangeFormat::Csv);
    EXPECT_EQ(formatOf({"--export", "out.csv", "--format", "json", "a"}), ExchangeFormat::Json);
    EXPECT_EQ(formatOf({"--export", "out.xlsx", "--format=text", "a"}), ExchangeFormat::Text);
    EXPECT_EQ(formatOf({"--export", "-", "a"}), ExchangeFormat::Text);
    EXPECT_EQ(formatOf({"--export", "out.dat", "a"}), ExchangeFormat::Text);
}

TEST(CommandLine, formatsAndDigitsThatAreNoneAreNamed)
{
    EXPECT_EQ(mistakeIn({"--export", "-", "--format", "ods", "a"}), "app.usage.format");
    EXPECT_EQ(mistakeIn({"--export", "-", "--format=CSV", "a"}), "app.usage.format");
    for (const QString digits : {"0", "18", "-1", "1.5", "x", "100"})
        EXPECT_EQ(mistakeIn({"--export", "a.csv", "--digits=" + digits, "a"}), "app.usage.digits");
    EXPECT_EQ(CommandLine::parse({"--export", "a.csv", "--digits", "17", "a"}).digits, 17);
    EXPECT_EQ(mistakeIn({"--export", "a.csv", "--digits", "4", "a"}), "none");
}

TEST(CommandLine, formatAndDigitsBelongToExports)
{
    EXPECT_EQ(mistakeIn({"--format", "csv", "a"}), "app.usage.exportOnly");
    EXPECT_EQ(mistakeIn({"--info", "--digits", "3", "a"}), "app.usage.exportOnly");
}

TEST(CommandLine, theDigitsOfTextAreFixed)
{
    EXPECT_EQ(mistakeIn({"--export", "-", "--digits", "6", "a"}), "app.usage.textDigits");
    EXPECT_EQ(mistakeIn({"--export", "a.csv", "--format", "text", "--digits", "6", "a"}),
              "app.usage.textDigits");
}

TEST(CommandLine, optionsMayStandBehindTheFiles)
{
    const CommandLine line =
        CommandLine::parse({"a", "--no-titles", "b", "--series=2", "--export", "out.txt", "c"});
    EXPECT_FALSE(line.mistake);
    EXPECT_EQ(line.files, QStringList({"a", "b", "c"}));
    EXPECT_EQ(line.series, std::optional(IndexSet{1}));
    EXPECT_EQ(line.titles, false);
}

TEST(CommandLine, optionsOfTheToolkitPassWithTheirValues)
{
    const CommandLine line =
        CommandLine::parse({"-platform", "offscreen", "--style=fusion", "-reverse", "a.png"});
    EXPECT_FALSE(line.mistake);
    EXPECT_TRUE(line.choosesPlatform);
    EXPECT_EQ(line.files, QStringList("a.png"));
}

TEST(SeriesList, numbersAndRangesCountFromOne)
{
    EXPECT_EQ(serieslist::fromText("1,3-5"), std::optional(IndexSet{0, 2, 3, 4}));
    EXPECT_EQ(serieslist::fromText("10"), std::optional(IndexSet{9}));
    EXPECT_EQ(serieslist::fromText(" 2 , 4 - 5 "), std::optional(IndexSet{1, 3, 4}));
}

TEST(SeriesList, aRangeMayRunDownwardsAndOverlap)
{
    EXPECT_EQ(serieslist::fromText("5-3,4"), std::optional(IndexSet{2, 3, 4}));
}

TEST(SeriesList, allLimitsNothing)
{
    const auto series = serieslist::fromText("all");
    ASSERT_TRUE(series);
    EXPECT_FALSE(*series);
}

TEST(SeriesList, anythingElseIsNoList)
{
    for (const QString text : {"", "0", "11", "1,", ",1", "1-", "-2", "1--2", "a", "1 2", "ALL",
                               "1.5", "100", "99999999999999999999", "1-3-5", "+1", "١"})
        EXPECT_FALSE(serieslist::fromText(text)) << qPrintable(text);
}
