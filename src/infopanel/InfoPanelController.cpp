#include "infopanel/InfoPanelController.h"

#include "platform/FloatingPanel.h"
#include "platform/Texts.h"
#include "ui_InfoPanel.h"

#include <QAction>
#include <QCloseEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <optional>

InfoPanelController *gInfoPanelController = nullptr;

namespace {

constexpr int distanceFromScreenEdge = 24;
constexpr Qt::WindowFlags panelFlags = Qt::Tool | Qt::WindowDoesNotAcceptFocus |
                                       Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                       Qt::WindowCloseButtonHint;

std::optional<InfoFacts> factsOf(const InfoPanelDocument *document)
{
    if (document == nullptr)
        return std::nullopt;
    return document->infoFacts();
}

const InfoFacts *pointerTo(const std::optional<InfoFacts> &facts)
{
    return facts ? &*facts : nullptr;
}

} // namespace

InfoPanelController::InfoPanelController(InfoPanelPrefs &prefs, QAction &showHideMenu,
                                         QObject *parent)
    : QObject(parent)
    , m_prefs(prefs)
    , m_showHideMenu(&showHideMenu)
    , m_infoPanel(std::make_unique<QWidget>(nullptr, panelFlags))
    , m_ui(std::make_unique<Ui::InfoPanel>())
{
    const Ui::InfoPanel &ui = *m_ui;
    m_infoPanel->setFont(QFontDatabase::systemFont(QFontDatabase::SmallestReadableFont));
    m_ui->setupUi(m_infoPanel.get());
    m_axisInfo = {ui.axisInfo0, ui.axisInfo1, ui.axisInfo2, ui.axisInfo3,
                  ui.axisInfo4, ui.axisInfo5, ui.axisInfo6};
    m_axisLabel = {ui.axisLabel0, ui.axisLabel1, ui.axisLabel2, ui.axisLabel3,
                   ui.axisLabel4, ui.axisLabel5, ui.axisLabel6};
    m_dataInfo = {ui.dataInfo0, ui.dataInfo1, ui.dataInfo2, ui.dataInfo3};
    m_infoPanel->installEventFilter(this);
    connect(&showHideMenu, &QAction::triggered, this, &InfoPanelController::showInfoPanel);
}

InfoPanelController::~InfoPanelController()
{
    if (gInfoPanelController == this)
        gInfoPanelController = nullptr;
}

void InfoPanelController::awakeFromNib()
{
    gInfoPanelController = this;
    m_userClosedThePanel = false;
    QFont titleFont = QFontDatabase::systemFont(QFontDatabase::SmallestReadableFont);
    titleFont.setBold(true);
    for (QLabel *title : {m_ui->imageTitle, m_ui->axisTitle, m_ui->dataTitle})
        title->setFont(titleFont);
    infoVisibleChanged();
}

void InfoPanelController::setIsVisible(bool visible)
{
    if (!visible) {
        m_infoPanel->hide();
        return;
    }
    placeAtFirst();
    floatingpanel::show(*m_infoPanel);
}

// In the corner of the screen it is least in the way; from then on it stays where the user
// moves it.
void InfoPanelController::placeAtFirst()
{
    if (m_isPlaced)
        return;
    m_isPlaced = true;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QPoint distance(distanceFromScreenEdge, 2 * distanceFromScreenEdge);
    const QSize size = m_infoPanel->sizeHint();
    m_infoPanel->move(screen.bottomRight() - distance - QPoint(size.width(), size.height()));
}

void InfoPanelController::showInfoPanel()
{
    m_userClosedThePanel = false;
    setIsVisible(!m_infoPanel->isVisible());
    infoVisibleChanged();
    m_prefs.saveInfoPanelState(m_infoPanel->isVisible());
}

void InfoPanelController::infoVisibleChanged()
{
    if (m_showHideMenu)
        m_showHideMenu->setText(
            texts::localized(m_infoPanel->isVisible() ? "HideInfo" : "ShowInfo"));
}

bool InfoPanelController::windowShouldClose()
{
    m_userClosedThePanel = true;
    return true;
}

void InfoPanelController::windowWillClose()
{
    if (!m_userClosedThePanel)
        return;
    m_prefs.saveInfoPanelState(false);
    if (m_showHideMenu)
        m_showHideMenu->setText(texts::localized("ShowInfo"));
}

// The program closes windows as well, when it ends: only a close that comes from the desktop is
// the user's.
bool InfoPanelController::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Close && watched == m_infoPanel.get() &&
        (!event->spontaneous() || windowShouldClose()))
        windowWillClose();
    return QObject::eventFilter(watched, event);
}

void InfoPanelController::updateAllInfoWith(const InfoPanelDocument *document)
{
    const std::optional<InfoFacts> facts = factsOf(document);
    showImageInfo(pointerTo(facts));
    showAxisInfo(pointerTo(facts));
    showDataInfo(pointerTo(facts));
}

void InfoPanelController::updateImageInfoWith(const InfoPanelDocument *document)
{
    showImageInfo(pointerTo(factsOf(document)));
}

void InfoPanelController::updateAxisInfoWith(const InfoPanelDocument *document)
{
    showAxisInfo(pointerTo(factsOf(document)));
}

void InfoPanelController::updateDataInfoWith(const InfoPanelDocument *document)
{
    showDataInfo(pointerTo(factsOf(document)));
}

void InfoPanelController::showImageInfo(const InfoFacts *facts)
{
    m_ui->imageInfo0->setText(infotexts::imageInfo(facts));
    keepWidth();
}

void InfoPanelController::showAxisInfo(const InfoFacts *facts)
{
    const infotexts::AxisTexts axes = infotexts::axisTexts(facts);
    for (std::size_t row = 0; row < m_axisInfo.size(); ++row)
        m_axisInfo.at(row)->setText(axes.info.at(row));
    if (!axes.labels)
        return;
    // The first caption is the same for every kind of axes.
    for (std::size_t row = 1; row < m_axisLabel.size(); ++row)
        m_axisLabel.at(row)->setText(axes.labels->at(row - 1));
    keepWidth();
}

// Shorter captions or numbers do not make the panel narrower again: it would twitch during a drag.
void InfoPanelController::keepWidth()
{
    const auto keep = [this](int column, const auto &labels) {
        int width = m_ui->infoLayout->columnMinimumWidth(column);
        for (const QLabel *label : labels)
            width = std::max(width, label->sizeHint().width());
        m_ui->infoLayout->setColumnMinimumWidth(column, width);
    };
    keep(0, m_axisLabel);
    keep(1, m_axisInfo);
    keep(1, m_dataInfo);
    keep(1, std::array{m_ui->imageInfo0});
}

void InfoPanelController::showDataInfo(const InfoFacts *facts)
{
    const auto info = infotexts::dataInfo(facts);
    for (std::size_t row = 0; row < m_dataInfo.size(); ++row)
        m_dataInfo.at(row)->setText(info.at(row));
    keepWidth();
}
