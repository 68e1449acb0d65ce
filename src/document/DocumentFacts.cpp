#include "document/DocumentFacts.h"

#include "axes/CurrentAxes.h"
#include "capture/DataSeries.h"
#include "document/MyDocument.h"

InfoFacts DocumentFacts::infoFacts() const
{
    const CurrentAxes &axes = m_document.currentAxes();
    const DataSeries &series = m_document.dataSeries();
    InfoFacts facts;
    if (m_document.hasImage())
        facts.imageSize = m_document.imageSize();
    facts.axes = {
        axes.axisType(),
        {axes.anchor1Point(), axes.anchor2Point(), axes.anchor3Point(), axes.anchor4Point()},
        axes.bottomLength(),
        axes.leftLength(),
        axes.radius(),
        axes.inclination()};
    facts.data = {series.currentSeries(), series.currentIndex(),
                  static_cast<int>(series.validSeries().size()), series.maxRows()};
    return facts;
}
