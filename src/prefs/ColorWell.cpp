#include "prefs/ColorWell.h"

#include "platform/Texts.h"

#include <QColorDialog>
#include <QPainterPath>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr int wellWidth = 56;
constexpr int margin = 5; ///< of the button around the colour
constexpr int checkSide = 4;

DeviceColor deviceColor(const QColor &color)
{
    const QColor rgb = color.toRgb();
    return {rgb.redF(), rgb.greenF(), rgb.blueF(), rgb.alphaF()};
}

/// A pattern of checks tells how far a colour lets through what is behind it.
void drawChecks(QPainter &painter, const QRect &rect)
{
    painter.fillRect(rect, Qt::white);
    for (int y = 0; y * checkSide < rect.height(); ++y)
        for (int x = y % 2; x * checkSide < rect.width(); x += 2)
            painter.fillRect(
                QRect(rect.x() + x * checkSide, rect.y() + y * checkSide, checkSide, checkSide)
                    .intersected(rect),
                Qt::lightGray);
}

} // namespace

ColorWell::ColorWell(QWidget *parent)
    : QPushButton(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QPushButton::clicked, this, &ColorWell::chooseColor);
}

void ColorWell::setColor(const DeviceColor &color)
{
    constexpr double percent = 100;
    m_color = color;
    const QColor onScreen = color.screenColor();
    setAccessibleDescription(texts::localized("prefs.color.value")
                                 .arg(onScreen.name())
                                 .arg(qRound(onScreen.alphaF() * percent)));
    update();
}

QSize ColorWell::sizeHint() const { return {wellWidth, QPushButton::sizeHint().height()}; }

void ColorWell::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButton, option);

    const QRect inside = rect().adjusted(margin, margin, -margin, -margin);
    const QColor shown = m_color.screenColor();
    if (shown.alpha() < 255)
        drawChecks(painter, inside);
    painter.fillRect(inside, shown);
    QColor outline = palette().color(QPalette::ButtonText);
    outline.setAlphaF(0.4F);
    painter.setPen(outline);
    painter.drawRect(inside.adjusted(0, 0, -1, -1));
}

void ColorWell::chooseColor()
{
    auto *dialog = new QColorDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QColorDialog::ShowAlphaChannel); // before the colour, which is opaque else
    dialog->setCurrentColor(m_color.screenColor());
    dialog->setWindowTitle(texts::localized("prefs.color.title"));
    // The dialog rounds: what it shows at first still stands for the colour as it was set.
    connect(dialog, &QColorDialog::colorSelected, this,
            [this, before = dialog->currentColor()](const QColor &chosen) {
                if (chosen != before)
                    setColor(deviceColor(chosen));
            });
    dialog->open();
}
