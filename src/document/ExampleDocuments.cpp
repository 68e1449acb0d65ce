#include "document/ExampleDocuments.h"

#include <QDir>

namespace exampledocuments {

const std::vector<Example> &all()
{
    static const std::vector<Example> examples{
        {"damped-oscillation.crvgrab", "document.example.linear"},
        {"growth-semilogarithmic.crvgrab", "document.example.logarithmic"},
        {"slanted-chart.crvgrab", "document.example.quadrangle"},
        {"cardioid-polar.crvgrab", "document.example.polar"}};
    return examples;
}

// Wherever the whole installation was moved to, its parts keep their places to each other.
QString folderFor(const QString &programFolder)
{
    return QDir::cleanPath(
        QDir(programFolder).filePath(QStringLiteral(CURVEGRAB_DATA_FROM_PROGRAM "/examples")));
}

} // namespace exampledocuments
