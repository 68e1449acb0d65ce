#include "imageview/GraphImageView.h"
#include "imageview/ImageViewSurroundings.h"
#include "imageview/PictureReader.h"
#include "imageview/PictureScrollArea.h"
#include "imageview/ZoomSlider.h"
#include "platform/Desktop.h"
#include "platform/PasswordSheets.h"
#include "platform/Sheets.h"
#include "platform/UndoManager.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <benchmark/benchmark.h>

// How quickly the picture view answers, on a clip of 1600 x 1000 points.
namespace {

constexpr std::uint64_t enoughMemory = std::uint64_t{8} << 30U;

/// A chart: a white page with thin lines and a frame.
QImage chart(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRect(width / 10, height / 10, width * 8 / 10, height * 8 / 10);
    for (int line = 0; line < 40; ++line)
        painter.drawLine(width / 10, height * (10 + 2 * line) / 100, width * 9 / 10,
                         height * (90 - 2 * line) / 100);
    return image;
}

/// Surroundings that draw axes as the axis page does, and do nothing else.
class QuietSurroundings : public ImageViewDocument,
                          public ImageViewAxes,
                          public ImageViewGuide,
                          public ImageViewSeries,
                          public ImageViewInfoPanel,
                          public ImageViewPrefs,
                          public Sheets,
                          public PasswordSheets,
                          public Desktop
{
public:
    explicit QuietSurroundings(GraphImageView *&view)
        : m_view(view)
    {}

    bool isInAxisSettingMode() const override { return true; }
    UndoManager &undoManager() override { return m_undo; }
    Sheets &sheets() override { return *this; }
    PasswordSheets &passwordSheets() override { return *this; }
    Desktop &desktop() override { return *this; }
    void updateChangeCount(ChangeKind /*kind*/) override {}
    void zoomWindow() override {}
    FloatSize windowFrameSize() const override { return {1637, 1207}; }
    void removeUndoOfDataSeries() override {}
    void removeUndoOfCurrentAxes() override {}

    void resetPositionFromImageView() override {}
    void resetPosition() override {}
    void makeAnchorRectsWithScale(float /*scale*/) override {}
    void drawAxisWithScale(QPainter &painter, float /*scale*/) override
    {
        const QRectF area(m_now.x, m_now.y, 900, 700);
        painter.setPen(QPen(Qt::green, 1.5));
        painter.drawRect(area);
        painter.fillRect(area, QColor(0, 255, 0, 25));
    }
    void registerUndoOfAnchors() override {}
    void dragAnchor(FloatPoint /*start*/, FloatPoint now) override { moveTo(now, true); }
    void continueDrag(FloatPoint now) override { moveTo(now, true); }
    void endDrag(FloatPoint now) override { moveTo(now, false); }
    bool isDragging() const override { return m_dragging; }
    std::shared_ptr<const ZKConvCoordinate> makeAxisConverter() override { return {}; }

    std::shared_ptr<const ZKConvCoordinate> converter() const override { return {}; }
    void setConverter(std::shared_ptr<const ZKConvCoordinate> /*converter*/) override {}
    FloatPoint dataPointAt(FloatPoint point, float /*withScale*/) override { return point; }
    void drawGuide(FloatPoint /*point*/, float /*withScale*/) override {}
    void forceDrawGuide(FloatPoint /*point*/, float /*withScale*/) override {}
    void drawGuide(QPainter & /*painter*/) override {}
    void clearGuide() override {}
    void lockStateChanged() override {}
    void appendData(FloatPoint /*data*/,
                    std::shared_ptr<const ZKConvCoordinate> /*converter*/) override
    {}
    void drawDataMarkersWithScale(QPainter & /*painter*/, float /*scale*/) override {}
    void updateImageInfo() override {}
    double guideInterval() const override { return 0.2; }
    float pdfScale() const override { return 4; }
    void askForPassword(const PasswordSheet & /*sheet*/,
                        std::function<void(const std::optional<QString> &)> /*ended*/) override
    {}
    void present(const Sheet & /*sheet*/, std::function<void(SheetAnswer)> /*ended*/) override {}
    FloatSize mainScreenSize() const override { return {1920, 1080}; }
    QPoint pointerPosition() const override { return {}; }
    Qt::KeyboardModifiers modifiers() const override { return {}; }

private:
    void moveTo(FloatPoint now, bool dragging)
    {
        m_now = now;
        m_dragging = dragging;
        m_view->setNeedsDisplay();
    }

    GraphImageView *&m_view;
    UndoManager m_undo;
    FloatPoint m_now;
    bool m_dragging = false;
};

/// A shown view in a window of its own.
class ShownView
{
public:
    ShownView()
        : area(new PictureScrollArea(&window))
        , view(new GraphImageView(*area))
        , m_surroundings(view)
    {
        auto *layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(area);
        area->setFrameShape(QFrame::NoFrame);
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        const auto button = [this] { return new QPushButton(&m_controls); };
        view->connectOutlets({&m_surroundings, &m_surroundings, &m_surroundings, &m_surroundings,
                              &m_surroundings, &m_surroundings, button(), button(), button(),
                              button(), new ZoomSlider(&m_controls), new QWidget(&m_controls),
                              new QWidget(&m_controls)});
        view->awakeFromNib();
        window.resize(1600, 1000);
        window.show();
        paint();
    }

    /// Paints what is due now, instead of at the end of the event.
    void paint()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    void mouse(QEvent::Type type, QPointF position)
    {
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(
            type, position, view->mapToGlobal(position), moves ? Qt::NoButton : Qt::LeftButton,
            type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view, &event);
    }

    QWidget window;
    PictureScrollArea *area;
    GraphImageView *view;

private:
    QWidget m_controls;
    QuietSurroundings m_surroundings;
};

QImage chartOfMegapixels(std::int64_t megapixels)
{
    return megapixels == 12 ? chart(4000, 3000) : chart(12000, 8400);
}

void openTwelveMegapixelFile(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("chart.png"));
    if (!chartOfMegapixels(12).save(path))
        state.SkipWithError("the sample cannot be written");
    ShownView shown;
    for (auto step : state) {
        PictureReading reading = PictureReader(enoughMemory).read(path);
        shown.view->replaceImageWith(std::move(reading.picture));
        shown.paint();
    }
}

void zoomStep(benchmark::State &state)
{
    ShownView shown;
    shown.view->replaceImageWithImageRep(chartOfMegapixels(state.range(0)));
    const std::array<float, 8> scales{2,    1.4142135F,  1,     0.70710677F,
                                      0.5F, 0.35355338F, 0.25F, 0.125F};
    const float scale = scales.at(static_cast<std::size_t>(state.range(1)));
    for (auto step : state) {
        state.PauseTiming();
        shown.view->rescaleImageWith(scale == 1 ? 2.0F : 1.0F, true);
        shown.paint();
        state.ResumeTiming();
        shown.view->rescaleImageWith(scale, true);
        shown.paint();
    }
    state.counters["scale"] = static_cast<double>(scale);
}

void scrollByAWheelClick(benchmark::State &state)
{
    ShownView shown;
    shown.view->replaceImageWithImageRep(chartOfMegapixels(state.range(0)));
    shown.view->rescaleImageWith(0.5F, true);
    float way = 60;
    for (auto step : state) {
        const FloatPoint origin = shown.area->visibleOrigin();
        if (origin.y + way < 0 || origin.y + way > 400)
            way = -way;
        shown.area->scrollPoint({origin.x, origin.y + way});
        shown.paint();
    }
}

void anchorDragFrame(benchmark::State &state)
{
    ShownView shown;
    shown.view->replaceImageWithImageRep(chartOfMegapixels(state.range(0)));
    shown.view->rescaleImageWith(0.5F, true);
    shown.area->scrollPoint({0, 0});
    const double bottom = static_cast<double>(shown.view->scaledImageSize().height);
    shown.mouse(QEvent::MouseButtonPress, {100, bottom - 100});
    double way = 0;
    for (auto step : state) {
        way = way > 300 ? 0 : way + 3;
        shown.mouse(QEvent::MouseMove, {100 + way, bottom - 100 - way});
        shown.paint();
    }
    shown.mouse(QEvent::MouseButtonRelease, {100, bottom - 100});
}

/// From the answer "Trim" to the trimmed picture on the screen: a rectangle of nearly the whole
/// picture, turned by state.range(1) degrees.
void trim(benchmark::State &state)
{
    ShownView shown;
    const QImage pixels = chartOfMegapixels(state.range(0));
    for (auto step : state) {
        state.PauseTiming();
        shown.view->replaceImageWithImageRep(pixels);
        for (int turned = 0; turned < state.range(1); turned += 90)
            shown.view->imageRotateCcw();
        shown.view->rescaleImageWith(0.125F, true);
        shown.paint();
        const double bottom = static_cast<double>(shown.view->height());
        shown.view->setForcedMode(TrimMode);
        shown.mouse(QEvent::MouseButtonPress, {1, bottom - 1});
        shown.mouse(QEvent::MouseMove, {static_cast<double>(shown.view->width()) - 1, 1});
        shown.mouse(QEvent::MouseButtonRelease, {static_cast<double>(shown.view->width()) - 1, 1});
        shown.paint();
        state.ResumeTiming();
        shown.view->trimAlertDidEnd(SheetAnswer::Default);
        shown.paint();
    }
}

} // namespace

BENCHMARK(openTwelveMegapixelFile)->Unit(benchmark::kMillisecond);
BENCHMARK(zoomStep)
    ->ArgsProduct({{12, 100}, benchmark::CreateDenseRange(0, 7, 1)})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(scrollByAWheelClick)->Arg(12)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK(anchorDragFrame)->Arg(12)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK(trim)
    ->ArgsProduct({{12, 100}, benchmark::CreateDenseRange(0, 270, 90)})
    ->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
