#include "document/TestDocument.h"

#include "axes/CurrentAxes.h"
#include "capture/CursorGuide.h"
#include "capture/DataSeries.h"
#include "capture/DataTableView.h"
#include "document/DocumentKeys.h"
#include "document/DocumentTypes.h"
#include "document/SampleRoots.h"

#include <QComboBox>
#include <QFile>
#include <QHeaderView>

#include <gtest/gtest.h>

#include <random>

using documentarchive::archivedData;
using sampleroots::Kind;

namespace {

const QString documentType = QLatin1String(documenttypes::curvegrabDocument);

QByteArray dataOf(const TestDocument &test) { return *test.document->dataOfType(documentType); }

/// A document whose window was set up from a document file's content.
class LoadedDocument
{
public:
    explicit LoadedDocument(const QByteArray &data)
        : document(services)
    {
        loaded = document.loadDataRepresentation(data, documentType);
        document.showWindow();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&document.window()));
        QCoreApplication::processEvents();
    }

    [[nodiscard]] QByteArray data() const { return *document.dataOfType(documentType); }

    TestServices services;
    MyDocument document;
    bool loaded = false;
};

void waitForPicture(const MyDocument &document)
{
    EXPECT_TRUE(QTest::qWaitFor([&document] { return document.hasImage(); }));
}

QString writtenPicture(const QTemporaryDir &folder, const char *name, QSize size = {500, 400})
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    const QString path = folder.filePath(QString::fromLatin1(name));
    EXPECT_TRUE(picture.save(path, "png"));
    return path;
}

ArchiveDictionary rootWithFrame(const char *frame, int drawerState = 1)
{
    ArchiveDictionary root = sampleroots::root(Kind::Parallel);
    root.set(documentkeys::mainWindowFrame, {std::string(frame)});
    root.set(documentkeys::dataTableViewState, sampleroots::integer(drawerState));
    return root;
}

} // namespace

class DocumentStorageOfAxes : public testing::TestWithParam<Kind>
{};

TEST_P(DocumentStorageOfAxes, savingIsAFixedPoint)
{
    const LoadedDocument first(archivedData(sampleroots::root(GetParam())));
    const QByteArray saved = first.data();
    const LoadedDocument second(saved);
    EXPECT_EQ(second.data(), saved);
}

INSTANTIATE_TEST_SUITE_P(EachKind, DocumentStorageOfAxes,
                         testing::Values(Kind::Parallel, Kind::Quadrangle, Kind::Polar));

TEST(DocumentStorage, savingAnEmptyDocumentIsAFixedPoint)
{
    const TestDocument empty{QSize(0, 0)};
    const QByteArray saved = dataOf(empty);
    const LoadedDocument reopened(saved);
    ASSERT_TRUE(reopened.loaded);
    EXPECT_EQ(reopened.data(), saved);
    EXPECT_FALSE(reopened.document.hasImage());
}

TEST(DocumentStorage, aDigitizedDocumentComesBackAsItWas)
{
    TestDocument test;
    test.digitize();
    test.click(120, 100);
    test.click(200, 150);
    test.ui().dataTableView->horizontalHeader()->resizeSection(1, 133);
    const QByteArray saved = dataOf(test);
    const LoadedDocument reopened(saved);
    EXPECT_EQ(reopened.data(), saved);
    EXPECT_FALSE(reopened.document.isInAxisSettingMode());
    EXPECT_EQ(reopened.document.dataSeries().validSeries().size(), 1U);
    EXPECT_FALSE(reopened.document.isDocumentEdited());
    EXPECT_FALSE(reopened.document.window().isWindowModified());
}

TEST(DocumentStorage, rootKeysStandInTheirOrder)
{
    const TestDocument test;
    const ArchiveDictionary root = test.document->rootDictionary();
    std::vector<std::string> keys;
    for (const auto &[key, value] : root.entries())
        keys.push_back(key);
    EXPECT_EQ(keys, (std::vector<std::string>{
                        "Main Window Frame", "Data Table Size", "Data Table View State",
                        "Action Tab Selection", "GraphImageView Data", "DataTableView Data",
                        "CurrentAxes Data", "CursorGuide Data", "DataSeries Data"}));
}

TEST(DocumentStorage, onlyDataOfTypeWrites)
{
    const TestDocument test;
    EXPECT_FALSE(test.document->dataRepresentationOfType(documentType).has_value());
    EXPECT_TRUE(test.document->dataOfType(QStringLiteral("any")).has_value());
}

TEST(DocumentStorage, loadingTouchesTheComponentsOnlyWithTheWindow)
{
    TestServices services;
    MyDocument document(services);
    ASSERT_TRUE(document.loadDataRepresentation(archivedData(sampleroots::root(Kind::Polar)),
                                                documentType));
    EXPECT_TRUE(document.loadedDataDict().has_value());
    EXPECT_EQ(document.currentAxes().axisType(), 0);
    document.showWindow();
    EXPECT_FALSE(document.loadedDataDict().has_value());
    EXPECT_EQ(document.currentAxes().axisType(), 2);
}

TEST(DocumentStorage, theOrderInTheFileDoesNotMatter)
{
    const ArchiveDictionary root = sampleroots::root(Kind::Parallel);
    ArchiveDictionary backwards;
    for (auto entry = root.entries().rbegin(); entry != root.entries().rend(); ++entry)
        backwards.set(entry->first, entry->second);
    EXPECT_EQ(LoadedDocument(archivedData(backwards)).data(),
              LoadedDocument(archivedData(root)).data());
}

TEST(DocumentStorage, absentPartsLeaveTheInterfaceFilesState)
{
    const LoadedDocument loaded(archivedData({}));
    ASSERT_TRUE(loaded.loaded);
    EXPECT_EQ(loaded.document.drawerOpenButtonState(), 0);
    EXPECT_EQ(loaded.document.window().ui().minXTextField->doubleValue(), 0);
    EXPECT_TRUE(loaded.document.isInAxisSettingMode());
    EXPECT_FALSE(loaded.document.isDocumentEdited());
    EXPECT_TRUE(loaded.services.sheets->presented().empty());
}

TEST(DocumentStorage, theDrawerComesBackAsItWas)
{
    const LoadedDocument closed(archivedData(rootWithFrame("{{100, 200}, {900, 700}}", 1)));
    EXPECT_EQ(closed.document.drawerOpenButtonState(), 1);
    EXPECT_FALSE(closed.document.window().ui().dataTableDrawer->isOpen());
    EXPECT_EQ(closed.services.showHideTable.text(), qtTrId("ShowTable"));
    ArchiveDictionary root = rootWithFrame("{{100, 200}, {900, 700}}", 0);
    root.set(documentkeys::dataTableSize, {std::string("{300, 500}")});
    const LoadedDocument open(archivedData(root));
    EXPECT_EQ(open.document.drawerOpenButtonState(), 0);
    EXPECT_TRUE(open.document.window().ui().dataTableDrawer->isOpen());
    EXPECT_EQ(open.document.window().ui().dataTableDrawer->contentWidth(), 300);
}

TEST(DocumentStorage, aStateThatTheDrawersButtonDoesNotKnowIsClosed)
{
    const LoadedDocument loaded(archivedData(rootWithFrame("{{100, 200}, {900, 700}}", 5)));
    EXPECT_EQ(loaded.document.drawerOpenButtonState(), 1);
    EXPECT_FALSE(loaded.document.window().ui().dataTableDrawer->isOpen());
    EXPECT_EQ(loaded.services.showHideTable.text(), qtTrId("ShowTable"));
}

TEST(DocumentStorage, aWindowThatIsHiddenOrClosedKeepsItsDrawer)
{
    TestDocument test{QSize(0, 0)};
    test.document->window().hide();
    EXPECT_EQ(test.document->rootDictionary().intForKey(documentkeys::dataTableViewState), 0);
    test.document->window().showMinimized();
    EXPECT_EQ(test.document->rootDictionary().intForKey(documentkeys::dataTableViewState), 0);
    test.markSaved();
    test.document->window().close();
    EXPECT_EQ(test.document->rootDictionary().intForKey(documentkeys::dataTableViewState), 0);
}

TEST(DocumentStorage, frameTextHasItsOriginAtTheBottomLeft)
{
    const LoadedDocument loaded(archivedData(rootWithFrame("{{150, 130}, {980, 710}}")));
    EXPECT_EQ(loaded.document.rootDictionary().stringForKey(documentkeys::mainWindowFrame),
              "{{150, 130}, {980, 710}}");
    const QRect screen = loaded.document.window().screen()->geometry();
    EXPECT_EQ(loaded.document.window().frameGeometry().bottom(), screen.bottom() - 130);
}

TEST(DocumentStorage, anEmptyFrameGivesTheSmallestWindow)
{
    const LoadedDocument loaded(archivedData(rootWithFrame("{{0, 0}, {0, 0}}")));
    EXPECT_EQ(loaded.document.window().size(), loaded.document.window().minimumSize());
}

TEST(DocumentStorage, aSmallFrameIsRaisedToTheSmallestWindow)
{
    const LoadedDocument loaded(archivedData(rootWithFrame("{{100, 100}, {50, 60}}")));
    EXPECT_EQ(loaded.document.window().size(), loaded.document.window().minimumSize());
}

TEST(DocumentStorage, aFrameOffTheScreenIsBroughtBack)
{
    const LoadedDocument loaded(archivedData(rootWithFrame("{{9000, -4000}, {980, 710}}")));
    const MyDocument &document = loaded.document;
    EXPECT_TRUE(document.window().screen()->availableGeometry().contains(
        document.window().frameGeometry()));
}

TEST(DocumentStorage, anOpenDrawerComesBackOnTheScreenToo)
{
    ArchiveDictionary root = rootWithFrame("{{0, 0}, {5000, 710}}", 0);
    root.set(documentkeys::dataTableSize, {std::string("{300, 500}")});
    const LoadedDocument loaded(archivedData(root));
    const DocumentWindow &window = loaded.document.window();
    EXPECT_TRUE(window.ui().dataTableDrawer->isOpen());
    EXPECT_EQ(window.ui().dataTableDrawer->contentWidth(), 300);
    EXPECT_TRUE(window.screen()->availableGeometry().contains(window.frameGeometry()));
}

TEST(DocumentStorage, aScrolledPictureComesBackScrolled)
{
    TestDocument test(QSize(1500, 1200));
    PictureScrollArea &area = *test.ui().pictureScrollArea;
    test.document->zoomToActualSize();
    area.scrollPoint({310, 220});
    ASSERT_EQ(area.visibleOrigin(), (FloatPoint{310, 220}));
    const LoadedDocument reopened(dataOf(test));
    EXPECT_EQ(reopened.document.window().ui().pictureScrollArea->visibleOrigin(),
              (FloatPoint{310, 220}));
    EXPECT_EQ(reopened.document.graphView().imageScale(), 1.0F);
}

TEST(DocumentStorage, theDigitizingTabRebuildsTheConverterTheAxisTabKeepsIt)
{
    ArchiveDictionary root = sampleroots::root(Kind::Parallel);
    const LoadedDocument digitizing(archivedData(root));
    EXPECT_NE(digitizing.document.cursorGuide().converter(),
              digitizing.document.dataSeries().converterOf(0));
    root.set(documentkeys::actionTabSelection, sampleroots::integer(0));
    const LoadedDocument axes(archivedData(root));
    EXPECT_NE(axes.document.cursorGuide().converter(), nullptr);
    EXPECT_EQ(axes.document.cursorGuide().converter(), axes.document.dataSeries().converterOf(0));
}

TEST(DocumentStorage, valuesComeBackWithTheDigitsThatTheFieldsShow)
{
    ArchiveDictionary root = sampleroots::root(Kind::Parallel);
    ArchiveDictionary axes = *root.dictionaryForKey(documentkeys::currentAxesData);
    axes.set("Max X Value", {1234567.25});
    root.set(documentkeys::currentAxesData, {axes});
    const LoadedDocument loaded(archivedData(root));
    EXPECT_EQ(loaded.document.rootDictionary()
                  .dictionaryForKey(documentkeys::currentAxesData)
                  ->doubleForKey("Max X Value"),
              1234570);
}

TEST(DocumentStorage, aDocumentMadeFromAPictureIsModifiedAndNamedAfterIt)
{
    const QTemporaryDir folder;
    const QString picture = writtenPicture(folder, "plot.v2.png");
    TestServices services;
    MyDocument document(services);
    document.setFileUrl(QUrl::fromLocalFile(picture));
    ASSERT_TRUE(document.loadDataRepresentation({}, QStringLiteral("png")));
    EXPECT_TRUE(document.openImageDirect());
    document.showWindow();
    waitForPicture(document);
    EXPECT_TRUE(document.isDocumentEdited());
    EXPECT_EQ(document.fileUrl().toLocalFile(), folder.filePath(QStringLiteral("plot.v2.crvgrab")));
    EXPECT_EQ(document.displayName(), QStringLiteral("plot.v2.crvgrab"));
    EXPECT_EQ(document.drawerOpenButtonState(), 0);
    EXPECT_FALSE(QFile::exists(document.fileUrl().toLocalFile()));
}

TEST(DocumentStorage, onlyTheExtensionTellsAPicture)
{
    const QTemporaryDir folder;
    TestServices services;
    MyDocument document(services);
    document.setFileUrl(QUrl::fromLocalFile(writtenPicture(folder, "plot.dat")));
    EXPECT_FALSE(document.loadDataRepresentation({}, QStringLiteral("dat")));
    EXPECT_FALSE(document.openImageDirect());
}

TEST(DocumentStorage, aTextNamedLikeAPictureGivesADocumentWithoutOneAndOneAlert)
{
    const QTemporaryDir folder;
    QFile text(folder.filePath(QStringLiteral("a.png")));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("no picture");
    text.close();
    TestServices services;
    MyDocument document(services);
    document.setFileUrl(QUrl::fromLocalFile(text.fileName()));
    ASSERT_TRUE(document.loadDataRepresentation({}, QStringLiteral("png")));
    document.showWindow();
    EXPECT_TRUE(QTest::qWaitFor([&services] { return services.sheets->presented().size() == 1; }));
    EXPECT_FALSE(document.hasImage());
    EXPECT_EQ(document.displayName(), QStringLiteral("a.crvgrab"));
    EXPECT_EQ(document.drawerOpenButtonState(), 0);
}

TEST(DocumentStorage, aDamagedPictureIsDamageAndTheRestIsKept)
{
    QByteArray data = archivedData(sampleroots::root(Kind::Parallel));
    const qsizetype pixels = data.indexOf("IDAT");
    data[pixels + 10] = static_cast<char>(~data.at(pixels + 10));
    TestServices services;
    MyDocument document(services);
    EXPECT_FALSE(document.loadDataRepresentation(data, documentType));
    ASSERT_EQ(document.refusedReading().damages.size(), 1U);
    EXPECT_EQ(document.refusedReading().damages[0].fault, documentarchive::Fault::DamagedPicture);
    document.loadRemains(document.refusedReading().root);
    document.showWindow();
    EXPECT_FALSE(document.hasImage());
    EXPECT_EQ(document.dataSeries().maxRows(), 5);
    EXPECT_TRUE(document.isDocumentEdited());
}

TEST(DocumentStorage, whatWasUndoneBeforeASaveAndThenReplacedIsAChange)
{
    TestDocument test;
    test.digitize();
    test.click(120, 100);
    test.markSaved();
    test.document->undo();
    test.click(200, 150);
    EXPECT_TRUE(test.document->isDocumentEdited());
}

namespace {

/// `data` with a few bits flipped anywhere.
QByteArray withFlippedBits(QByteArray data, std::mt19937 &random)
{
    const std::size_t flips = 1 + random() % 3;
    for (std::size_t i = 0; i < flips; ++i) {
        char &byte = data[static_cast<qsizetype>(random() % static_cast<std::size_t>(data.size()))];
        byte = static_cast<char>(byte ^ (1 << random() % 8));
    }
    return data;
}

} // namespace

TEST(DocumentStorage, whatIsReadFromDamagedBytesIsShownAndSavedForGood)
{
    std::mt19937 random(11);
    const QByteArray whole = archivedData(sampleroots::root(Kind::Quadrangle));
    int shown = 0;
    for (int i = 0; i < 120; ++i) {
        TestServices services;
        MyDocument document(services);
        if (!document.loadDataRepresentation(withFlippedBits(whole, random), documentType))
            continue;
        ++shown;
        document.showWindow();
        const QByteArray saved = *document.dataOfType(documentType);
        ASSERT_TRUE(document.loadDataRepresentation(saved, documentType)) << i;
        document.revertToLoaded({});
        const QByteArray savedAgain = *document.dataOfType(documentType);
        ASSERT_TRUE(document.loadDataRepresentation(savedAgain, documentType)) << i;
        document.revertToLoaded({});
        EXPECT_EQ(*document.dataOfType(documentType), savedAgain) << i;
    }
    EXPECT_GT(shown, 10);
}

TEST(DocumentStorage, aMaximisedWindowIsSavedWithTheFrameThatItComesBackTo)
{
    const TestDocument test;
    DocumentWindow &window = test.document->window();
    window.setGeometry(100, 150, 1200, 700);
    const auto frame = [&test] {
        return test.document->rootDictionary().stringForKey(documentkeys::mainWindowFrame);
    };
    const std::string before = frame();
    window.showMaximized();
    ASSERT_TRUE(QTest::qWaitFor([&window] { return window.isMaximized(); }));
    QCoreApplication::processEvents(); // where there is a desktop, it makes the window larger
    EXPECT_EQ(frame(), before);
}

TEST(DocumentStorage, anAbsentFrameLeavesTheWindowInItsDefaultPlace)
{
    const LoadedDocument absent(archivedData({}));
    const LoadedDocument stored(archivedData(rootWithFrame("{{0, 0}, {1, 1}}")));
    const QRect screen = absent.document.window().screen()->geometry();
    ASSERT_EQ(stored.document.window().frameGeometry().bottom(), screen.bottom());
    EXPECT_LT(absent.document.window().frameGeometry().bottom(), screen.bottom());
}

TEST(DocumentStorage, theGuideFindsTheStoredAxes)
{
    // The second series takes its X from the first, and where that has none, from the axes.
    ArchiveDictionary root = sampleroots::root(Kind::Polar);
    ArchiveDictionary axes = *root.dictionaryForKey(documentkeys::currentAxesData);
    axes.set("Min X Value", {12.5});
    root.set(documentkeys::currentAxesData, {axes});
    ArchiveDictionary guide = *root.dictionaryForKey(documentkeys::cursorGuideData);
    guide.set("Auto X Value Mode", sampleroots::integer(2));
    root.set(documentkeys::cursorGuideData, {guide});
    ArchiveDictionary series = sampleroots::series(sampleroots::converter(Kind::Polar), 0);
    series.set("Current Series", sampleroots::integer(1));
    root.set(documentkeys::dataSeriesData, {series});
    root.set(documentkeys::actionTabSelection, sampleroots::integer(0));
    const LoadedDocument loaded(archivedData(root));
    EXPECT_EQ(loaded.document.window().ui().currentXTextField->doubleValue(), 12.5);
}
