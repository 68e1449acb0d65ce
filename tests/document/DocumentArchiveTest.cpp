#include "document/DocumentArchive.h"

#include "capture/SeriesArchive.h"
#include "document/DocumentContents.h"
#include "document/DocumentKeys.h"
#include "document/SampleRoots.h"

#include <QCborArray>
#include <QCborMap>
#include <QCborStreamWriter>
#include <QCborValue>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>

using documentarchive::archivedData;
using documentarchive::Fault;
using documentarchive::Reading;
using documentarchive::unarchived;
using sampleroots::Kind;

namespace {

QByteArray cbor(const std::function<void(QCborStreamWriter &)> &write)
{
    QByteArray bytes;
    QCborStreamWriter writer(&bytes);
    write(writer);
    return bytes;
}

/// A root map whose only entry, of an unknown key, is what `write` writes.
QByteArray rootWith(const std::function<void(QCborStreamWriter &)> &write)
{
    return cbor([&write](QCborStreamWriter &writer) {
        writer.startMap(1);
        writer.append(QStringLiteral("Key"));
        write(writer);
        writer.endMap();
    });
}

bool has(const Reading &reading, Fault fault)
{
    return std::any_of(reading.damages.begin(), reading.damages.end(),
                       [fault](const auto &damage) { return damage.fault == fault; });
}

ArchiveDictionary dictionaryWith(const char *key, ArchiveValue value)
{
    ArchiveDictionary dictionary;
    dictionary.set(key, std::move(value));
    return dictionary;
}

SeriesStore seriesIn(const Reading &reading)
{
    const ArchiveDictionary *data = reading.root.dictionaryForKey(documentkeys::dataSeriesData);
    return data == nullptr ? SeriesStore() : seriesarchive::storeFromData(*data);
}

std::shared_ptr<const Archivable> pictureIn(const Reading &reading)
{
    const ArchiveDictionary *data = reading.root.dictionaryForKey(documentkeys::graphImageViewData);
    return data == nullptr ? nullptr : data->objectForKey("Original Image");
}

} // namespace

class DocumentArchiveOfAxes : public testing::TestWithParam<Kind>
{};

TEST_P(DocumentArchiveOfAxes, readingAndWritingAgainGivesTheSameBytes)
{
    const QByteArray bytes = archivedData(sampleroots::root(GetParam()));
    const Reading reading = unarchived(bytes);
    EXPECT_TRUE(reading.isWhole());
    EXPECT_EQ(archivedData(reading.root), bytes);
}

TEST_P(DocumentArchiveOfAxes, aConverterOfTheGuideAndASeriesIsOneObjectAgain)
{
    const Reading reading = unarchived(archivedData(sampleroots::root(GetParam())));
    const auto guide = reading.root.dictionaryForKey(documentkeys::cursorGuideData)
                           ->objectForKey("Current Converter");
    ASSERT_NE(guide, nullptr);
    EXPECT_EQ(guide, seriesIn(reading).converterOf(0));
    EXPECT_NE(guide, seriesIn(reading).converterOf(1));
}

INSTANTIATE_TEST_SUITE_P(EachKind, DocumentArchiveOfAxes,
                         testing::Values(Kind::Parallel, Kind::Quadrangle, Kind::Polar));

TEST(DocumentArchive, keysAreWrittenInTheOrderOfTheDictionary)
{
    ArchiveDictionary root;
    root.set("b", {std::int64_t{1}});
    root.set("a", {std::int64_t{2}});
    EXPECT_EQ(archivedData(root).toHex(), "a2616201616102");
}

TEST(DocumentArchive, numbersKeepTheirTypes)
{
    ArchiveDictionary root;
    root.set("i", {std::int64_t{-500}});
    root.set("f", {1.5F});
    root.set("d", {1.5});
    root.set("t", {true});
    EXPECT_EQ(archivedData(root).toHex(), "a461693901f36166fa3fc000006164fb3ff80000000000006174f5");
    const Reading reading = unarchived(archivedData(root));
    EXPECT_TRUE(std::holds_alternative<float>(reading.root.find("f")->value));
    EXPECT_TRUE(std::holds_alternative<double>(reading.root.find("d")->value));
    EXPECT_EQ(reading.root.intForKey("i"), -500);
    EXPECT_TRUE(std::holds_alternative<bool>(reading.root.find("t")->value));
}

TEST(DocumentArchive, aPointIsTaggedWithItsClassAndItsValuesInOrder)
{
    const auto point = std::make_shared<ArchivedCopy<ZKVector>>(ZKVector::vectorWithX(1.0, -0.0));
    const QByteArray bytes =
        archivedData(dictionaryWith("p", {std::shared_ptr<const Archivable>(point)}));
    EXPECT_EQ(bytes.toHex(),
              "a16170d81b84685a4b566563746f7202fb3ff0000000000000fb8000000000000000");
}

TEST(DocumentArchive, anObjectAtTwoPlacesIsWrittenOnceAndReferredTo)
{
    const std::shared_ptr<const Archivable> base = std::make_shared<ZKConvCoordinate>();
    const QByteArray bytes =
        archivedData(dictionaryWith("c", {ArchiveArray{{base}, {base}, {base}}}));
    EXPECT_EQ(bytes.toHex(),
              "a1616383d81cd81b83705a4b436f6e76436f6f7264696e6174652000d81d00d81d00");
    const Reading reading = unarchived(bytes);
    const ArchiveArray *array = reading.root.arrayForKey("c");
    ASSERT_TRUE(array != nullptr && array->size() == 3);
    using Object = std::shared_ptr<const Archivable>;
    EXPECT_EQ(std::get<Object>((*array)[0].value), std::get<Object>((*array)[2].value));
}

TEST(DocumentArchive, convertersOfTheSameBitsAreWrittenOnce)
{
    using Object = std::shared_ptr<const Archivable>;
    const auto reading = documentarchive::unarchived(archivedData(
        dictionaryWith("c", {ArchiveArray{{Object(std::make_shared<ZKConvCoordinate>())},
                                          {Object(std::make_shared<ZKConvCoordinate>())}}})));
    const ArchiveArray *array = reading.root.arrayForKey("c");
    ASSERT_TRUE(array != nullptr && array->size() == 2);
    EXPECT_EQ(std::get<Object>((*array)[0].value), std::get<Object>((*array)[1].value));
}

TEST(DocumentArchive, thePictureIsThePngBytesThemselves)
{
    const QByteArray bytes = archivedData(sampleroots::root(Kind::Parallel));
    const QCborValue picture = QCborValue::fromCbor(bytes)
                                   .toMap()
                                   .value(QStringLiteral("GraphImageView Data"))
                                   .toMap()
                                   .value(QStringLiteral("Original Image"));
    ASSERT_EQ(picture.tag(), QCborTag(27));
    EXPECT_EQ(picture.taggedValue().toArray().at(0).toString(), QStringLiteral("NSImage"));
    EXPECT_TRUE(picture.taggedValue().toArray().at(1).toByteArray().startsWith("\x89PNG"));
}

TEST(DocumentArchive, indefiniteLengthsAreRead)
{
    const Reading reading =
        unarchived(QByteArray::fromHex("bf 6161 9f 01 7f 6178 6179 ff ff 6162 bf ff ff"));
    EXPECT_TRUE(reading.isWhole());
    const ArchiveArray *array = reading.root.arrayForKey("a");
    ASSERT_TRUE(array != nullptr && array->size() == 2);
    EXPECT_EQ(std::get<std::string>((*array)[1].value), "xy");
    EXPECT_NE(reading.root.dictionaryForKey("b"), nullptr);
}

TEST(DocumentArchive, aPictureInPiecesIsPutTogether)
{
    const Reading reading =
        unarchived(QByteArray::fromHex("a1 6170 d81b 82 674e53496d616765 5f 420102 4103 ff"));
    ASSERT_TRUE(reading.isWhole());
    SequentialEncoder coder;
    reading.root.objectForKey("p")->encodeWithCoder(coder);
    EXPECT_EQ(std::get<ArchivedBytes>(coder.items().at(0))->size(), 3U);
}

TEST(DocumentArchive, realNumbersOfObjectsMayBeShortened)
{
    const Reading reading =
        unarchived(QByteArray::fromHex("a1 6170 d81b 84 685a4b566563746f72 02 f93c00 fa3fc00000"));
    ASSERT_TRUE(reading.isWhole());
    const auto point =
        std::dynamic_pointer_cast<const ArchivedCopy<ZKVector>>(reading.root.objectForKey("p"));
    ASSERT_NE(point, nullptr);
    EXPECT_EQ(point->value().X(), 1.0);
    EXPECT_EQ(point->value().Y(), 1.5);
}

TEST(DocumentArchive, unknownKeysAndTagsAreNoDamage)
{
    const Reading reading = unarchived(QByteArray::fromHex("d9d9f7 a2 6161 c1 05 6162 4101"));
    EXPECT_TRUE(reading.isWhole());
    EXPECT_EQ(reading.root.intForKey("a"), 5);
}

TEST(DocumentArchive, whatIsNoMapIsNoDocument)
{
    EXPECT_TRUE(has(unarchived(QByteArrayLiteral("hello")), Fault::NoDocument));
    EXPECT_TRUE(has(unarchived(QByteArrayLiteral("\x89PNG\r\n\x1a\n")), Fault::NoDocument));
    EXPECT_TRUE(has(unarchived({}), Fault::EndsEarly));
}

TEST(DocumentArchive, aFileCutAnywhereIsDamaged)
{
    const QByteArray bytes = archivedData(sampleroots::root(Kind::Quadrangle));
    for (int length = 0; length < bytes.size(); ++length)
        ASSERT_FALSE(unarchived(bytes.left(length)).isWhole()) << length;
}

TEST(DocumentArchive, aCutFileKeepsThePartsBeforeTheCut)
{
    const QByteArray bytes = archivedData(sampleroots::root(Kind::Parallel, 1000));
    const Reading reading = unarchived(bytes.left(bytes.size() - 2000));
    EXPECT_TRUE(has(reading, Fault::EndsEarly));
    EXPECT_NE(pictureIn(reading), nullptr);
    EXPECT_GT(seriesIn(reading).pointCount(0), 900);
    EXPECT_LT(seriesIn(reading).pointCount(0), 1000);
}

TEST(DocumentArchive, partsBehindAFaultAreFoundByTheirKeys)
{
    QByteArray bytes = archivedData(sampleroots::root(Kind::Parallel));
    const qsizetype text = bytes.indexOf("{{100");
    bytes[text - 2] = '\x7b'; // a text of an impossible length
    const Reading reading = unarchived(bytes);
    EXPECT_FALSE(reading.isWhole());
    EXPECT_NE(pictureIn(reading), nullptr);
    EXPECT_EQ(seriesIn(reading).pointCount(0), 5);
}

TEST(DocumentArchive, bytesBehindTheEndAreDamageThatLosesNothing)
{
    const Reading reading = unarchived(archivedData(sampleroots::root(Kind::Polar)) + "x");
    EXPECT_EQ(reading.damages.size(), 1U);
    EXPECT_TRUE(has(reading, Fault::TrailingBytes));
    EXPECT_EQ(seriesIn(reading).pointCount(0), 5);
}

TEST(DocumentArchive, ofARepeatedKeyTheFirstCounts)
{
    const Reading reading = unarchived(QByteArray::fromHex("a2 6161 01 6161 02"));
    EXPECT_TRUE(has(reading, Fault::RepeatedKey));
    EXPECT_EQ(reading.root.intForKey("a"), 1);
}

TEST(DocumentArchive, aKeyThatIsNoTextEndsTheReading)
{
    EXPECT_TRUE(has(unarchived(QByteArray::fromHex("a1 01 02")), Fault::Unreadable));
}

TEST(DocumentArchive, textThatIsNoUtf8IsUnreadable)
{
    EXPECT_FALSE(unarchived(QByteArray::fromHex("a1 6161 62c328")).isWhole());
}

TEST(DocumentArchive, lengthsBeyondTheFileAskForNoMemory)
{
    for (const char *value :
         {"9b7fffffffffffffff", "bb7fffffffffffffff", "7b7fffffffffffffff", "5b7fffffffffffffff",
          "9affffffff", "9bffffffffffffffff", "d81b82674e53496d6167655b7ffffffffffffff0"}) {
        const Reading reading =
            unarchived(QByteArray::fromHex("a16161") + QByteArray::fromHex(value));
        EXPECT_FALSE(reading.isWhole()) << value;
    }
}

TEST(DocumentArchive, deepNestingIsRefused)
{
    const QByteArray arrays = rootWith([](QCborStreamWriter &writer) {
        for (int i = 0; i < 1000; ++i)
            writer.startArray(1);
        writer.append(1);
        for (int i = 0; i < 1000; ++i)
            writer.endArray();
    });
    EXPECT_TRUE(has(unarchived(arrays), Fault::TooLarge));
    const QByteArray tags = rootWith([](QCborStreamWriter &writer) {
        for (int i = 0; i < 100'000; ++i)
            writer.append(QCborTag(28));
        writer.append(1);
    });
    EXPECT_TRUE(has(unarchived(tags), Fault::TooLarge));
}

TEST(DocumentArchive, moreValuesThanAnyDocumentHasAreRefused)
{
    const QByteArray bytes =
        QByteArray::fromHex("a1 6161 9a 00300000") + QByteArray(0x300000, '\x01');
    EXPECT_TRUE(has(unarchived(bytes), Fault::TooLarge));
}

TEST(DocumentArchive, moreKeysThanAnyDocumentHasAreRefused)
{
    ArchiveDictionary root;
    for (int i = 0; i < 300; ++i)
        root.set(std::to_string(i), sampleroots::integer(i));
    EXPECT_TRUE(has(unarchived(archivedData(root)), Fault::TooLarge));
}

TEST(DocumentArchive, integersBeyondSixtyFourBitsAreDamage)
{
    EXPECT_TRUE(
        has(unarchived(QByteArray::fromHex("a1 6161 1bffffffffffffffff")), Fault::WrongKind));
    EXPECT_TRUE(
        has(unarchived(QByteArray::fromHex("a1 6161 3bffffffffffffffff")), Fault::WrongKind));
    const Reading least = unarchived(QByteArray::fromHex("a1 6161 3b7fffffffffffffff"));
    EXPECT_EQ(std::get<std::int64_t>(least.root.find("a")->value),
              std::numeric_limits<std::int64_t>::min());
}

TEST(DocumentArchive, objectsWithWrongValuesAreLeftOut)
{
    for (const char *object :
         {"d81b 83 685a4b566563746f72 01 fb3ff0000000000000",      // one value
          "d81b 82 685a4b566563746f72 02",                         // no values
          "d81b 84 685a4b566563746f72 02 01 02",                   // integers
          "d81b 85 685a4b566563746f72 02 f93c00 f93c00 00",        // one more
          "d81b 83 705a4b436f6e76436f6f7264696e617465 00 00",      // type code
          "d81b 84 705a4b436f6e76436f6f7264696e617465 20 01 1880", // flag of 128
          "d81b 81 674e53496d616765",                              // no bytes
          "d81b 81 6158",                                          // class
          "d81b 80", "d81b 01", "d81b 82 01 02", "d81b 82 685a4b566563746f72 a0",
          "d81b 82 685a4b566563746f72 83 01 02 03"}) {
        const Reading reading =
            unarchived(QByteArray::fromHex("a2 6161") + QByteArray::fromHex(object) +
                       QByteArray::fromHex("6162 05"));
        EXPECT_TRUE(has(reading, Fault::BadObject)) << object;
        EXPECT_EQ(reading.root.objectForKey("a"), nullptr) << object;
        EXPECT_EQ(reading.root.intForKey("b"), 5) << object;
    }
}

TEST(DocumentArchive, referencesToNothingAreDamage)
{
    for (const char *value :
         {"d81d 00", "d81d 20", "d81d 6161", "82 d81c 01 d81d 00", "d81c d81d 00"})
        EXPECT_TRUE(has(unarchived(QByteArray::fromHex("a1 6161") + QByteArray::fromHex(value)),
                        Fault::BadReference))
            << value;
}

TEST(DocumentArchive, valuesOfTheWrongKindAreDamageOfTheirPart)
{
    ArchiveDictionary root = sampleroots::root(Kind::Parallel);
    root.set(documentkeys::mainWindowFrame, {1.0});
    root.set(documentkeys::dataSeriesData,
             {dictionaryWith("Data Series", {ArchiveArray{sampleroots::integer(1)}})});
    const Reading reading = unarchived(archivedData(root));
    ASSERT_EQ(reading.damages.size(), 2U);
    EXPECT_EQ(reading.damages[0].part, documentkeys::mainWindowFrame);
    EXPECT_EQ(reading.damages[1].part, documentkeys::dataSeriesData);
}

TEST(DocumentArchive, missingKeysAreNoDamage)
{
    EXPECT_TRUE(unarchived(archivedData({})).isWhole());
    ArchiveDictionary root;
    root.set(documentkeys::currentAxesData, {ArchiveDictionary()});
    EXPECT_TRUE(unarchived(archivedData(root)).isWhole());
}

TEST(DocumentArchive, onlyAPictureOrAPointIsWorthOffering)
{
    EXPECT_FALSE(documentarchive::offersSomething({}));
    ArchiveDictionary root;
    root.set(documentkeys::dataSeriesData,
             {sampleroots::series(sampleroots::converter(Kind::Parallel), 0)});
    EXPECT_FALSE(documentarchive::offersSomething(root));
    root.set(documentkeys::dataSeriesData,
             {sampleroots::series(sampleroots::converter(Kind::Parallel), 1)});
    EXPECT_TRUE(documentarchive::offersSomething(root));
    ArchiveDictionary view;
    view.set("Original Image", {sampleroots::picture()});
    EXPECT_TRUE(
        documentarchive::offersSomething(dictionaryWith(documentkeys::graphImageViewData, {view})));
}

TEST(DocumentArchive, damageIsToldOncePerKindAndPart)
{
    const QString text =
        documentarchive::description({{Fault::BadObject, documentkeys::dataSeriesData, 10},
                                      {Fault::WrongKind, documentkeys::dataSeriesData, 20},
                                      {Fault::EndsEarly, documentkeys::dataSeriesData, 30}});
    EXPECT_EQ(text, QStringLiteral("Something in the file (the data series) is damaged.\n"
                                   "The file ends too early: something is missing at its end."));
}

TEST(DocumentArchive, aDroppedPictureLeavesTheRestOfTheView)
{
    ArchiveDictionary root = sampleroots::root(Kind::Polar);
    ASSERT_NE(documentarchive::pictureIn(root), nullptr);
    documentarchive::dropPicture(root);
    EXPECT_EQ(documentarchive::pictureIn(root), nullptr);
    const ArchiveDictionary *view = root.dictionaryForKey(documentkeys::graphImageViewData);
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->intForKey("Rotation Angle"), 90);
    ArchiveDictionary none;
    documentarchive::dropPicture(none);
    EXPECT_TRUE(none.entries().empty());
}

TEST(DocumentContents, givesTheNumbersOfADocumentWithoutItsWindow)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("chart.crvgrab")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(archivedData(sampleroots::root(Kind::Polar)));
    file.close();
    const ReadDocumentFile read = readDocumentFile(file.fileName());
    ASSERT_TRUE(read.contents);
    EXPECT_EQ(read.error, QString());
    EXPECT_EQ(read.contents->series.pointCount(0), 5);
    EXPECT_EQ(read.contents->axes.type, 2);
    EXPECT_EQ(read.contents->axes.maxY, 1000);
    EXPECT_TRUE(read.contents->axes.logY);
    EXPECT_EQ(read.contents->axes.anchors.anchor3, (FloatPoint{110, 90}));
    ASSERT_TRUE(read.contents->picture);
    EXPECT_EQ(read.contents->picture->size, (FloatSize{40, 30}));
    EXPECT_EQ(read.contents->picture->rotation, 90);
}

TEST(DocumentArchive, withoutPixelsEverythingElseIsThere)
{
    const QByteArray bytes = archivedData(sampleroots::root(Kind::Quadrangle));
    const Reading whole = unarchived(bytes);
    const Reading numbers = unarchived(bytes, documentarchive::Pixels::LeftOut);
    EXPECT_TRUE(numbers.isWhole());
    const auto head = std::dynamic_pointer_cast<const ArchivedPicture>(pictureIn(numbers));
    ASSERT_NE(head, nullptr);
    EXPECT_EQ(head->size(), (FloatSize{40, 30}));
    EXPECT_FALSE(head->picture());
    for (const char *part : {documentkeys::currentAxesData, documentkeys::cursorGuideData,
                             documentkeys::dataSeriesData}) {
        ArchiveDictionary one;
        one.set(part, *whole.root.find(part));
        ArchiveDictionary other;
        other.set(part, *numbers.root.find(part));
        EXPECT_EQ(archivedData(one), archivedData(other)) << part;
    }
}

TEST(DocumentArchive, withoutPixelsADamagedFileIsDamagedInTheSameWay)
{
    const QByteArray bytes = archivedData(sampleroots::root(Kind::Parallel));
    for (qsizetype length = 0; length < bytes.size(); length += 3) {
        const QByteArray cut = bytes.first(length);
        EXPECT_EQ(unarchived(cut, documentarchive::Pixels::LeftOut).damages,
                  unarchived(cut).damages)
            << length;
    }
}

TEST(DocumentArchive, aPictureInPiecesLosesItsPixelsToo)
{
    const auto picture =
        std::dynamic_pointer_cast<const ArchivedPicture>(sampleroots::picture({40, 30}));
    const auto *begin = reinterpret_cast<const char *>(picture->bytes()->data());
    const QByteArray png(begin, static_cast<qsizetype>(picture->bytes()->size()));
    QByteArray bytes;
    QCborStreamWriter writer(&bytes);
    writer.startMap(1);
    writer.append(QLatin1String(documentkeys::graphImageViewData));
    writer.startMap(1);
    writer.append(QLatin1String("Original Image"));
    writer.append(QCborTag(27));
    writer.startArray(2);
    writer.append(QLatin1String("NSImage"));
    // Of unknown length: two pieces and an end.
    QByteArray pieces("\x5f");
    for (const QByteArray &piece : {png.first(50), png.mid(50)})
        pieces += QCborValue(piece).toCbor();
    bytes += pieces + "\xff";
    const Reading reading = unarchived(bytes, documentarchive::Pixels::LeftOut);
    const auto head = std::dynamic_pointer_cast<const ArchivedPicture>(pictureIn(reading));
    ASSERT_NE(head, nullptr);
    EXPECT_EQ(head->size(), (FloatSize{40, 30}));
    EXPECT_FALSE(head->picture());
}

TEST(DocumentContents, aMissingFileIsAnErrorWithoutContents)
{
    const ReadDocumentFile read = readDocumentFile(QStringLiteral("/nowhere/chart.crvgrab"));
    EXPECT_FALSE(read.contents);
    EXPECT_FALSE(read.error.isEmpty());
}
