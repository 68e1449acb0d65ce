#include "axes/CurrentAxes.h"
#include "document/TestDocument.h"
#include "infopanel/InfoPanelController.h"
#include "infopanel/InfoPanelWindow.h"

#include <gtest/gtest.h>

#include <QLabel>

// What a document has to do with the panels that all documents share.

namespace {

class NoPrefs final : public InfoPanelPrefs
{
public:
    void saveInfoPanelState(bool) override {}
};

/// A document beside the application's info panel.
class InfoPanelBesideDocument : public testing::Test
{
protected:
    InfoPanelBesideDocument() { m_controller.awakeFromNib(); }

    [[nodiscard]] std::string text(const char *name)
    {
        return m_controller.infoPanel()
            .findChild<QLabel *>(QString::fromLatin1(name))
            ->text()
            .toStdString();
    }

    static void activate(MyDocument &document)
    {
        document.window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&document.window()));
    }

private:
    NoPrefs m_prefs;
    QAction m_item;
    QTemporaryDir m_folder;
    InfoPanelController m_controller{m_prefs, m_item,
                                     m_folder.filePath(QStringLiteral("infopanel.json"))};
};

void postPrefsChanged(TestDocument &test)
{
    test.services.notifications.post(curvegrabPrefsChangedNotification);
}

} // namespace

TEST(DocumentPanels, thePreferencesCommandReachesTheApplication)
{
    TestDocument test;
    test.command("editPreferences");
    EXPECT_EQ(test.services.preferencesEdits, 1);
    EXPECT_EQ(test.action("editPreferences")->shortcut(), QKeySequence(QStringLiteral("Ctrl+,")));
    EXPECT_TRUE(test.action("editPreferences")->isEnabled());
}

TEST(DocumentPanels, helpCommandsOpenTheirPlaces)
{
    TestDocument test;
    test.command("showAxisHelp");
    test.command("showDigitizeHelp");
    test.command("showHelp");
    EXPECT_EQ(test.services.help.opened.join(u' ').toStdString(),
              "Curvegrab X Help#CV_Help_AxisSettings Curvegrab X Help#CV_Help_Digitizing "
              "Curvegrab X Help#");
}

TEST(DocumentPanels, helpIsThereWithoutAPictureAndInBothModes)
{
    TestDocument test{QSize(0, 0)};
    EXPECT_TRUE(test.action("showAxisHelp")->isEnabled());
    EXPECT_TRUE(test.action("showDigitizeHelp")->isEnabled());
    EXPECT_TRUE(test.action("editPreferences")->isEnabled());
}

TEST(DocumentPanels, changedPreferencesLayOutTheAnchorsAnew)
{
    TestDocument test;
    const FloatPoint before = test.document->currentAxes().anchor1Point();
    const QPoint beside(static_cast<int>(before.x) - 6, static_cast<int>(before.y) - 6);
    test.services.prefs().setAxisAnchorSize(15.0F);
    postPrefsChanged(test);
    test.drag(beside, beside - QPoint(30, 20));
    EXPECT_NE(test.document->currentAxes().anchor1Point(), before);
}

TEST(DocumentPanels, changedPreferencesShowInTheMarkerPreview)
{
    TestDocument test;
    test.digitize();
    PrefsDictionary style = test.services.prefs().plotPrefsForSeries(0);
    test.services.prefs().setSize(12.0F, style);
    test.services.prefs().setPlotPrefs(style, 0);
    EXPECT_NE(test.ui().markerPreview->markerSize(), 12.0F);
    postPrefsChanged(test);
    EXPECT_EQ(test.ui().markerPreview->markerSize(), 12.0F);
}

TEST(DocumentPanels, changedPreferencesRestartTheTimerOfTheKeyDocument)
{
    TestDocument test;
    test.document->window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&test.document->window()));
    ASSERT_TRUE(test.document->graphView().mouseCheckTimer().isActive());
    test.services.prefs().setGuideInterval(0.2F);
    postPrefsChanged(test);
    EXPECT_EQ(test.document->graphView().mouseCheckTimer().interval(), 200);
    EXPECT_TRUE(test.document->graphView().mouseCheckTimer().isActive());
}

TEST(DocumentPanels, otherNotificationsAreNoneOfTheDocumentsBusiness)
{
    TestDocument test;
    test.digitize();
    PrefsDictionary style = test.services.prefs().plotPrefsForSeries(0);
    test.services.prefs().setSize(12.0F, style);
    test.services.prefs().setPlotPrefs(style, 0);
    test.services.notifications.post(QStringLiteral("Something Else"));
    EXPECT_NE(test.ui().markerPreview->markerSize(), 12.0F);
}

TEST(DocumentPanels, everyOpenDocumentTakesChangedPreferences)
{
    TestDocument first;
    MyDocument second(first.services);
    second.showWindow();
    second.window().ui().actionSelectionTab->selectTab(1);
    first.digitize();
    PrefsDictionary style = first.services.prefs().plotPrefsForSeries(0);
    first.services.prefs().setSize(12.0F, style);
    first.services.prefs().setPlotPrefs(style, 0);
    postPrefsChanged(first);
    EXPECT_EQ(first.ui().markerPreview->markerSize(), 12.0F);
    EXPECT_EQ(second.window().ui().markerPreview->markerSize(), 12.0F);
}

TEST(DocumentPanels, preferencesMayChangeAfterADocumentIsGone)
{
    TestDocument test;
    auto other = std::make_unique<MyDocument>(test.services);
    other->showWindow();
    other->window().close();
    postPrefsChanged(test);
    other.reset();
    postPrefsChanged(test);
    EXPECT_EQ(test.services.closedDocuments, 1);
}

TEST_F(InfoPanelBesideDocument, showsTheDocumentThatBecomesKey)
{
    TestDocument first({500, 400});
    TestDocument second({600, 500});
    activate(*first.document);
    EXPECT_EQ(text("imageInfo0"), "500 × 400");
    activate(*second.document);
    EXPECT_EQ(text("imageInfo0"), "600 × 500");
    EXPECT_EQ(text("axisInfo1"), "{ 120.0, 100.0 }");
    activate(*first.document);
    EXPECT_EQ(text("imageInfo0"), "500 × 400");
    EXPECT_EQ(text("axisInfo1"), "{ 100.0, 80.0 }");
}

TEST_F(InfoPanelBesideDocument, showsNoDocumentOnceAWindowIsClosed)
{
    TestDocument test;
    activate(*test.document);
    const std::string caption = text("axisLabel1");
    test.markSaved();
    test.document->window().close();
    EXPECT_EQ(text("imageInfo0"), "No document");
    EXPECT_EQ(text("axisInfo0"), "-----");
    EXPECT_EQ(text("dataInfo3"), "-----");
    EXPECT_EQ(text("axisLabel1"), caption);
}

TEST_F(InfoPanelBesideDocument, showsTheNextDocumentOnceItBecomesKey)
{
    TestDocument closed({500, 400});
    TestDocument next({600, 500});
    activate(*closed.document);
    closed.markSaved();
    closed.document->window().close();
    EXPECT_EQ(text("imageInfo0"), "No document");
    activate(*next.document);
    EXPECT_EQ(text("imageInfo0"), "600 × 500");
    EXPECT_EQ(text("axisInfo1"), "{ 120.0, 100.0 }");
    EXPECT_EQ(text("dataInfo0"), "1");
}

TEST_F(InfoPanelBesideDocument, showsThatADocumentHasNoPicture)
{
    const TestDocument test{QSize(0, 0)};
    activate(*test.document);
    EXPECT_EQ(text("imageInfo0"), "No picture yet");
    EXPECT_EQ(text("axisInfo1"), "-----");
}

TEST_F(InfoPanelBesideDocument, showsEverythingAsSoonAsThereIsAPicture)
{
    TestDocument test{QSize(0, 0)};
    activate(*test.document);
    QImage picture(500, 400, QImage::Format_RGB32);
    picture.fill(Qt::white);
    test.document->graphView().replaceImageWithImageRep(picture);
    EXPECT_EQ(text("imageInfo0"), "500 × 400");
    EXPECT_EQ(text("axisInfo1"), "{ 100.0, 80.0 }");
    EXPECT_EQ(text("dataInfo0"), "1");
    EXPECT_EQ(text("dataInfo3"), "0 row");
}

TEST_F(InfoPanelBesideDocument, showsWhatIsLoadedIntoTheWindowInUse)
{
    const TestDocument drawn;
    const TestDocument test{QSize(0, 0)};
    activate(*test.document);
    test.document->loadRemains(drawn.document->rootDictionary());
    test.document->showLoaded();
    EXPECT_EQ(text("imageInfo0"), "500 × 400");
}

TEST_F(InfoPanelBesideDocument, followsTheTurningOfThePicture)
{
    TestDocument test({500, 400});
    activate(*test.document);
    test.command("imageRotateCw");
    EXPECT_EQ(text("imageInfo0"), "400 × 500");
}

TEST_F(InfoPanelBesideDocument, followsTheKindOfAxes)
{
    TestDocument test;
    activate(*test.document);
    test.command("choosePolarAxes");
    EXPECT_EQ(text("axisInfo0"), "Polar");
    EXPECT_EQ(text("axisLabel1"), "Centre:");
    test.command("chooseQuadrangleAxes");
    EXPECT_EQ(text("axisInfo0"), "Quadrangle");
    EXPECT_EQ(text("axisLabel1"), "Anchor 1 (lower left):");
    test.command("chooseParallelAxes");
    EXPECT_EQ(text("axisInfo0"), "Parallel");
}

TEST_F(InfoPanelBesideDocument, followsAnAnchorDrag)
{
    TestDocument test;
    activate(*test.document);
    test.drag({100, 80}, {60, 40});
    EXPECT_EQ(text("axisInfo1"), "{ 60.0, 40.0 }");
}

TEST_F(InfoPanelBesideDocument, showsPicturePointsAtEveryMagnification)
{
    TestDocument test;
    activate(*test.document);
    test.command("zoomOut");
    EXPECT_EQ(text("axisInfo1"), "{ 100.0, 80.0 }");
    EXPECT_EQ(text("axisInfo5"), "300.0");
}

TEST_F(InfoPanelBesideDocument, followsTheData)
{
    TestDocument test;
    activate(*test.document);
    test.digitize();
    test.click(200, 200);
    EXPECT_EQ(text("dataInfo1"), "1");
    EXPECT_EQ(text("dataInfo2"), "1 series");
    EXPECT_EQ(text("dataInfo3"), "1 row");
    test.click(220, 200);
    EXPECT_EQ(text("dataInfo3"), "2 rows");
    test.command("moveToNextSeries");
    EXPECT_EQ(text("dataInfo0"), "2");
    EXPECT_EQ(text("dataInfo1"), "0");
    EXPECT_EQ(text("dataInfo3"), "2 rows");
}
