#include "exchange/Spreadsheet.h"

#include "exchange/ExchangeNumber.h"
#include "exchange/ExchangeTitles.h"
#include "exchange/SpreadsheetWriter.h"
#include "platform/Modules.h"
#include "platform/Texts.h"

#include <QFileInfo>
#include <QSet>
#include <QString>

namespace {

SpreadsheetWriter *writer()
{
    return modules::find<SpreadsheetWriter>(modules::folder(),
                                            QStringLiteral("curvegrabspreadsheet"));
}

SpreadsheetSheet sheetOf(const ExchangeFacts &facts, const ExchangeStyle &style)
{
    SpreadsheetSheet sheet;
    for (const ExchangeSeries &series : facts.series) {
        if (style.withTitles)
            for (const std::string &title : exchangetitles::columnsOf(series))
                sheet.titles.push_back(title);
        std::vector<double> x;
        std::vector<double> y;
        x.reserve(series.points.size());
        y.reserve(series.points.size());
        for (const ZKVector &point : series.points) {
            x.push_back(exchangenumber::rounded(point.X(), style.digits));
            y.push_back(exchangenumber::rounded(point.Y(), style.digits));
        }
        sheet.columns.push_back(std::move(x));
        sheet.columns.push_back(std::move(y));
    }
    return sheet;
}

/// `name` as far as a sheet may be called so.
QString allowedName(const QString &name)
{
    QString allowed;
    for (const QChar character : name)
        if (character.isPrint() && !QStringView(u"[]:*?/\\'").contains(character))
            allowed += character;
    return allowed.trimmed();
}

/// The first of "name", "name 2", "name 3" … that is not taken; 31 characters at most.
QString freeName(const QString &name, QSet<QString> &taken)
{
    constexpr qsizetype longest = 31;
    QString free = name.left(longest);
    for (int number = 2; taken.contains(free.toCaseFolded()); ++number) {
        const QString ending = u' ' + QString::fromStdString(std::to_string(number));
        free = name.left(longest - ending.size()) + ending;
    }
    taken.insert(free.toCaseFolded());
    return free;
}

} // namespace

namespace spreadsheet {

std::optional<QByteArray> workbook(const std::vector<ExchangeFacts> &documents,
                                   const ExchangeStyle &style)
{
    const SpreadsheetWriter *const module = writer();
    if (module == nullptr)
        return std::nullopt;
    std::vector<SpreadsheetSheet> sheets;
    std::vector<std::string> names = sheetNames(documents);
    sheets.reserve(documents.size());
    for (std::size_t i = 0; i < documents.size(); ++i) {
        sheets.push_back(sheetOf(documents[i], style));
        sheets.back().name = std::move(names[i]);
    }
    return module->workbook(sheets);
}

QString reasonOfNothing()
{
    if (writer() == nullptr)
        return texts::localized("document.export.missing").arg(modules::folder());
    return texts::localized("document.export.noWorkbook");
}

std::vector<std::string> sheetNames(const std::vector<ExchangeFacts> &documents)
{
    // Spreadsheet programs keep this name for themselves.
    QSet<QString> taken{QStringLiteral("history")};
    std::vector<std::string> names;
    for (const ExchangeFacts &facts : documents) {
        const QFileInfo file(QString::fromStdString(facts.document));
        const QString name = allowedName(file.completeBaseName());
        names.push_back(
            freeName(name.isEmpty() ? QStringLiteral("Data") : name, taken).toStdString());
    }
    return names;
}

} // namespace spreadsheet
