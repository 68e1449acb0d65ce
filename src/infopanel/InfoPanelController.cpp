#include "infopanel/InfoPanelController.h"

#include "infopanel/InfoPanelWindow.h"
#include "platform/FloatingPanel.h"
#include "platform/StateFile.h"
#include "platform/Texts.h"
#include "platform/WindowPlacement.h"

#include <QAction>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <optional>
#include <utility>

InfoPanelController *gInfoPanelController = nullptr;

namespace {

const QString placementKey = QStringLiteral("Info Panel");
constexpr int distanceFromScreenEdge = 24;

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
                                         QString statePath, QObject *parent)
    : QObject(parent)
    , m_prefs(prefs)
    , m_showHideMenu(&showHideMenu)
    , m_statePath(std::move(statePath))
    , m_imageInfo(infotexts::imageInfo(nullptr))
    , m_axisInfo(infotexts::axisTexts(nullptr))
    , m_dataInfo(infotexts::dataInfo(nullptr))
{
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
    infoVisibleChanged();
}

InfoPanelWindow &InfoPanelController::infoPanel()
{
    if (!m_infoPanel) {
        m_infoPanel = std::make_unique<InfoPanelWindow>();
        m_infoPanel->installEventFilter(this);
        m_infoPanel->showImageInfo(m_imageInfo);
        m_infoPanel->showAxisInfo(m_axisInfo);
        m_infoPanel->showDataInfo(m_dataInfo);
    }
    return *m_infoPanel;
}

bool InfoPanelController::isVisible() const { return m_infoPanel && m_infoPanel->isVisible(); }

void InfoPanelController::setIsVisible(bool visible)
{
    if (visible) {
        placeAtFirst();
        floatingpanel::show(infoPanel());
    } else if (m_infoPanel) {
        m_infoPanel->hide();
    }
}

// In the corner of the screen it is least in the way, until the user moves it elsewhere.
void InfoPanelController::placeAtFirst()
{
    if (m_isPlaced)
        return;
    m_isPlaced = true;
    if (windowplacement::restore(infoPanel(), StateFile(m_statePath), placementKey)) {
        keepOnScreen();
        return;
    }
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QPoint distance(distanceFromScreenEdge, 2 * distanceFromScreenEdge);
    const QSize size = infoPanel().sizeHint();
    infoPanel().move(screen.bottomRight() - distance - QPoint(size.width(), size.height()));
}

// In another language or font it is larger than where it was left.
void InfoPanelController::keepOnScreen()
{
    QWidget &panel = infoPanel();
    const QRect screen = panel.screen()->availableGeometry();
    QRect place(panel.geometry().topLeft(), panel.sizeHint());
    if (screen.contains(place))
        return;
    place.moveRight(std::min(place.right(), screen.right() - distanceFromScreenEdge));
    place.moveBottom(std::min(place.bottom(), screen.bottom() - distanceFromScreenEdge));
    panel.setGeometry(place);
}

void InfoPanelController::rememberPlace()
{
    StateFile state(m_statePath);
    windowplacement::remember(*m_infoPanel, state, placementKey);
}

void InfoPanelController::showInfoPanel()
{
    m_userClosedThePanel = false;
    setIsVisible(!isVisible());
    infoVisibleChanged();
    m_prefs.saveInfoPanelState(isVisible());
}

void InfoPanelController::infoVisibleChanged()
{
    if (m_showHideMenu)
        m_showHideMenu->setText(texts::localized(isVisible() ? "HideInfo" : "ShowInfo"));
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
    if (event->type() == QEvent::Hide && watched == m_infoPanel.get())
        rememberPlace();
    return QObject::eventFilter(watched, event);
}

void InfoPanelController::updateAllInfoWith(const InfoPanelDocument *document)
{
    const std::optional<InfoFacts> facts = factsOf(document);
    setImageInfo(pointerTo(facts));
    setAxisInfo(pointerTo(facts));
    setDataInfo(pointerTo(facts));
}

void InfoPanelController::updateImageInfoWith(const InfoPanelDocument *document)
{
    setImageInfo(pointerTo(factsOf(document)));
}

void InfoPanelController::updateAxisInfoWith(const InfoPanelDocument *document)
{
    setAxisInfo(pointerTo(factsOf(document)));
}

void InfoPanelController::updateDataInfoWith(const InfoPanelDocument *document)
{
    setDataInfo(pointerTo(factsOf(document)));
}

void InfoPanelController::setImageInfo(const InfoFacts *facts)
{
    m_imageInfo = infotexts::imageInfo(facts);
    if (m_infoPanel)
        m_infoPanel->showImageInfo(m_imageInfo);
}

void InfoPanelController::setAxisInfo(const InfoFacts *facts)
{
    infotexts::AxisTexts axes = infotexts::axisTexts(facts);
    if (!axes.labels)
        axes.labels = std::move(m_axisInfo.labels);
    m_axisInfo = std::move(axes);
    if (m_infoPanel)
        m_infoPanel->showAxisInfo(m_axisInfo);
}

void InfoPanelController::setDataInfo(const InfoFacts *facts)
{
    m_dataInfo = infotexts::dataInfo(facts);
    if (m_infoPanel)
        m_infoPanel->showDataInfo(m_dataInfo);
}
