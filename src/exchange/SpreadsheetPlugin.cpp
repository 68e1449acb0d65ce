#include "exchange/SpreadsheetPlugin.h"

#include <QFile>
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

const char *textOfNoNumber(double value)
{
    if (std::isnan(value))
        return "nan";
    return value > 0 ? "inf" : "-inf";
}

bool writeNumber(lxw_worksheet &sheet, lxw_row_t row, lxw_col_t column, double value)
{
    // A cell cannot hold what is no number.
    if (!std::isfinite(value))
        return worksheet_write_string(&sheet, row, column, textOfNoNumber(value), nullptr) ==
               LXW_NO_ERROR;
    return worksheet_write_number(&sheet, row, column, value, nullptr) == LXW_NO_ERROR;
}

bool writeTitles(lxw_worksheet &sheet, const std::vector<std::string> &titles, lxw_format &format)
{
    lxw_col_t column = 0;
    bool isWritten = true;
    for (const std::string &title : titles)
        isWritten =
            worksheet_write_string(&sheet, 0, column++, title.c_str(), &format) == LXW_NO_ERROR &&
            isWritten;
    worksheet_freeze_panes(&sheet, 1, 0);
    return isWritten;
}

bool writeColumn(lxw_worksheet &sheet, const std::vector<double> &values, lxw_row_t row,
                 lxw_col_t column)
{
    if (row + values.size() > rowsOfSheet)
        return false;
    for (const double value : values)
        if (!writeNumber(sheet, row++, column, value))
            return false;
    return true;
}

bool fill(lxw_worksheet &sheet, const SpreadsheetSheet &content, lxw_format &titleFormat)
{
    const bool hasTitles = !content.titles.empty();
    bool isWritten = !hasTitles || writeTitles(sheet, content.titles, titleFormat);
    lxw_col_t column = 0;
    for (const std::vector<double> &values : content.columns)
        isWritten = isWritten && writeColumn(sheet, values, hasTitles ? 1 : 0, column++);
    if (column > 0)
        worksheet_set_column(&sheet, 0, static_cast<lxw_col_t>(column - 1), columnWidth, nullptr);
    return isWritten;
}

/// Puts the workbook together in the file at `path`; whether all of it found its place.
bool write(const QString &path, const QString &folder, const std::vector<SpreadsheetSheet> &sheets)
{
    QByteArray temporaryFolder = QFile::encodeName(folder);
    lxw_workbook_options options{LXW_FALSE, temporaryFolder.data(), LXW_FALSE};
    lxw_workbook *book = workbook_new_opt(QFile::encodeName(path).constData(), &options);
    if (book == nullptr)
        return false;
    lxw_format *titleFormat = workbook_add_format(book);
    format_set_bold(titleFormat);
    bool isWritten = true;
    for (const SpreadsheetSheet &content : sheets) {
        lxw_worksheet *sheet = workbook_add_worksheet(book, content.name.c_str());
        isWritten = sheet != nullptr && fill(*sheet, content, *titleFormat) && isWritten;
    }
    return workbook_close(book) == LXW_NO_ERROR && isWritten;
}

} // namespace

std::optional<QByteArray>
SpreadsheetPlugin::workbook(const std::vector<SpreadsheetSheet> &sheets) const
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("book.xlsx"));
    const PointInNumbers point;
    if (!folder.isValid() || !write(path, folder.path(), sheets))
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}
