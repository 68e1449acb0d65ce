#include "capture/CursorGuide.h"

#include "GuideFixture.h"

namespace {

using CursorGuideArchive = CursorGuideFixture;

} // namespace

// --- Saving and loading

TEST_F(CursorGuideArchive, savesItsKeysInOrder)
{
    guide.setConverter(tenths());
    const ArchiveDictionary saved = guide.dataForSave();
    std::vector<std::string> keys;
    for (const auto &entry : saved.entries())
        keys.push_back(entry.first);
    EXPECT_EQ(keys, (std::vector<std::string>{"Auto X Value Mode", "Lock X Value", "Lock Y Value",
                                              "Initial X Value", "Step X Value", "Current X Value",
                                              "Current Y Value", "Current Converter"}));
}

TEST_F(CursorGuideArchive, savesIntegersBooleansAndDoubles)
{
    const ArchiveDictionary saved = guide.dataForSave();
    EXPECT_TRUE(std::holds_alternative<std::int64_t>(saved.find("Auto X Value Mode")->value));
    EXPECT_TRUE(std::holds_alternative<bool>(saved.find("Lock X Value")->value));
    EXPECT_TRUE(std::holds_alternative<bool>(saved.find("Lock Y Value")->value));
    EXPECT_TRUE(std::holds_alternative<double>(saved.find("Initial X Value")->value));
    EXPECT_TRUE(std::holds_alternative<double>(saved.find("Current Y Value")->value));
}

TEST_F(CursorGuideArchive, withoutConverterHasNoKeyForIt)
{
    EXPECT_EQ(guide.dataForSave().find("Current Converter"), nullptr);
}

TEST_F(CursorGuideArchive, keepsTheVeryConverter)
{
    const GuideConverter converter = tenths();
    guide.setConverter(converter);
    const ArchiveDictionary saved = guide.dataForSave();
    guide.setConverter(nullptr);
    EXPECT_TRUE(guide.loadFromData(&saved));
    EXPECT_EQ(guide.converter(), converter);
}

TEST_F(CursorGuideArchive, loadingWithoutConverterTakesItAway)
{
    const ArchiveDictionary saved = guide.dataForSave();
    guide.setConverter(tenths());
    EXPECT_TRUE(guide.loadFromData(&saved));
    EXPECT_EQ(guide.converter(), nullptr);
}

TEST_F(CursorGuideArchive, loadingNothingIsRefused)
{
    EXPECT_FALSE(guide.loadFromData(nullptr));
    EXPECT_EQ(document.edits, 0);
}

TEST_F(CursorGuideArchive, fieldsComeBackInSixDigits)
{
    initialX->setStringValue("123456789");
    stepX->setStringValue("0.5");
    currentX->setStringValue("       1.5");
    currentY->setStringValue("-2");
    const ArchiveDictionary saved = guide.dataForSave();
    EXPECT_EQ(saved.doubleForKey("Initial X Value"), 123456789.0);
    for (TextField *field : {initialX, stepX, currentX, currentY})
        field->clear();
    EXPECT_TRUE(guide.loadFromData(&saved));
    EXPECT_EQ(initialX->text(), "1.23457e+08");
    EXPECT_EQ(stepX->text(), "0.5");
    EXPECT_EQ(currentX->text(), "1.5");
    EXPECT_EQ(currentY->text(), "-2");
}

TEST_F(CursorGuideArchive, loadingTheLockOfYLocksY)
{
    ArchiveDictionary saved = guide.dataForSave();
    saved.set("Lock Y Value", ArchiveValue{true});
    EXPECT_TRUE(guide.loadFromData(&saved));
    EXPECT_TRUE(guide.lockY());
    EXPECT_TRUE(lockYCheck->isChecked());
    EXPECT_FALSE(currentY->isReadOnly());
    EXPECT_EQ(currentY->property("bezel").toString(), "square");
}

TEST_F(CursorGuideArchive, loadingUnlockedUnlocks)
{
    const ArchiveDictionary saved = guide.dataForSave();
    click(lockYCheck);
    EXPECT_TRUE(guide.loadFromData(&saved));
    EXPECT_FALSE(guide.lockY());
    EXPECT_FALSE(lockYCheck->isChecked());
    EXPECT_TRUE(currentY->isReadOnly());
}

TEST_F(CursorGuideArchive, loadingTheModeNoneFreesALockedX)
{
    ArchiveDictionary saved = guide.dataForSave();
    saved.set("Lock X Value", ArchiveValue{true});
    EXPECT_TRUE(guide.loadFromData(&saved));
    EXPECT_FALSE(guide.lockX());
    EXPECT_FALSE(lockXCheck->isChecked());
    EXPECT_FALSE(currentX->isReadOnly()); // the look is left as it was loaded
}

TEST_F(CursorGuideArchive, loadingTheSteppedModeComputesX)
{
    initialX->setStringValue("3");
    chooseMode(1);
    ArchiveDictionary saved = guide.dataForSave();
    saved.set("Current X Value", ArchiveValue{99.0});
    chooseMode(0);
    EXPECT_TRUE(guide.loadFromData(&saved));
    EXPECT_EQ(guide.autoXMode(), 1);
    EXPECT_TRUE(guide.lockX());
    EXPECT_FALSE(lockXCheck->isEnabled());
    EXPECT_EQ(currentX->text(), "         3");
}

TEST_F(CursorGuideArchive, loadingTheEqualModeLocksXToTheFirstSeries)
{
    chooseMode(2);
    ArchiveDictionary saved = guide.dataForSave();
    saved.set("Current X Value", ArchiveValue{99.0});
    chooseMode(0);
    series.series = 4;
    series.firstX = 2.5;
    EXPECT_TRUE(guide.loadFromData(&saved));
    EXPECT_EQ(guide.autoXMode(), 2);
    EXPECT_TRUE(guide.lockX());
    EXPECT_FALSE(lockXCheck->isEnabled());
    EXPECT_EQ(currentX->text(), "       2.5");
}

TEST_F(CursorGuideArchive, loadingTitlesTheCommandsAfterTheLoadedConverter)
{
    guide.setConverter(degrees());
    ArchiveDictionary saved = guide.dataForSave();
    saved.set("Lock Y Value", ArchiveValue{true});
    guide.setConverter(nullptr);
    EXPECT_TRUE(guide.loadFromData(&saved));
    EXPECT_EQ(menu.x, texts::localized("LockTValue"));
    EXPECT_EQ(menu.y, texts::localized("UnlockRValue"));
}

TEST_F(CursorGuideArchive, loadingEndsWithTheActionOfTheMode)
{
    const ArchiveDictionary saved = guide.dataForSave();
    EXPECT_TRUE(guide.loadFromData(&saved));
    EXPECT_EQ(document.edits, 1);
}

TEST_F(CursorGuideArchive, anUnknownModeLeavesTheChoice)
{
    chooseMode(1);
    ArchiveDictionary saved = guide.dataForSave();
    saved.set("Auto X Value Mode", ArchiveValue{std::int64_t{7}});
    EXPECT_TRUE(guide.loadFromData(&saved));
    EXPECT_EQ(autoXModePopUp->currentIndex(), 1);
    EXPECT_EQ(guide.autoXMode(), 1);
}

TEST_F(CursorGuideArchive, loadingAsksForOneRebuildOfTheGuide)
{
    guide.setConverter(tenths());
    guide.drawGuide({5, 5}, 1);
    const ArchiveDictionary saved = guide.dataForSave();
    EXPECT_TRUE(guide.loadFromData(&saved));
    EXPECT_FALSE(guide.showGuide());
    EXPECT_TRUE(guide.forceRefresh());
}

TEST_F(CursorGuideArchive, somethingElseThanAConverterIsNoConverter)
{
    ArchiveDictionary saved = guide.dataForSave();
    saved.set("Current Converter", ArchiveValue{std::string("converter")});
    guide.setConverter(tenths());
    EXPECT_TRUE(guide.loadFromData(&saved));
    EXPECT_EQ(guide.converter(), nullptr);
}
