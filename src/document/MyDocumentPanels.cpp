#include "document/MyDocument.h"

#include "axes/CurrentAxes.h"
#include "capture/DataSeries.h"
#include "document/DocumentFacts.h"
#include "document/DocumentPlot.h"
#include "imageview/GraphImageView.h"
#include "infopanel/InfoPanelController.h"
#include "platform/HelpViewer.h"
#include "prefs/CurvegrabPrefs.h"

namespace {

void openHelp(DocumentServices &services, const char *anchor)
{
    services.helpViewer().openHelpAnchor(QString::fromLatin1(anchor),
                                         QString::fromLatin1(helpbook::bookName));
}

} // namespace

void MyDocument::editPreferences() { m_services.editPreferences(); }

void MyDocument::showHelp() { openHelp(m_services, ""); }

void MyDocument::showAxisHelp() { openHelp(m_services, helpbook::axisSettings); }

void MyDocument::showDigitizeHelp() { openHelp(m_services, helpbook::digitizing); }

void MyDocument::showResult()
{
    if (m_plot == nullptr)
        m_plot = std::make_unique<DocumentPlot>(*this, m_services);
    m_plot->show();
}

void MyDocument::showInInfoPanel() const
{
    const DocumentFacts facts(*this);
    if (gInfoPanelController != nullptr)
        gInfoPanelController->updateAllInfoWith(&facts);
}

void MyDocument::notificationPosted(const QString &name)
{
    if (name == curvegrabPrefsChangedNotification)
        prefsChanged();
}

void MyDocument::prefsChanged()
{
    if (isInAxisSettingMode())
        m_currentAxes->makeAnchorRectsWithScale(m_graphView->imageScale());
    else
        m_dataSeries->setMarkerPreview();
    m_graphView->prefsChanged();
    if (m_plot != nullptr)
        m_plot->documentChanged();
}
