#include "axes/CurrentAxes.h"
#include "capture/CursorGuide.h"
#include "document/DocumentArchive.h"
#include "document/DocumentKeys.h"
#include "endurance/Endurance.h"
#include "endurance/RandomRoots.h"
#include "endurance/RandomUser.h"
#include "endurance/ReopenedDocument.h"
#include "platform/GeometryText.h"
#include "platform/NumberText.h"
#include "prefs/CurvegrabPrefs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <string>
#include <vector>

// A document that is opened and saved without a change is the same file. What may change is known:
// values take the six digits that the fields show when they are opened, and a lock that belongs to
// no mode is opened.
namespace {

using documentarchive::archivedData;
using randomroots::Numbers;

ArchiveDictionary rootOf(const QByteArray &file)
{
    documentarchive::Reading reading = documentarchive::unarchived(file);
    EXPECT_TRUE(reading.isWhole());
    return std::move(reading.root);
}

bool hasSixDigits(double value)
{
    return numbertext::doubleValue(QString::fromStdString(numbertext::general(value))) == value;
}

template <std::size_t count>
bool haveSixDigits(const ArchiveDictionary &data, const std::array<const char *, count> &keys)
{
    return std::all_of(keys.begin(), keys.end(),
                       [&data](const char *key) { return hasSixDigits(data.doubleForKey(key)); });
}

bool valuesHaveSixDigits(const ArchiveDictionary &root)
{
    static constexpr std::array axisValues{"Min X Value", "Max X Value", "Min Y Value",
                                           "Max Y Value"};
    static constexpr std::array guideValues{"Initial X Value", "Step X Value", "Current X Value",
                                            "Current Y Value"};
    return haveSixDigits(*root.dictionaryForKey(documentkeys::currentAxesData), axisValues) &&
           haveSixDigits(*root.dictionaryForKey(documentkeys::cursorGuideData), guideValues);
}

/// The converter in force comes from the anchors; their text has six digits.
bool anchorsHaveSixDigits(const MyDocument &document)
{
    const std::vector<FloatPoint> anchors = document.currentAxes().currentAnchors();
    return std::all_of(anchors.begin(), anchors.end(), [](FloatPoint anchor) {
        return geometrytext::pointFromString(geometrytext::stringFromPoint(anchor)) == anchor;
    });
}

ArchiveDictionary archiveOf(const std::shared_ptr<const ZKConvCoordinate> &converter)
{
    ArchiveDictionary archive;
    if (converter != nullptr)
        archive.set("Converter", {std::shared_ptr<const Archivable>(converter)});
    return archive;
}

/// A picture that is opened on the digitizing page gets new anchors, and leaves the converter in
/// force; opening the document makes that from the anchors.
bool converterIsThatOfTheAxes(const MyDocument &document)
{
    return document.isInAxisSettingMode() ||
           archivedData(archiveOf(document.cursorGuide().converter())) ==
               archivedData(archiveOf(document.currentAxes().makeAxisConverter()));
}

/// A lock of the user's own where opening frees X: without automatic X, and in the first series of
/// those that take their X from it.
bool hasLockThatOpens(const ArchiveDictionary &root)
{
    const ArchiveDictionary &guide = *root.dictionaryForKey(documentkeys::cursorGuideData);
    const int mode = guide.intForKey("Auto X Value Mode");
    const int series =
        root.dictionaryForKey(documentkeys::dataSeriesData)->intForKey("Current Series");
    return guide.boolForKey("Lock X Value") && (mode == 0 || (mode == 2 && series == 0));
}

/// What a save of the reopened file writes, where the user prefers something else every time.
QByteArray savedAgain(const QByteArray &file)
{
    static double preference = 0.5;
    preference = preference > 9 ? 0.5 : preference + 0.25;
    TestServices services;
    services.prefs().setAxisThick(static_cast<float>(preference));
    services.prefs().setAxisAnchorSize(static_cast<float>(preference * 2));
    services.prefs().setGuideInterval(static_cast<float>(preference));
    services.prefs().setSaveWithTitle(preference > 3);
    const ReopenedDocument reopened(file, services);
    EXPECT_TRUE(reopened.isWhole);
    EXPECT_FALSE(reopened.document.isDocumentEdited());
    return reopened.saved();
}

/// The first key, with its part, whose value differs; empty if none does.
std::string difference(const QByteArray &one, const QByteArray &other)
{
    const ArchiveDictionary first = rootOf(one);
    const ArchiveDictionary second = rootOf(other);
    for (const auto &[part, value] : first.entries()) {
        const auto *inFirst = first.dictionaryForKey(part);
        const auto *inSecond = second.dictionaryForKey(part);
        if (inFirst == nullptr || inSecond == nullptr) {
            ArchiveDictionary a;
            ArchiveDictionary b;
            a.set(part, value);
            b.set(part, *second.find(part));
            if (archivedData(a) != archivedData(b))
                return part + ": " + first.stringForKey(part) + " / " + second.stringForKey(part);
            continue;
        }
        for (const auto &[key, content] : inFirst->entries()) {
            ArchiveDictionary a;
            ArchiveDictionary b;
            a.set(key, content);
            if (const ArchiveValue *there = inSecond->find(key))
                b.set(key, *there);
            if (archivedData(a) != archivedData(b))
                return part + ", " + key + ": " + inFirst->stringForKey(key) + " " +
                       numbertext::general(inFirst->doubleForKey(key), 17) + " / " +
                       inSecond->stringForKey(key) + " " +
                       numbertext::general(inSecond->doubleForKey(key), 17);
        }
    }
    return {};
}

void expectSameFiles(const QByteArray &one, const QByteArray &other)
{
    EXPECT_EQ(difference(one, other), "");
    EXPECT_TRUE(one == other);
}

class SavingFixedPointOf : public testing::TestWithParam<Numbers>
{};

} // namespace

TEST_P(SavingFixedPointOf, filesWithAnythingInThem)
{
    std::mt19937 dice(4);
    const int documents = endurance::times(12);
    int settledAtOnce = 0;
    for (int i = 0; i < documents && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        const QByteArray first = savedAgain(archivedData(randomroots::root(dice, GetParam())));
        const QByteArray second = savedAgain(first);
        expectSameFiles(savedAgain(second), second);
        if (!valuesHaveSixDigits(rootOf(first)))
            continue;
        expectSameFiles(second, first);
        ++settledAtOnce;
    }
    EXPECT_GT(settledAtOnce, documents / 2);
}

INSTANTIATE_TEST_SUITE_P(EachKind, SavingFixedPointOf,
                         testing::Values(Numbers::OfSixDigits, Numbers::Any));

TEST(SavingFixedPoint, documentsThatAUserLeftSomehow)
{
    const int users = endurance::times(8);
    int settledAtOnce = 0;
    for (int seed = 1; seed <= users && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        RandomUser user(static_cast<unsigned>(seed));
        for (int action = 0; action < 60; ++action)
            user.act();
        const QByteArray first = user.document().dataOfType({}).value_or(QByteArray());
        const QByteArray second = savedAgain(first);
        expectSameFiles(savedAgain(second), second);
        const ArchiveDictionary root = rootOf(first);
        if (hasLockThatOpens(root) || !valuesHaveSixDigits(root) ||
            !anchorsHaveSixDigits(user.document()) || !converterIsThatOfTheAxes(user.document()))
            continue;
        expectSameFiles(second, first);
        ++settledAtOnce;
    }
    EXPECT_GT(settledAtOnce, 0);
}

TEST(SavingFixedPoint, theEmptyDocument)
{
    const TestDocument empty{QSize(0, 0)};
    const QByteArray first = *empty.document->dataOfType({});
    const QByteArray second = savedAgain(first);
    expectSameFiles(second, first);
    expectSameFiles(savedAgain(second), first);
}

TEST(SavingFixedPoint, aLockWithoutAutomaticXOpensOnce)
{
    TestDocument test;
    test.digitize();
    QTest::mouseClick(test.ui().lockXCheck, Qt::LeftButton);
    QTest::mouseClick(test.ui().lockYCheck, Qt::LeftButton);
    const QByteArray first = *test.document->dataOfType({});
    const QByteArray second = savedAgain(first);
    const auto lockIn = [](const QByteArray &file, const char *key) {
        return rootOf(file).dictionaryForKey(documentkeys::cursorGuideData)->boolForKey(key);
    };
    EXPECT_TRUE(lockIn(first, "Lock X Value"));
    EXPECT_FALSE(lockIn(second, "Lock X Value"));
    EXPECT_TRUE(lockIn(second, "Lock Y Value"));
    expectSameFiles(savedAgain(second), second);
}
