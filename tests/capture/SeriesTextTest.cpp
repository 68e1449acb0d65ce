#include "capture/SeriesText.h"

#include "SeriesFixture.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

namespace {

SeriesStore storeWith(int series, const Pairs &pairs)
{
    SeriesStore store;
    for (const auto &[x, y] : pairs)
        store.append(series, vectorOf(x, y));
    return store;
}

std::string textOfNumber(double number)
{
    return seriestext::makeString(storeWith(0, {{number, 0}}), {0}, false).value();
}

/// A user whose numbers have a comma, for C and for Qt, where the system knows such users.
class CommaLocale
{
public:
    CommaLocale()
        : m_before(std::setlocale(LC_ALL, nullptr))
    {
        for (const char *name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "de_DE"}) {
            if (std::setlocale(LC_ALL, name) != nullptr)
                break;
        }
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    }
    ~CommaLocale()
    {
        std::setlocale(LC_ALL, m_before.c_str());
        QLocale::setDefault(m_qtBefore);
    }
    CommaLocale(const CommaLocale &) = delete;
    CommaLocale &operator=(const CommaLocale &) = delete;

private:
    std::string m_before;
    QLocale m_qtBefore;
};

} // namespace

TEST(SeriesText, anEmptySetGivesNothing)
{
    EXPECT_FALSE(seriestext::makeString(storeWith(0, {{1, 2}}), {}, true).has_value());
}

TEST(SeriesText, withoutTitleAndRowsTheTextIsThereButEmpty)
{
    EXPECT_EQ(seriestext::makeString(SeriesStore(), {3}, false), std::string());
}

TEST(SeriesText, withoutRowsThereIsTheTitleLineOnly)
{
    EXPECT_EQ(seriestext::makeString(SeriesStore(), {3}, true), "Series_04_x\tSeries_04_y\n");
}

TEST(SeriesText, layoutOfTwoSeriesOfWhichOneIsPolar)
{
    SeriesStore store = storeWith(0, {{1, 2}, {3, 4}});
    store.append(2, vectorOf(5, 6));
    store.setConverter(0, parallelAxes(1));
    store.setConverter(2, polarAxes());
    EXPECT_EQ(seriestext::makeString(store, {0, 2}, true),
              "Series_01_x\tSeries_01_y\tSeries_03_theta\tSeries_03_r\n"
              "1\t2\t5\t6\n"
              "3\t4\t\t\n");
}

TEST(SeriesText, theTenthSeriesHasTwoDigitsWithoutLeadingZero)
{
    EXPECT_EQ(seriestext::makeString(SeriesStore(), {9}, true), "Series_10_x\tSeries_10_y\n");
}

TEST(SeriesText, seriesNeedNotBeNeighbours)
{
    SeriesStore store = storeWith(1, {{1, 2}});
    store.append(3, vectorOf(9, 9));
    store.append(4, vectorOf(3, 4));
    EXPECT_EQ(seriestext::makeString(store, {1, 4}, true),
              "Series_02_x\tSeries_02_y\tSeries_05_x\tSeries_05_y\n"
              "1\t2\t3\t4\n");
}

TEST(SeriesText, aLongerSeriesThatIsNotExportedAddsEmptyLines)
{
    SeriesStore store = storeWith(0, {{1, 2}, {3, 4}});
    for (int i = 0; i < 4; ++i)
        store.append(7, vectorOf(i, i));
    EXPECT_EQ(seriestext::makeString(store, {0}, false), "1\t2\n3\t4\n\t\n\t\n");
}

TEST(SeriesText, anEmptySeriesOfTheSetKeepsItsTwoColumns)
{
    EXPECT_EQ(seriestext::makeString(storeWith(0, {{1, 2}}), {0, 1, 2}, false), "1\t2\t\t\t\t\n");
}

TEST(SeriesText, aFirstSeriesThatIsShorterKeepsItsTwoColumns)
{
    EXPECT_EQ(seriestext::makeString(storeWith(1, {{1, 2}}), {0, 1}, false), "\t\t1\t2\n");
}

TEST(SeriesText, numbersHaveSixSignificantDigits)
{
    EXPECT_EQ(textOfNumber(0.000012345), "1.2345e-05\t0\n");
    EXPECT_EQ(textOfNumber(1234567), "1.23457e+06\t0\n");
    EXPECT_EQ(textOfNumber(100000), "100000\t0\n");
}

TEST(SeriesText, tiesAreRoundedToEven)
{
    EXPECT_EQ(textOfNumber(123456.5), "123456\t0\n");
    EXPECT_EQ(textOfNumber(123457.5), "123458\t0\n");
}

TEST(SeriesText, minusZeroKeepsItsSign) { EXPECT_EQ(textOfNumber(-0.0), "-0\t0\n"); }

TEST(SeriesText, valuesThatAreNoNumbersAreWrittenAsC)
{
    EXPECT_EQ(textOfNumber(std::numeric_limits<double>::infinity()), "inf\t0\n");
    EXPECT_EQ(textOfNumber(-std::numeric_limits<double>::infinity()), "-inf\t0\n");
    EXPECT_EQ(textOfNumber(std::numeric_limits<double>::quiet_NaN()), "nan\t0\n");
}

TEST(SeriesText, theDecimalPointDoesNotFollowTheUser)
{
    const CommaLocale user;
    EXPECT_EQ(textOfNumber(1.5), "1.5\t0\n");
    EXPECT_EQ(textOfNumber(1234.5), "1234.5\t0\n");
}

TEST(SeriesText, thereIsNoCarriageReturn)
{
    const auto text = seriestext::makeString(storeWith(0, {{1, 2}, {3, 4}}), {0}, true);
    ASSERT_TRUE(text.has_value());
    EXPECT_EQ(text->find('\r'), std::string::npos);
    EXPECT_EQ(text->back(), '\n');
}

TEST(SeriesText, asciiStaysAsItIs)
{
    EXPECT_EQ(seriestext::lossyAscii(QStringLiteral("a\tb\n~\x7f")), QByteArray("a\tb\n~\x7f"));
}

TEST(SeriesText, charactersOutsideAsciiBecomeQuestionMarks)
{
    EXPECT_EQ(seriestext::lossyAscii(QStringLiteral("x\u00e4\u03b8y")), QByteArray("x??y"));
}

TEST(SeriesText, aCharacterBeyondTheBasicPlaneIsOneQuestionMark)
{
    EXPECT_EQ(seriestext::lossyAscii(QString::fromUtf8("a\xf0\x9f\x93\x88z")), QByteArray("a?z"));
}
