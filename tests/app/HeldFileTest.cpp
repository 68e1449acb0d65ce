#include "app/HeldFile.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>

namespace {

class HeldFileTest : public testing::Test
{
protected:
    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("held")); }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(HeldFileTest, oneHoldsItAtATime)
{
    HeldFile first(path());
    HeldFile second(path());
    EXPECT_TRUE(first.hold());
    EXPECT_FALSE(second.hold());
}

TEST_F(HeldFileTest, theNextOneHoldsItWhenTheFirstIsGone)
{
    auto first = std::make_unique<HeldFile>(path());
    HeldFile second(path());
    ASSERT_TRUE(first->hold());
    first.reset();
    EXPECT_TRUE(second.hold());
}

TEST_F(HeldFileTest, whoWaitsHoldsItOnceTheFirstHasLetGo)
{
    auto first = std::make_unique<HeldFile>(path());
    ASSERT_TRUE(first->hold());
    std::atomic<bool> hasLetGo = false;
    bool heldAfterwards = false;
    std::jthread waiting([&] {
        HeldFile second(path());
        heldAfterwards = second.waitAndHold() && hasLetGo;
    });
    hasLetGo = true;
    first.reset();
    waiting.join();
    EXPECT_TRUE(heldAfterwards);
}

TEST_F(HeldFileTest, nobodyHoldsWhatCannotBe)
{
    HeldFile file(path() + QStringLiteral("/below"));
    EXPECT_FALSE(file.isThere());
    EXPECT_FALSE(file.hold());
    EXPECT_FALSE(file.waitAndHold());
}
