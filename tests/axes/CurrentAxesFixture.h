#pragma once

#include "axes/AxesSurroundings.h"
#include "axes/CurrentAxes.h"
#include "platform/TextField.h"
#include "platform/UndoManager.h"
#include "support/RecordingSheets.h"

#include <gtest/gtest.h>

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QString>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

#include <string>
#include <vector>

/// What the axis settings told the others, in order.
using CallLog = std::vector<std::string>;

/// A document that counts its changes as the real one does.
class RecordingDocument final : public AxesDocument
{
public:
    explicit RecordingDocument(CallLog &log)
        : m_log(log)
    {
        QObject::connect(&m_undoManager, &UndoManager::changeCounted, &m_undoManager,
                         [this](ChangeKind kind) { count(kind); });
    }

    UndoManager &undoManager() override { return m_undoManager; }
    RecordingSheets &sheets() override { return m_sheets; }
    void updateChangeCount(ChangeKind kind) override
    {
        m_log.emplace_back("change");
        count(kind);
    }
    void anchorsMovedOn() override { m_log.emplace_back("movedOn"); }
    [[nodiscard]] bool isInAxisSettingMode() const override { return m_axisSettingMode; }
    void forceAxisSettingMode() override
    {
        m_log.emplace_back("forceAxisSettingMode");
        m_axisSettingMode = true;
    }

    void leaveAxisSettingMode() { m_axisSettingMode = false; }
    [[nodiscard]] int changeCount() const { return m_changeCount; }

private:
    void count(ChangeKind kind) { m_changeCount += kind == ChangeKind::Undone ? -1 : 1; }

    CallLog &m_log;
    UndoManager m_undoManager;
    RecordingSheets m_sheets;
    bool m_axisSettingMode = true;
    int m_changeCount = 0;
};

/// A view of a picture whose measures a test sets.
class PictureOfAnySize final : public AxesImageView
{
public:
    explicit PictureOfAnySize(CallLog &log)
        : m_log(log)
    {}

    [[nodiscard]] FloatSize imageSize() const override { return size; }
    [[nodiscard]] float imageRotation() const override { return rotation; }
    [[nodiscard]] float imageScale() const override { return scale; }
    [[nodiscard]] FloatSize scaledImageSize() const override
    {
        return {size.width * scale, size.height * scale};
    }
    void setNeedsDisplay() override { m_log.emplace_back("display"); }

    FloatSize size{500, 400};
    float rotation = 0;
    float scale = 1;

private:
    CallLog &m_log;
};

class SettablePrefs final : public AxesPrefs
{
public:
    [[nodiscard]] DeviceColor axisColor() const override { return color; }
    [[nodiscard]] float axisThick() const override { return thickness; }
    [[nodiscard]] float axisAnchorSize() const override { return anchorSize; }

    DeviceColor color{0, 1, 0, 1};
    float thickness = 2;
    float anchorSize = 10;
};

class RecordingInfoPanel final : public AxesInfoPanel
{
public:
    explicit RecordingInfoPanel(CallLog &log)
        : m_log(log)
    {}
    void updateAxisInfo() override { m_log.emplace_back("info"); }

private:
    CallLog &m_log;
};

/// The controls of the axis page, in a window.
class AxisControls
{
public:
    AxisControls();

    [[nodiscard]] CurrentAxesOutlets outlets() const { return m_outlets; }

    QWidget window;
    QRadioButton *counterClockwise = nullptr;
    QRadioButton *clockwise = nullptr;

private:
    template <typename Widget>
    Widget *add(Widget *widget)
    {
        window.layout()->addWidget(widget);
        return widget;
    }
    TextField *addField(const char *text);
    QComboBox *addPopup(const QStringList &items);

    QVBoxLayout m_layout{&window};
    CurrentAxesOutlets m_outlets;
};

inline AxisControls::AxisControls()
{
    m_outlets.axisTypePopup = addPopup(
        {QStringLiteral("parallel"), QStringLiteral("quadrangle"), QStringLiteral("polar")});
    m_outlets.resetDefault = add(new QPushButton);
    m_outlets.resetWhole = add(new QPushButton);
    m_outlets.minXTextField = addField("0");
    m_outlets.maxXTextField = addField("10");
    m_outlets.logXCheck = add(new QCheckBox);
    m_outlets.minYTextField = addField("0");
    m_outlets.maxYTextField = addField("20");
    m_outlets.logYCheck = add(new QCheckBox);
    m_outlets.thetaRangePopup = addPopup(
        {QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    counterClockwise = add(new QRadioButton(QStringLiteral("counter-clockwise")));
    clockwise = add(new QRadioButton(QStringLiteral("clockwise")));
    m_outlets.rotDirRadio = new QButtonGroup(&window);
    m_outlets.rotDirRadio->addButton(counterClockwise, 0);
    m_outlets.rotDirRadio->addButton(clockwise, 1);
    counterClockwise->setChecked(true);
    m_outlets.currentXLabel = add(new QLabel);
    m_outlets.currentYLabel = add(new QLabel);
    m_outlets.xAxisBox = add(new QGroupBox);
    m_outlets.yAxisBox = add(new QGroupBox);
    m_outlets.tAxisBox = add(new QGroupBox);
    m_outlets.xModeBox = add(new QGroupBox);
    m_outlets.autoXModePopUp =
        addPopup({QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third")});
    m_outlets.sortCheck = add(new QCheckBox);
}

inline TextField *AxisControls::addField(const char *text)
{
    auto *const field = add(new TextField);
    field->setText(QString::fromLatin1(text));
    return field;
}

inline QComboBox *AxisControls::addPopup(const QStringList &items)
{
    auto *const popup = add(new QComboBox);
    popup->addItems(items);
    return popup;
}

/// Axis settings among recording surroundings, worked with the keyboard.
class CurrentAxesFixture : public ::testing::Test
{
protected:
    void showWindow()
    {
        controls.window.show();
        controls.window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&controls.window));
    }

    /// Types `text` over what the field holds and presses Return.
    static void enter(TextField *field, const char *text)
    {
        field->selectAll();
        QTest::keyClicks(field, QString::fromLatin1(text));
        QTest::keyClick(field, Qt::Key_Return);
    }

    /// Chooses an item with the arrow keys.
    static void choose(QComboBox *popup, int index)
    {
        while (popup->currentIndex() < index)
            QTest::keyClick(popup, Qt::Key_Down);
        while (popup->currentIndex() > index)
            QTest::keyClick(popup, Qt::Key_Up);
    }

    [[nodiscard]] UndoManager &undoManager() { return document.undoManager(); }

    /// Clicks on the mark of a radio button with the mouse.
    static void click(QRadioButton *button)
    {
        QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2});
    }

    /// The end of the user's event.
    void endEvent() { undoManager().closeGroup(); }

    [[nodiscard]] Anchors anchors() const
    {
        return {axes.anchor1Point(), axes.anchor2Point(), axes.anchor3Point(), axes.anchor4Point()};
    }

    /// The explanations of all sheets that were asked for.
    [[nodiscard]] std::vector<QString> messages()
    {
        std::vector<QString> texts;
        for (const Sheet &sheet : document.sheets().presented())
            texts.push_back(sheet.informativeText);
        return texts;
    }

    CallLog log;
    AxisControls controls;
    RecordingDocument document{log};
    PictureOfAnySize view{log};
    SettablePrefs prefs;
    RecordingInfoPanel infoPanel{log};
    CurrentAxesOutlets outlets = controls.outlets();
    CurrentAxes axes{outlets, document, view, prefs, infoPanel};
};
