#include "exchange/Spreadsheet.h"

#include "exchange/ExchangeNumber.h"
#include "exchange/ExchangeTitles.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QString>
#include <QTemporaryDir>

#include <clocale>
#include <cmath>
#include <xlsxwriter.h>

namespace {

constexpr double columnWidth = 16; // characters
constexpr std::size_t rowsOfSheet = 1048576;

/// While it lives, C functions of this thread write numbers with a point: the library's among them.
class PointInNumbers
{
public:
    PointInNumbers()
        : m_locale(::newlocale(LC_NUMERIC_MASK, "C", locale_t{}))
        , m_before(::uselocale(m_locale))
    {}
    ~PointInNumbers()
    {
        ::uselocale(m_before);
        ::freelocale(m_locale);
    }
    PointInNumbers(const PointInNumbers &) = delete;
    PointInNumbers &operator=(const PointInNumbers &) = delete;

private:
    locale_t m_locale;
    locale_t m_before;
};

bool writeNumber(lxw_worksheet &sheet, lxw_row_t row, lxw_col_t column, double value,
                 std::optional<int> digits)
{
    // A cell cannot hold what is no number.
    if (!std::isfinite(value))
        return worksheet_write_string(&sheet, row, column, exchangenumber::text(value).c_str(),
                                      nullptr) == LXW_NO_ERROR;
    return worksheet_write_number(&sheet, row, column, exchangenumber::rounded(value, digits),
                                  nullptr) == LXW_NO_ERROR;
}

bool writeTitles(lxw_worksheet &sheet, const ExchangeFacts &facts, lxw_format &format)
{
    lxw_col_t column = 0;
    bool isWritten = true;
    for (const ExchangeSeries &series : facts.series)
        for (const std::string &title : exchangetitles::columnsOf(series))
            isWritten = worksheet_write_string(&sheet, 0, column++, title.c_str(), &format) ==
                            LXW_NO_ERROR &&
                        isWritten;
    worksheet_freeze_panes(&sheet, 1, 0);
    return isWritten;
}

bool writeSeries(lxw_worksheet &sheet, const ExchangeSeries &series, lxw_row_t row,
                 lxw_col_t column, std::optional<int> digits)
{
    for (const ZKVector &point : series.points) {
        if (!writeNumber(sheet, row, column, point.X(), digits) ||
            !writeNumber(sheet, row, static_cast<lxw_col_t>(column + 1), point.Y(), digits))
            return false;
        ++row;
    }
    return true;
}

bool fill(lxw_worksheet &sheet, const ExchangeFacts &facts, const ExchangeStyle &style,
          lxw_format &titleFormat)
{
    bool isWritten = !style.withTitles || writeTitles(sheet, facts, titleFormat);
    const lxw_row_t firstRow = style.withTitles ? 1 : 0;
    lxw_col_t column = 0;
    if (firstRow + exchangetitles::rowsOf(facts.series) > rowsOfSheet)
        return false;
    for (const ExchangeSeries &series : facts.series) {
        isWritten = writeSeries(sheet, series, firstRow, column, style.digits) && isWritten;
        column = static_cast<lxw_col_t>(column + 2);
    }
    if (column > 0)
        worksheet_set_column(&sheet, 0, static_cast<lxw_col_t>(column - 1), columnWidth, nullptr);
    return isWritten;
}

/// Puts the workbook together in the file at `path`; whether all of it found its place.
bool write(const QString &path, const QString &folder, const std::vector<ExchangeFacts> &documents,
           const ExchangeStyle &style)
{
    QByteArray temporaryFolder = QFile::encodeName(folder);
    lxw_workbook_options options{LXW_FALSE, temporaryFolder.data(), LXW_FALSE};
    lxw_workbook *book = workbook_new_opt(QFile::encodeName(path).constData(), &options);
    if (book == nullptr)
        return false;
    lxw_format *titleFormat = workbook_add_format(book);
    format_set_bold(titleFormat);
    const std::vector<std::string> names = spreadsheet::sheetNames(documents);
    bool isWritten = true;
    for (std::size_t i = 0; i < documents.size(); ++i) {
        lxw_worksheet *sheet = workbook_add_worksheet(book, names[i].c_str());
        isWritten =
            sheet != nullptr && fill(*sheet, documents[i], style, *titleFormat) && isWritten;
    }
    return workbook_close(book) == LXW_NO_ERROR && isWritten;
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
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("book.xlsx"));
    const PointInNumbers point;
    if (!folder.isValid() || !write(path, folder.path(), documents, style))
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

std::vector<std::string> sheetNames(const std::vector<ExchangeFacts> &documents)
{
    QSet<QString> taken;
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
