#include "infopanel/InfoPanelController.h"
#include "infopanel/InfoPanelWindow.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QRegularExpression>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <string>
#include <vector>

namespace {

class RecordedPrefs final : public InfoPanelPrefs
{
public:
    void saveInfoPanelState(bool visible) override { saved.push_back(visible); }

    std::vector<bool> saved;
};

class SampleDocument final : public InfoPanelDocument
{
public:
    [[nodiscard]] InfoFacts infoFacts() const override { return facts; }

    InfoFacts facts{
        FloatSize{640, 480},
        {0,
         {FloatPoint{1, 2}, FloatPoint{30.25F, 2}, FloatPoint{30, 40}, FloatPoint{1, 40.75F}},
         29.25,
         38.75,
         17.5,
         -12.34},
        {2, 7, 3, 12}};
};

class InfoPanel : public testing::Test
{
protected:
    InfoPanel() { m_controller.awakeFromNib(); }

    [[nodiscard]] std::string text(const std::string &name)
    {
        const auto *label =
            m_controller.infoPanel().findChild<QLabel *>(QString::fromStdString(name));
        return label == nullptr ? "no " + name : label->text().toStdString();
    }

    [[nodiscard]] std::string texts(const std::string &name, int first, int last)
    {
        std::string all;
        for (int i = first; i <= last; ++i)
            all += text(name + std::to_string(i)) + (i < last ? "|" : "");
        return all;
    }

    [[nodiscard]] bool isVisible() const { return m_controller.isVisible(); }

    /// Closes the panel as the desktop does for a click on the close box.
    void clickCloseBox()
    {
        QCloseEvent event;
        QSpontaneKeyEvent::setSpontaneous(&event);
        QCoreApplication::instance()->notify(&m_controller.infoPanel(), &event);
        if (event.isAccepted())
            m_controller.infoPanel().hide();
    }

    RecordedPrefs m_prefs;
    QAction m_item;
    QTemporaryDir m_folder;
    QString m_statePath = m_folder.filePath(QStringLiteral("infopanel.json"));
    InfoPanelController m_controller{m_prefs, m_item, m_statePath};
    SampleDocument m_document;
};

} // namespace

TEST_F(InfoPanel, isTheApplicationsWhileItLives)
{
    EXPECT_EQ(gInfoPanelController, &m_controller);
    {
        InfoPanelController other(m_prefs, m_item, m_statePath);
        other.awakeFromNib();
        EXPECT_EQ(gInfoPanelController, &other);
    }
    EXPECT_EQ(gInfoPanelController, nullptr);
}

TEST_F(InfoPanel, staysTheApplicationsWhenOneThatNeverWasIsGone)
{
    static_cast<void>(InfoPanelController(m_prefs, m_item, m_statePath));
    EXPECT_EQ(gInfoPanelController, &m_controller);
}

TEST_F(InfoPanel, startsHiddenWithTheItemThatShowsIt)
{
    EXPECT_FALSE(isVisible());
    EXPECT_EQ(m_item.text().toStdString(), "Show I&nfo Panel");
    EXPECT_TRUE(m_prefs.saved.empty());
}

TEST_F(InfoPanel, saysAtFirstThatThereIsNoDocument)
{
    EXPECT_EQ(text("imageInfo0"), "No document");
    EXPECT_EQ(texts("axisInfo", 0, 6), "-----|-----|-----|-----|-----|-----|-----");
    EXPECT_EQ(texts("dataInfo", 0, 3), "-----|-----|-----|-----");
}

TEST_F(InfoPanel, hasBoldTitlesInTheSmallFont)
{
    for (const char *name : {"imageTitle", "axisTitle", "dataTitle"}) {
        const auto *title = m_controller.infoPanel().findChild<QLabel *>(QString::fromLatin1(name));
        ASSERT_NE(title, nullptr);
        EXPECT_TRUE(title->font().bold());
        EXPECT_EQ(title->font().pointSizeF(), m_controller.infoPanel().font().pointSizeF());
    }
}

TEST_F(InfoPanel, floatsWithoutTakingTheKeyboard)
{
    m_controller.setIsVisible(true);
    const Qt::WindowFlags flags = m_controller.infoPanel().windowFlags();
    EXPECT_EQ(flags & Qt::WindowType_Mask, Qt::Tool);
    EXPECT_TRUE(flags.testFlag(Qt::WindowDoesNotAcceptFocus));
    EXPECT_TRUE(m_controller.infoPanel().testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(InfoPanel, doesNotKeepTheProgramRunning)
{
    EXPECT_FALSE(m_controller.infoPanel().testAttribute(Qt::WA_QuitOnClose));
}

TEST_F(InfoPanel, theItemShowsAndHidesAndTheSettingFollowsAtOnce)
{
    m_item.trigger();
    EXPECT_TRUE(isVisible());
    EXPECT_EQ(m_item.text().toStdString(), "Hide I&nfo Panel");
    EXPECT_EQ(m_prefs.saved, std::vector<bool>({true}));
    m_item.trigger();
    EXPECT_FALSE(isVisible());
    EXPECT_EQ(m_item.text().toStdString(), "Show I&nfo Panel");
    EXPECT_EQ(m_prefs.saved, std::vector<bool>({true, false}));
}

TEST_F(InfoPanel, aPanelShownAtLaunchNamesTheItemWithoutSaving)
{
    m_controller.setIsVisible(true);
    m_controller.infoVisibleChanged();
    EXPECT_EQ(m_item.text().toStdString(), "Hide I&nfo Panel");
    EXPECT_TRUE(m_prefs.saved.empty());
}

TEST_F(InfoPanel, theCloseBoxSavesAndNamesTheItem)
{
    m_item.trigger();
    clickCloseBox();
    EXPECT_FALSE(isVisible());
    EXPECT_TRUE(m_controller.userClosedThePanel());
    EXPECT_EQ(m_prefs.saved, std::vector<bool>({true, false}));
    EXPECT_EQ(m_item.text().toStdString(), "Show I&nfo Panel");
}

TEST_F(InfoPanel, comesBackByItsItemAfterTheCloseBox)
{
    m_item.trigger();
    clickCloseBox();
    m_item.trigger();
    EXPECT_TRUE(isVisible());
    EXPECT_FALSE(m_controller.userClosedThePanel());
    EXPECT_EQ(m_prefs.saved.back(), true);
}

// The program closes all windows when it ends; the panel is to be there again at the next start.
TEST_F(InfoPanel, aCloseByTheProgramLeavesTheSetting)
{
    m_item.trigger();
    m_controller.infoPanel().close();
    EXPECT_FALSE(isVisible());
    EXPECT_EQ(m_prefs.saved, std::vector<bool>({true}));
}

TEST_F(InfoPanel, showsTheWholeDocument)
{
    m_controller.updateAllInfoWith(&m_document);
    EXPECT_EQ(text("imageInfo0"), "640 × 480");
    EXPECT_EQ(texts("axisInfo", 0, 6),
              "Parallel|{ 1.0, 2.0 }|{ 30.2, 2.0 }|{ 30.0, 40.0 }|{ 1.0, 40.8 }|29.2|38.8");
    EXPECT_EQ(texts("dataInfo", 0, 3), "3|7|3 series|12 rows");
}

TEST_F(InfoPanel, updatesOnlyTheSectionThatIsToldTo)
{
    m_controller.updateImageInfoWith(&m_document);
    EXPECT_EQ(text("imageInfo0"), "640 × 480");
    EXPECT_EQ(text("axisInfo0"), "-----");
    EXPECT_EQ(text("dataInfo0"), "-----");
    m_controller.updateAllInfoWith(nullptr);
    m_controller.updateAxisInfoWith(&m_document);
    EXPECT_EQ(text("imageInfo0"), "No document");
    EXPECT_EQ(text("axisInfo0"), "Parallel");
    EXPECT_EQ(text("dataInfo0"), "-----");
    m_controller.updateAllInfoWith(nullptr);
    m_controller.updateDataInfoWith(&m_document);
    EXPECT_EQ(text("imageInfo0"), "No document");
    EXPECT_EQ(text("axisInfo0"), "-----");
    EXPECT_EQ(text("dataInfo0"), "3");
}

TEST_F(InfoPanel, eachSectionGoesBackToNothingByItself)
{
    m_controller.updateAllInfoWith(&m_document);
    m_controller.updateImageInfoWith(nullptr);
    EXPECT_EQ(text("imageInfo0"), "No document");
    EXPECT_EQ(text("axisInfo0"), "Parallel");
    m_controller.updateAxisInfoWith(nullptr);
    EXPECT_EQ(text("axisInfo0"), "-----");
    EXPECT_EQ(text("dataInfo0"), "3");
    m_controller.updateDataInfoWith(nullptr);
    EXPECT_EQ(text("dataInfo0"), "-----");
}

TEST_F(InfoPanel, isNotMadeBeforeItIsNeeded)
{
    m_controller.updateAllInfoWith(&m_document);
    m_controller.setIsVisible(false);
    for (const QWidget *window : QApplication::topLevelWidgets())
        EXPECT_EQ(qobject_cast<const InfoPanelWindow *>(window), nullptr);
}

TEST_F(InfoPanel, shownForTheFirstTimeItTellsWhatItWasHandedBefore)
{
    m_document.facts.axes.axisType = 2;
    m_controller.updateAllInfoWith(&m_document);
    m_controller.updateAxisInfoWith(nullptr);
    m_controller.setIsVisible(true);
    EXPECT_EQ(text("imageInfo0"), "640 × 480");
    EXPECT_EQ(text("axisInfo0"), "-----");
    EXPECT_EQ(text("dataInfo0"), "3");
}

TEST_F(InfoPanel, keepsItsCaptionsWithoutADocument)
{
    m_document.facts.axes.axisType = 2;
    m_controller.updateAllInfoWith(&m_document);
    const std::string polar = texts("axisLabel", 0, 6);
    m_controller.updateAllInfoWith(nullptr);
    EXPECT_EQ(texts("axisLabel", 0, 6), polar);
    EXPECT_EQ(texts("axisInfo", 0, 6), "-----|-----|-----|-----|-----|-----|-----");
}

TEST_F(InfoPanel, aDocumentWithoutPictureHasAxesAndDataOfNoInterest)
{
    m_controller.updateAllInfoWith(&m_document);
    const std::string captions = texts("axisLabel", 0, 6);
    m_document.facts.imageSize.reset();
    m_controller.updateAllInfoWith(&m_document);
    EXPECT_EQ(text("imageInfo0"), "No picture yet");
    EXPECT_EQ(texts("axisInfo", 0, 6), "-----|-----|-----|-----|-----|-----|-----");
    EXPECT_EQ(texts("dataInfo", 0, 3), "-----|-----|-----|-----");
    EXPECT_EQ(texts("axisLabel", 0, 6), captions);
}

TEST_F(InfoPanel, captionsFollowTheKindOfAxesThereAndBack)
{
    m_controller.updateAllInfoWith(&m_document);
    const std::string corners = texts("axisLabel", 0, 6);
    m_document.facts.axes.axisType = 2;
    m_controller.updateAxisInfoWith(&m_document);
    EXPECT_EQ(texts("axisLabel", 0, 6),
              "Kind:|Centre:|End of the radius:|Radius:|Angle of the radius:|-----:|-----:");
    EXPECT_EQ(texts("axisInfo", 0, 6), "Polar|{ 1.0, 2.0 }|{ 30.2, 2.0 }|17.5|-12.3°|-----|-----");
    m_document.facts.axes.axisType = 0;
    m_controller.updateAxisInfoWith(&m_document);
    EXPECT_EQ(texts("axisLabel", 0, 6), corners);
    EXPECT_EQ(corners,
              "Kind:|Anchor 1 (lower left):|Anchor 2 (lower right):|Anchor 3 (upper right):|"
              "Anchor 4 (upper left):|Length of side 1–2:|Length of side 1–4:");
}

TEST_F(InfoPanel, usesTheSingularForNoneAndOne)
{
    for (const int count : {0, 1}) {
        m_document.facts.data.validSeries = count;
        m_document.facts.data.maxRows = count;
        m_controller.updateDataInfoWith(&m_document);
        EXPECT_EQ(texts("dataInfo", 2, 3),
                  std::to_string(count) + " series|" + std::to_string(count) + " row");
    }
    m_document.facts.data.maxRows = 2;
    m_controller.updateDataInfoWith(&m_document);
    EXPECT_EQ(text("dataInfo3"), "2 rows");
}

TEST_F(InfoPanel, doesNotTwitchWhenCaptionsAndNumbersGetShorter)
{
    m_controller.setIsVisible(true);
    m_document.facts.axes.anchors.fill({-123456.75F, -123456.75F});
    m_controller.updateAllInfoWith(&m_document);
    QCoreApplication::processEvents();
    const QSize wide = m_controller.infoPanel().sizeHint();
    m_document.facts.axes.anchors.fill({1, 1});
    m_document.facts.axes.axisType = 2;
    m_controller.updateAllInfoWith(&m_document);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_controller.infoPanel().sizeHint(), wide);
}

TEST_F(InfoPanel, opensWhollyOnTheScreen)
{
    m_controller.setIsVisible(true);
    const QWidget &panel = m_controller.infoPanel();
    EXPECT_TRUE(panel.screen()->availableGeometry().contains(panel.frameGeometry()));
}

TEST_F(InfoPanel, staysWhereTheUserMovedIt)
{
    m_item.trigger();
    m_controller.infoPanel().move(40, 50);
    m_item.trigger();
    m_item.trigger();
    EXPECT_EQ(m_controller.infoPanel().pos(), QPoint(40, 50));
}

TEST_F(InfoPanel, noBareKeyShows)
{
    m_controller.updateAllInfoWith(&m_document);
    QStringList shown{m_controller.infoPanel().windowTitle()};
    for (const QLabel *label : m_controller.infoPanel().findChildren<QLabel *>())
        shown << label->text();
    const QRegularExpression key(
        QStringLiteral("infopanel\\.|^[A-Z][a-z]+[A-Z0-9][A-Za-z0-9]*(Label|Format)?$"));
    EXPECT_TRUE(shown.filter(key).isEmpty()) << shown.filter(key).join(u' ').toStdString();
}

TEST_F(InfoPanel, standsWhereItWasLeftInTheLastSession)
{
    m_controller.setIsVisible(true);
    m_controller.infoPanel().move(123, 87);
    m_controller.setIsVisible(false);
    InfoPanelController next(m_prefs, m_item, m_statePath);
    next.setIsVisible(true);
    EXPECT_EQ(next.infoPanel().pos(), QPoint(123, 87));
}

TEST_F(InfoPanel, staysOnTheScreenThoughItIsLargerThanWhereItWasLeft)
{
    const QRect screen = m_controller.infoPanel().screen()->availableGeometry();
    m_controller.setIsVisible(true);
    m_controller.infoPanel().move(screen.bottomRight() - QPoint(40, 40));
    m_controller.setIsVisible(false);
    InfoPanelController next(m_prefs, m_item, m_statePath);
    next.setIsVisible(true);
    EXPECT_TRUE(screen.contains(next.infoPanel().geometry()));
}

TEST_F(InfoPanel, remembersItsPlaceThoughTheProgramEndsWhileItIsShown)
{
    auto last = std::make_unique<InfoPanelController>(m_prefs, m_item, m_statePath);
    last->setIsVisible(true);
    last->infoPanel().move(123, 87);
    last.reset();
    InfoPanelController next(m_prefs, m_item, m_statePath);
    next.setIsVisible(true);
    EXPECT_EQ(next.infoPanel().pos(), QPoint(123, 87));
}
