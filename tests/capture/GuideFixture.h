#pragma once

#include "capture/CursorGuide.h"

#include "conversion/ZKConvCoordinateAffine.h"
#include "conversion/ZKConvCoordinateKeystone.h"
#include "conversion/ZKConvCoordinatePolar.h"
#include "platform/Clipboard.h"
#include "platform/Sheets.h"
#include "platform/TextField.h"
#include "platform/Texts.h"
#include "platform/UndoManager.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QImage>
#include <QPainter>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

using GuideConverter = std::shared_ptr<const ZKConvCoordinate>;

class EditedDocument final : public CaptureDocument
{
public:
    [[nodiscard]] UndoManager &undoManager() override { return m_undo; }
    [[nodiscard]] Sheets &sheets() override { return m_sheets; }
    [[nodiscard]] Clipboard &clipboard() override { return m_clipboard; }
    void updateChangeCount(ChangeKind kind) override
    {
        EXPECT_EQ(kind, ChangeKind::Done);
        ++edits;
    }

    int edits = 0;

private:
    class NoSheets final : public Sheets
    {
        void present(const Sheet & /*sheet*/, std::function<void(SheetAnswer)> /*ended*/) override
        {
            ADD_FAILURE() << "the guide shows no sheets";
        }
    };
    class NoClipboard final : public Clipboard
    {
        void setText(const QString & /*text*/) override
        {
            ADD_FAILURE() << "the guide copies nothing";
        }
        void setTable(const QString & /*text*/) override
        {
            ADD_FAILURE() << "the guide copies nothing";
        }
    };

    UndoManager m_undo;
    NoSheets m_sheets;
    NoClipboard m_clipboard;
};

class GuidedView final : public CaptureImageView
{
public:
    [[nodiscard]] FloatSize scaledImageSize() const override { return size; }
    void setNeedsDisplay() override { ++redraws; }

    FloatSize size{400, 300};
    int redraws = 0;
};

class GuidedSeries final : public GuideSeries
{
public:
    [[nodiscard]] int currentSeries() const override { return series; }
    [[nodiscard]] int currentIndex() const override { return points; }
    [[nodiscard]] double xValueForSeries1() const override { return firstX; }

    int series = 0;
    int points = 0;
    double firstX = 0;
};

class GuidePrefs final : public CapturePrefs
{
public:
    [[nodiscard]] bool copyWithTitle() const override { return false; }
    [[nodiscard]] bool saveWithTitle() const override { return false; }
    [[nodiscard]] PlotStyle plotPrefsForSeries(int /*series*/) const override { return {}; }
    [[nodiscard]] DeviceColor guideColor() const override { return {1, 0, 0, 1}; }
    [[nodiscard]] float guideThick() const override { return guideThickness; }
    [[nodiscard]] float axisThick() const override { return axisThickness; }

    float guideThickness = 2;
    float axisThickness = 6;
};

class ShownLockMenu final : public LockMenu
{
public:
    void setLockXTitle(const QString &title) override { x = title; }
    void setLockYTitle(const QString &title) override { y = title; }

    QString x;
    QString y;
};

/// The digitizing page in a window of its own.
class CursorGuideFixture : public ::testing::Test
{
protected:
    CursorGuideFixture()
    {
        autoXModePopUp->addItems({"None", "Auto X", "Equal X"});
        auto *row = new QHBoxLayout(&window);
        const std::initializer_list<QWidget *> controls = {
            autoXModePopUp, initialX, stepX, currentX, currentY, lockXCheck, lockYCheck};
        for (QWidget *control : controls)
            row->addWidget(control);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        guide.awakeFromNib();
    }

    void chooseMode(int mode)
    {
        autoXModePopUp->setCurrentIndex(mode);
        guide.autoXChanged();
    }

    void click(QCheckBox *check)
    {
        QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
    }

    /// Parallel axes on which a picture pixel is a tenth of a unit.
    static GuideConverter tenths()
    {
        return ZKConvCoordinateAffine::convCoordWithX0Point({0, 0}, {100, 0}, 0, 10, false, {0, 0},
                                                            {0, 100}, 0, 10, false);
    }

    /// Axes that are both slanted: X rises by 1 in 2, Y leans over by 1 in 2.
    static GuideConverter slanted()
    {
        return ZKConvCoordinateAffine::convCoordWithX0Point({0, 0}, {100, 50}, 0, 10, false, {0, 0},
                                                            {50, 100}, 0, 10, false);
    }

    /// A photographed chart: the left and right edges meet at (100, 200), the others are level.
    static GuideConverter converging()
    {
        return ZKConvCoordinateKeystone::convCoordWithPointLB(
            {0, 0}, {200, 0}, {50, 100}, {150, 100}, 0, 10, false, 0, 10, false);
    }

    /// Degrees about (100, 100), radius 10 at (200, 100).
    static GuideConverter degrees()
    {
        return ZKConvCoordinatePolar::convCoordWithCenter({100, 100}, {200, 100}, 0, 10, false, 0,
                                                          true);
    }

    /// Whether the two ends are as expected, to float precision.
    static void expectEnds(const std::optional<ZKLineSegment> &line, FloatPoint from, FloatPoint to)
    {
        ASSERT_TRUE(line.has_value());
        EXPECT_FLOAT_EQ(line->getEndNSPoint1().x, from.x);
        EXPECT_FLOAT_EQ(line->getEndNSPoint1().y, from.y);
        EXPECT_FLOAT_EQ(line->getEndNSPoint2().x, to.x);
        EXPECT_FLOAT_EQ(line->getEndNSPoint2().y, to.y);
    }

    /// The guide drawn on white with y upwards.
    QImage drawing() const
    {
        QImage canvas(400, 300, QImage::Format_RGB32);
        canvas.fill(Qt::white);
        QPainter painter(&canvas);
        painter.translate(0, canvas.height());
        painter.scale(1, -1);
        guide.drawGuide(painter);
        return canvas;
    }

    static QRgb colorAt(const QImage &canvas, int x, int y)
    {
        return canvas.pixel(x, canvas.height() - 1 - y);
    }

    QWidget window;
    QComboBox *autoXModePopUp = new QComboBox(&window);
    TextField *initialX = new TextField(&window);
    TextField *stepX = new TextField(&window);
    TextField *currentX = new TextField(&window);
    TextField *currentY = new TextField(&window);
    QCheckBox *lockXCheck = new QCheckBox("Lock X", &window);
    QCheckBox *lockYCheck = new QCheckBox("Lock Y", &window);
    EditedDocument document;
    GuidedView view;
    GuidedSeries series;
    GuidePrefs prefs;
    ShownLockMenu menu;
    CursorGuide guide{
        {document, view, series, prefs, menu},
        {autoXModePopUp, initialX, stepX, currentX, currentY, lockXCheck, lockYCheck}};
};
