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
