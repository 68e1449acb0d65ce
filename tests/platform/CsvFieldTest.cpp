#include "platform/CsvField.h"

#include <gtest/gtest.h>

TEST(CsvField, standsInQuotesWhereItNeedsThem)
{
    EXPECT_EQ(csvfield::quoted("plain"), "plain");
    EXPECT_EQ(csvfield::quoted("a,b"), "\"a,b\"");
    EXPECT_EQ(csvfield::quoted("say \"a\""), "\"say \"\"a\"\"\"");
    EXPECT_EQ(csvfield::quoted("two\nlines"), "\"two\nlines\"");
    EXPECT_EQ(csvfield::quoted("two\rlines"), "\"two\rlines\"");
    EXPECT_EQ(csvfield::quoted(""), "");
}

TEST(CsvField, standSideBySideInALine)
{
    EXPECT_EQ(csvfield::line({"1", "", "a,b"}), "1,,\"a,b\"\r\n");
    EXPECT_EQ(csvfield::line({}), "\r\n");
}

TEST(CsvField, isEmptyForWhatIsNoNumber)
{
    EXPECT_EQ(csvfield::line({"inf", "-inf", "nan", "-nan", "1"}), ",,,,1\r\n");
    EXPECT_EQ(csvfield::line({"information", "nano", "-"}), "information,nano,-\r\n");
}
