#include "document/DocumentPlot.h"

#include "document/MyDocument.h"
#include "document/PlotFacts.h"
#include "plot/PlotContent.h"
#include "plot/PlotTools.h"

namespace {

/// The least time between two changes of the plot, in milliseconds, and what it grows by where
/// there is much to draw.
constexpr int refreshInterval = 100;
constexpr std::size_t pointsPerMillisecond = 100;

std::size_t pointsOf(const PlotContent &content)
{
    std::size_t points = 0;
    for (const PlotSeries &series : content.series)
        points += series.points.size();
    return points;
}

} // namespace

DocumentPlot::DocumentPlot(MyDocument &document, DocumentServices &services)
    : m_document(document)
    , m_window(services.plotTools().module, services.plotTools().choices)
    , m_dialogs(services.makeDialogs(m_window))
{
    m_window.setDialogs(*m_dialogs.sheets, *m_dialogs.panels);
    m_window.setHelpViewer(services.helpViewer());
    m_refreshing.setSingleShot(true);
    m_refreshing.setInterval(refreshInterval);
    connect(&m_refreshing, &QTimer::timeout, this, &DocumentPlot::refresh);
}

DocumentPlot::~DocumentPlot() = default;

void DocumentPlot::show()
{
    refresh();
    m_window.show();
    m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
    m_window.raise();
    m_window.activateWindow();
}

void DocumentPlot::documentChanged()
{
    if (m_window.isVisible() && !m_refreshing.isActive())
        m_refreshing.start();
}

void DocumentPlot::refresh()
{
    auto content = std::make_unique<const PlotContent>(plotfacts::of(m_document));
    if (m_shown != nullptr && *m_shown == *content)
        return;
    m_window.showContent(*content);
    m_refreshing.setInterval(refreshInterval +
                             static_cast<int>(pointsOf(*content) / pointsPerMillisecond));
    m_shown = std::move(content);
}
