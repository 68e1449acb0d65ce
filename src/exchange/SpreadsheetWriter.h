#pragma once

#include <QByteArray>
#include <QObject>

#include <optional>
#include <string>
#include <vector>

/// A sheet of a workbook.
struct SpreadsheetSheet
{
    std::string name;
    std::vector<std::string> titles;          ///< a row above the columns, or none
    std::vector<std::vector<double>> columns; ///< what is no number is shown as text
};

/// What writes workbooks. It is a module of its own, so that the library for them is not loaded
/// before somebody wants one.
class SpreadsheetWriter
{
public:
    SpreadsheetWriter() = default;
    virtual ~SpreadsheetWriter() = default;
    SpreadsheetWriter(const SpreadsheetWriter &) = delete;
    SpreadsheetWriter &operator=(const SpreadsheetWriter &) = delete;

    /// The bytes of a workbook. Nothing if a column is longer than a sheet, or if there is no room
    /// for the temporary file in which the workbook is put together. May be called in any thread.
    [[nodiscard]] virtual std::optional<QByteArray>
    workbook(const std::vector<SpreadsheetSheet> &sheets) const = 0;
};

#define CURVEGRAB_SPREADSHEET_WRITER "x.curvegrab.SpreadsheetWriter/1"
Q_DECLARE_INTERFACE(SpreadsheetWriter, CURVEGRAB_SPREADSHEET_WRITER)
