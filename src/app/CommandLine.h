#pragma once

#include "capture/CaptureSurroundings.h"
#include "exchange/ExchangeFormat.h"

#include <QString>
#include <QStringList>

#include <optional>

/// What the user asked for on the command line.
struct CommandLine
{
    enum class Action { OpenWindows, Export, Info, Help, Version };

    /// Why the arguments make no sense.
    struct Mistake
    {
        const char *text = nullptr; ///< key of the text
        QString argument;           ///< stands for its %1
    };

    /// The name that stands for standard input or output.
    static constexpr char16_t standardStream[] = u"-";

    Action action = Action::OpenWindows;
    QStringList files;
    QString output; ///< of an export: a path, or "-" for standard output
    /// The series to export; nothing for every series that holds points.
    std::optional<IndexSet> series;
    /// Whether titles are exported; nothing for what the preferences say.
    std::optional<bool> titles;
    /// The format of an export; nothing for what the extension of the output says.
    std::optional<ExchangeFormat> format;
    /// Significant digits of an export; nothing for what the format has.
    std::optional<int> digits;
    bool asJson = false;
    /// The windowing system's plugin is named on the command line.
    bool choosesPlatform = false;
    std::optional<Mistake> mistake;

    /// Reads the arguments that follow the program's name. Options of the toolkit are passed over
    /// together with their values. After "--" everything is a file.
    [[nodiscard]] static CommandLine parse(const QStringList &arguments);

    /// The format in which an export is written.
    [[nodiscard]] ExchangeFormat exportFormat() const
    {
        return format.value_or(exchangeformat::ofFile(output));
    }
};

namespace serieslist {

/// Reads a list such as "1,3-5" of series numbers from 1 to 10; "all" gives nothing inside.
/// Nothing outside if it is no such list.
[[nodiscard]] std::optional<std::optional<IndexSet>> fromText(const QString &text);

} // namespace serieslist
