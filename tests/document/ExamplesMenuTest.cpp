#include "document/ExamplesMenu.h"

#include "capture/DataSeries.h"
#include "document/DocumentArchive.h"
#include "document/DocumentController.h"
#include "document/ExampleDocuments.h"
#include "document/SampleRoots.h"
#include "document/TestDocument.h"
#include "platform/Texts.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr char linear[] = "damped-oscillation.crvgrab";
constexpr char polar[] = "cardioid-polar.crvgrab";

/// A window without a picture, where these examples are installed.
class ExamplesMenuTest : public testing::Test
{
protected:
    void install(std::initializer_list<const char *> names)
    {
        for (const char *name : names) {
            QFile file(m_folder.filePath(QLatin1String(name)));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
        services.examples = m_folder.path();
    }

    void openWindow()
    {
        document = std::make_unique<MyDocument>(services);
        document->showWindow();
    }

    /// The Help menu, as it looks when it comes down.
    [[nodiscard]] ExamplesMenu &submenu() const
    {
        auto *menu = document->window().menuBar()->findChild<ExamplesMenu *>();
        Q_EMIT qobject_cast<QMenu *>(menu->parentWidget())->aboutToShow();
        return *menu;
    }

    [[nodiscard]] QPushButton *button() const
    {
        return document->window().findChild<QPushButton *>(QStringLiteral("emptyExampleButton"));
    }

    [[nodiscard]] QString path(const char *name) const
    {
        return m_folder.filePath(QLatin1String(name));
    }

    TestServices services;
    std::unique_ptr<MyDocument> document;

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ExamplesMenuTest, listsWhatIsInstalledInTheOrderOfTheExamples)
{
    install({polar, linear});
    openWindow();
    EXPECT_TRUE(submenu().menuAction()->isVisible());
    submenu().popup(QPoint());
    ASSERT_EQ(submenu().actions().size(), 2);
    EXPECT_EQ(submenu().actions()[0]->text(), texts::localized("document.example.linear"));
    EXPECT_EQ(submenu().actions()[1]->text(), texts::localized("document.example.polar"));
    submenu().close();
}

TEST_F(ExamplesMenuTest, isNotOfferedWhereNothingIsInstalled)
{
    openWindow();
    EXPECT_FALSE(submenu().menuAction()->isVisible());
    EXPECT_EQ(button(), nullptr);
}

TEST_F(ExamplesMenuTest, theKeyboardOpensACopyOfTheSecondExample)
{
    install({linear, polar});
    openWindow();
    submenu().popup(QPoint());
    ASSERT_TRUE(QTest::qWaitFor([this] { return submenu().isVisible(); }));
    QTest::keyClick(&submenu(), Qt::Key_Down);
    QTest::keyClick(&submenu(), Qt::Key_Down);
    QTest::keyClick(&submenu(), Qt::Key_Return);
    EXPECT_EQ(services.openedCopies, QStringList{path(polar)});
}

TEST_F(ExamplesMenuTest, theEmptyWindowOffersTheSameExamples)
{
    install({linear, polar});
    openWindow();
    ASSERT_NE(button(), nullptr);
    QTest::mouseClick(button(), Qt::LeftButton);
    auto *menu = qobject_cast<ExamplesMenu *>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QTest::mouseClick(menu, Qt::LeftButton, {},
                      menu->actionGeometry(menu->actions().first()).center());
    EXPECT_EQ(services.openedCopies, QStringList{path(linear)});
}

TEST_F(ExamplesMenuTest, theEmptyWindowOffersThemToTheKeyboard)
{
    install({polar});
    openWindow();
    ASSERT_NE(button(), nullptr);
    EXPECT_EQ(button()->focusPolicy() & Qt::TabFocus, Qt::TabFocus);
    button()->setFocus();
    QTest::keyClick(button(), Qt::Key_Space);
    QWidget *menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_EQ(services.openedCopies, QStringList{path(polar)});
}

TEST_F(ExamplesMenuTest, withAPictureTheButtonIsGone)
{
    install({polar});
    openWindow();
    QImage picture(400, 300, QImage::Format_RGB32);
    picture.fill(Qt::white);
    document->graphView().replaceImageWithImageRep(picture);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !button()->isVisible(); }));
}

namespace {

/// The application with its real windows, and a document to copy.
class OpenCopyTest : public testing::Test
{
protected:
    OpenCopyTest()
        : m_defaults(m_folder.filePath(QStringLiteral("settings.json")))
        , m_prefs(m_defaults)
        , controller(m_prefs, m_folder.filePath(QStringLiteral("state")))
    {
        m_prefs.awakeFromNib();
        content = documentarchive::archivedData(sampleroots::root(sampleroots::Kind::Parallel));
    }

    QString put(const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(QStringLiteral("example.crvgrab")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }

    template <class Sheet>
    [[nodiscard]] Sheet *sheet() const
    {
        Sheet *found = nullptr;
        const bool isUp = QTest::qWaitFor([&] {
            for (auto *box : document().window().template findChildren<Sheet *>())
                if (box->isVisible())
                    found = box;
            return found != nullptr;
        });
        return isUp ? found : nullptr;
    }

    [[nodiscard]] MyDocument &document(std::size_t index = 0) const
    {
        return *controller.documents().at(index);
    }

    void openCopy(const QString &path)
    {
        controller.openCopy(path);
        EXPECT_TRUE(QTest::qWaitFor([this] {
            return std::none_of(controller.documents().begin(), controller.documents().end(),
                                [](const auto &document) { return document->isReading(); });
        }));
    }

private:
    QTemporaryDir m_folder;
    UserDefaults m_defaults;
    CurvegrabPrefs m_prefs;

protected:
    DocumentController controller;
    QByteArray content;
};

} // namespace

TEST_F(OpenCopyTest, showsTheDocumentWithoutAName)
{
    openCopy(put(content));
    ASSERT_EQ(controller.documents().size(), 1U);
    EXPECT_TRUE(document().hasImage());
    EXPECT_TRUE(document().window().isVisible());
    EXPECT_TRUE(document().fileUrl().isEmpty());
    EXPECT_EQ(document().displayName(), texts::localized("document.title.untitled"));
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_EQ(controller.recentFiles().paths(), QStringList());
}

TEST_F(OpenCopyTest, theEmptyWindowTakesIt)
{
    controller.start({});
    openCopy(put(content));
    EXPECT_EQ(controller.documents().size(), 1U);
    EXPECT_TRUE(document().hasImage());
}

TEST_F(OpenCopyTest, aSecondCopyGetsAWindowOfItsOwn)
{
    openCopy(put(content));
    openCopy(put(content));
    ASSERT_EQ(controller.documents().size(), 2U);
    EXPECT_TRUE(document(1).hasImage());
}

TEST_F(OpenCopyTest, isReadInTheBackground)
{
    controller.openCopy(put(content));
    EXPECT_TRUE(document().isReading());
}

TEST_F(OpenCopyTest, doesNotTakeAWindowThatIsStillBeingReadInto)
{
    controller.openCopy(put(content));
    openCopy(put(content));
    EXPECT_EQ(controller.documents().size(), 2U);
}

TEST_F(OpenCopyTest, savingAsksWhereAndLeavesTheExampleAlone)
{
    const QString path = put(content);
    openCopy(path);
    document().saveDocument();
    auto *panel = sheet<QFileDialog>();
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->acceptMode(), QFileDialog::AcceptSave);
    panel->reject();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), content);
}

TEST_F(OpenCopyTest, aMissingFileIsRefused)
{
    controller.openCopy(QStringLiteral("/missing/example.crvgrab"));
    auto *message = sheet<QMessageBox>();
    ASSERT_NE(message, nullptr);
    EXPECT_TRUE(message->text().contains(QStringLiteral("example.crvgrab")));
    EXPECT_FALSE(document().hasImage());
}

TEST_F(OpenCopyTest, aDamagedFileIsNamed)
{
    controller.openCopy(put(content.left(content.size() / 2)));
    auto *message = sheet<QMessageBox>();
    ASSERT_NE(message, nullptr);
    EXPECT_TRUE(message->text().contains(QStringLiteral("example.crvgrab")));
}
