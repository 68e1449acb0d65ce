// Every window and panel in every language: no text is cut off, also from right to left, no key
// stands for two things, and no text is missing.
#include "document/ApplicationPanels.h"
#include "document/DocumentController.h"
#include "document/DocumentWindow.h"
#include "document/ExampleDocuments.h"
#include "document/MyDocument.h"
#include "document/StatusLine.h"
#include "helpbook/HelpBookViewer.h"
#include "helpbook/HelpWindow.h"
#include "imageview/ChoosePageController.h"
#include "imageview/GraphImageView.h"
#include "imageview/PageSource.h"
#include "infopanel/InfoPanelController.h"
#include "infopanel/InfoPanelWindow.h"
#include "languages/CatalogueFile.h"
#include "languages/ShownTexts.h"
#include "platform/Modules.h"
#include "platform/TextCatalogues.h"
#include "platform/Texts.h"
#include "platform/UserDefaults.h"
#include "platform/WindowPasswordSheets.h"
#include "platform/WindowSheets.h"
#include "prefs/CurvegrabPrefs.h"
#include "prefs/PrefsController.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace {

/// What a portable computer has room for beside a dock.
constexpr int portableWidth = 1100;
/// A window may need some rounds of events until everything has its place, milliseconds.
constexpr int patience = 500;

/// A document of many pages that take forever to paint.
class SlowPages final : public PageSource
{
public:
    QString name() const override { return QStringLiteral("paper.pdf"); }
    int numberOfPages() const override { return 4321; }
    void preview(int, double, std::function<void(const QImage &)>) override {}
    void getImageOfPage(int, float, std::function<void(const PictureReading &)>) override {}
};

/// A document with axes of one type.
class SampleDocument final : public InfoPanelDocument
{
public:
    explicit SampleDocument(int type)
        : m_type(type)
    {}

    [[nodiscard]] InfoFacts infoFacts() const override
    {
        const FloatPoint point{1234.5F, 1234.5F};
        return {FloatSize{12345, 12345},
                {m_type, {point, point, point, point}, 12345.5, 12345.5, 12345.5, -180},
                {9, 1234, 10, 1234}};
    }

private:
    int m_type;
};

class WindowTexts : public ::testing::TestWithParam<QString>
{
protected:
    WindowTexts()
        : m_catalogues(GetParam())
        , m_defaults(m_folder.filePath(QStringLiteral("settings.json")))
        , m_prefs(m_defaults)
    {
        m_prefs.awakeFromNib();
        makeWindow();
    }
    ~WindowTexts() override { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    void makeWindow()
    {
        m_documents.reset();
        m_documents = std::make_unique<DocumentController>(m_prefs, m_folder.path());
        m_documents->newDocument();
    }

    void makeWindowFromRightToLeft()
    {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        makeWindow();
    }

    [[nodiscard]] MyDocument &document() const { return *m_documents->documents().front(); }
    [[nodiscard]] QMainWindow &window() const { return document().window(); }
    [[nodiscard]] ApplicationPanels &panels() const { return m_documents->panels(); }

    void takePicture() const
    {
        QImage picture(300, 200, QImage::Format_RGB32);
        picture.fill(Qt::white);
        document().graphView().replaceImageWithImageRep(picture);
    }

    void command(const char *name) const
    {
        for (const QAction *menu : window().menuBar()->actions())
            for (QAction *action : menu->menu()->actions())
                if (action->objectName() == QLatin1String(name))
                    return action->trigger();
        ADD_FAILURE() << "no command " << name;
    }

    /// Shows each of the window's pages in turn, as small as the window becomes.
    template <class Look>
    void goThroughPages(const Look &look)
    {
        const auto lookAtSmallest = [this, &look] {
            window().resize(window().minimumSize());
            QApplication::processEvents();
            look();
        };
        lookAtSmallest();
        takePicture();
        for (const char *const kind :
             {"chooseParallelAxes", "chooseQuadrangleAxes", "choosePolarAxes"}) {
            SCOPED_TRACE(kind);
            command("showAxisSetting");
            command(kind);
            lookAtSmallest();
            command("showDigitizing");
            lookAtSmallest();
        }
    }

    void expectAllIsShown(const QWidget &root)
    {
        static_cast<void>(
            QTest::qWaitFor([&root] { return showntexts::cutOff(root).isEmpty(); }, patience));
        EXPECT_EQ(showntexts::cutOff(root).join(u'\n').toStdString(), "");
        EXPECT_EQ(showntexts::bareKeys(root, keys()).join(u'\n').toStdString(), "");
    }

    static const QStringList &keys()
    {
        static const QStringList all = [] {
            QStringList found;
            for (const CatalogueEntry &entry : cataloguefiles::entries(QStringLiteral("en")))
                if (entry.id != entry.source && entry.id != u"OK")
                    found += entry.id;
            return found;
        }();
        return all;
    }

    void showSheet(const Sheet &sheet)
    {
        WindowSheets sheets(&window());
        sheets.present(sheet, {});
        const auto *dialog = window().findChild<QDialog *>();
        ASSERT_NE(dialog, nullptr);
        expectAllIsShown(*dialog);
    }

    QTemporaryDir m_folder;
    const TextCatalogues m_catalogues;
    UserDefaults m_defaults;
    CurvegrabPrefs m_prefs;
    std::unique_ptr<DocumentController> m_documents;
};

std::string nameOf(const ::testing::TestParamInfo<QString> &info)
{
    return info.param.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Languages, WindowTexts, ::testing::ValuesIn(cataloguefiles::languages()),
                         nameOf);

} // namespace

TEST_P(WindowTexts, ofTheDocumentWindowFit)
{
    goThroughPages([this] { expectAllIsShown(window()); });
}

TEST_P(WindowTexts, ofTheDocumentWindowFitFromRightToLeft)
{
    makeWindowFromRightToLeft();
    goThroughPages([this] { expectAllIsShown(window()); });
}

TEST_P(WindowTexts, fromRightToLeftLeaveTheTableAsItIs)
{
    makeWindowFromRightToLeft();
    const auto *table = window().findChild<QWidget *>(QStringLiteral("dataTableView"));
    const auto *drawer = window().findChild<QWidget *>(QStringLiteral("dataTableDrawer"));
    const auto *controls = window().findChild<QWidget *>(QStringLiteral("actionSelectionTab"));
    const auto *column = window().findChild<QWidget *>(QStringLiteral("mainColumn"));
    EXPECT_EQ(controls->layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(table->layoutDirection(), Qt::LeftToRight);
    QApplication::processEvents();
    EXPECT_GE(drawer->x(), column->geometry().right());
}

TEST_P(WindowTexts, leaveTheDocumentWindowSmallEnoughForAPortableComputer)
{
    EXPECT_LE(window().minimumWidth(), portableWidth);
}

TEST_P(WindowTexts, ofTheStatusLineHaveRoomBesideTheValues)
{
    takePicture();
    window().resize(portableWidth, window().height());
    StatusLine &status = document().window().status();
    const QString number = QStringLiteral("1234");
    status.setPicturePosition(texts::localized("document.status.picture").arg(number, number));
    status.setGraphPosition(
        texts::localized("document.status.graph").arg(QStringLiteral("-1234.5"), "-1234.5"));
    status.setSeries(texts::localized("document.status.series").arg(QStringLiteral("10"), number));
    QApplication::processEvents();
    const auto *hint = window().findChild<QLabel *>(QStringLiteral("statusHint"));
    for (const QString &key : keys()) {
        if (!key.startsWith(QStringLiteral("axes.hint.")) &&
            !key.startsWith(QStringLiteral("document.status.")))
            continue;
        const QString text = texts::localized(key.toUtf8().constData());
        EXPECT_LE(hint->fontMetrics().horizontalAdvance(text), hint->width()) << qPrintable(text);
    }
}

TEST_P(WindowTexts, ofTheDocumentWindowHaveKeysOfTheirOwn)
{
    goThroughPages([this] {
        EXPECT_EQ(showntexts::keysOfTwo(window().menuBar(), window()).join(u'\n').toStdString(),
                  "");
    });
}

TEST_P(WindowTexts, ofTheMenusHaveKeysOfTheirOwn)
{
    const auto expectKeysOfOne = [this] {
        for (const QAction *menu : window().menuBar()->actions()) {
            EXPECT_EQ(showntexts::keysOfTwo(*menu->menu()).join(u'\n').toStdString(), "")
                << qPrintable(menu->text());
            EXPECT_EQ(showntexts::withoutKey(*menu->menu()).join(u'\n').toStdString(), "")
                << qPrintable(menu->text());
        }
    };
    expectKeysOfOne();
    command("showHideDataTable");
    expectKeysOfOne();
}

TEST_P(WindowTexts, ofTheExamplesHaveKeysOfTheirOwn)
{
    QMenu menu;
    for (const exampledocuments::Example &example : exampledocuments::all())
        menu.addAction(texts::localized(example.text));
    EXPECT_EQ(showntexts::keysOfTwo(menu).join(u'\n').toStdString(), "");
    EXPECT_EQ(showntexts::withoutKey(menu).join(u'\n').toStdString(), "");
}

TEST_P(WindowTexts, ofThePreferencesFit)
{
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QGuiApplication::setLayoutDirection(direction);
        panels().prefsController().editPreferences();
        QDialog &preferences = panels().prefsController().prefsWindow();
        preferences.resize(preferences.minimumSizeHint());
        expectAllIsShown(preferences);
        EXPECT_EQ(showntexts::keysOfTwo(nullptr, preferences).join(u'\n').toStdString(), "");
        preferences.reject();
    }
}

TEST_P(WindowTexts, ofThePlotFit)
{
    // Without the module the window has the longest text.
    const QString modulesOfProgram = modules::folder();
    modules::setFolder(QStringLiteral("/usr/lib/x86_64-linux-gnu/curvegrab/none"));
    makeWindow();
    modules::setFolder(modulesOfProgram);
    command("showResult");
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto plot = std::find_if(windows.begin(), windows.end(), [](const QWidget *widget) {
        return widget->objectName() == QStringLiteral("plotWindow");
    });
    ASSERT_NE(plot, windows.end());
    EXPECT_NE((*plot)->findChild<QLabel *>(QStringLiteral("plotMissing")), nullptr);
    expectAllIsShown(**plot);
}

TEST_P(WindowTexts, ofTheInfoPanelFit)
{
    QWidget &panel = panels().infoPanelController().infoPanel();
    panels().infoPanelController().setIsVisible(true);
    expectAllIsShown(panel);
    for (int type = 0; type < 3; ++type) {
        SCOPED_TRACE(type);
        const SampleDocument shown(type);
        panels().infoPanelController().updateAllInfoWith(&shown);
        expectAllIsShown(panel);
    }
}

TEST_P(WindowTexts, ofThePageChooserFit)
{
    SlowPages pages;
    ChoosePageController chooser;
    chooser.chooseAPageOf(pages, 1, &window(), [](const PictureReading &) {});
    QDialog &panel = *chooser.choosePagePanel();
    panel.resize(panel.minimumSizeHint());
    expectAllIsShown(panel);
    EXPECT_EQ(showntexts::keysOfTwo(nullptr, panel).join(u'\n').toStdString(), "");
    chooser.cancelOpeing();
}

TEST_P(WindowTexts, ofTheHelpFit)
{
    HelpBookViewer viewer(m_folder.filePath(QStringLiteral("help.json")), {}, GetParam());
    viewer.openHelpAnchor({}, QString::fromLatin1(helpbook::bookName));
    QTest::keyClick(viewer.window(), Qt::Key_F, Qt::ControlModifier);
    expectAllIsShown(*viewer.window());
}

TEST_P(WindowTexts, ofSheetsFit)
{
    showSheet({texts::localized("ErrorOccurred"),
               texts::localized("CantMakeConverter"),
               texts::localized("OK"),
               {}});
    showSheet({texts::localized("Trimming"), texts::localized("TrimmingMsg"),
               texts::localized("Trim"), texts::localized("Cancel")});
    showSheet({texts::localized("document.close.title").arg(QStringLiteral("chart.crvgrab")),
               texts::localized("document.close.text"), texts::localized("document.close.save"),
               texts::localized("Cancel"), texts::localized("document.close.dontSave")});
    showSheet({texts::localized("document.recovery.title"),
               texts::localized("document.recovery.text").arg(QStringLiteral("chart.crvgrab")),
               texts::localized("document.recovery.bringBack"),
               texts::localized("document.recovery.later"),
               texts::localized("document.recovery.discard")});
}

TEST_P(WindowTexts, ofTheQuestionForAPasswordFit)
{
    WindowSheets sheets(&window());
    WindowPasswordSheets passwords(sheets);
    passwords.askForPassword(
        {texts::localized("imageview.pdf.password-title").arg(QStringLiteral("paper.pdf")),
         texts::localized("imageview.pdf.password-was-wrong")},
        [](const std::optional<QString> &) {});
    const auto *dialog = window().findChild<QDialog *>();
    ASSERT_NE(dialog, nullptr);
    expectAllIsShown(*dialog);
    EXPECT_EQ(showntexts::keysOfTwo(nullptr, *dialog).join(u'\n').toStdString(), "");
}
