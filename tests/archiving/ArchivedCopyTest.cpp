#include "archiving/ArchivedCopy.h"

#include <gtest/gtest.h>

namespace {

struct Reading
{
    static constexpr std::string_view kClassName = "Reading";

    void encodeWithCoder(SequentialEncoder &coder) const { coder.encodeInt(number); }

    std::int32_t number = 0;
};

} // namespace

TEST(ArchivedCopy, hasTheNameOfTheClassItHolds)
{
    const std::shared_ptr<const Archivable> copy =
        std::make_shared<ArchivedCopy<Reading>>(Reading{});
    EXPECT_EQ(copy->className(), "Reading");
}

TEST(ArchivedCopy, archivesWhatTheValueArchives)
{
    const std::shared_ptr<const Archivable> copy =
        std::make_shared<ArchivedCopy<Reading>>(Reading{42});
    SequentialEncoder coder;
    copy->encodeWithCoder(coder);
    EXPECT_EQ(coder.items(), (std::vector<ArchivedItem>{std::int32_t{42}}));
}

TEST(ArchivedCopy, holdsACopy)
{
    Reading reading{1};
    const ArchivedCopy<Reading> copy(reading);
    reading.number = 2;
    EXPECT_EQ(copy.value().number, 1);
}
