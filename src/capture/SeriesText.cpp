#include "capture/SeriesText.h"

#include "capture/SeriesStore.h"
#include "platform/NumberText.h"

#include <QChar>

#include <cstddef>
#include <vector>

namespace {

/// The series number as the user counts, with two digits.
std::string seriesNumber(int series)
{
    const std::string digits = std::to_string(series + 1);
    return digits.size() < 2 ? "0" + digits : digits;
}

std::string titlePair(const SeriesStore &store, int series)
{
    const bool isPolar = store.converterOf(series)->converterType() == convertertype::polar;
    const std::string name = "Series_" + seriesNumber(series);
    return name + (isPolar ? "_theta\t" : "_x\t") + name + (isPolar ? "_r" : "_y");
}

/// The two fields of one series in one line, both empty below its last point.
void appendPair(std::string &text, const std::vector<ZKVector> &points, std::size_t row)
{
    if (row < points.size())
        text += numbertext::general(points[row].X());
    text += '\t';
    if (row < points.size())
        text += numbertext::general(points[row].Y());
}

void appendTitleLine(std::string &text, const SeriesStore &store, const IndexSet &series)
{
    const char *separator = "";
    for (const int i : series) {
        text += separator + titlePair(store, i);
        separator = "\t";
    }
    text += '\n';
}

void appendDataLine(std::string &text, const SeriesStore &store, const IndexSet &series,
                    std::size_t row)
{
    const char *separator = "";
    for (const int i : series) {
        text += separator;
        appendPair(text, store.points(i), row);
        separator = "\t";
    }
    text += '\n';
}

} // namespace

std::optional<std::string> seriestext::makeString(const SeriesStore &store, const IndexSet &series,
                                                  bool withTitle)
{
    if (series.empty())
        return std::nullopt;
    std::string text;
    if (withTitle)
        appendTitleLine(text, store, series);
    const auto rows = static_cast<std::size_t>(store.maxRows());
    for (std::size_t row = 0; row < rows; ++row)
        appendDataLine(text, store, series, row);
    return text;
}

QByteArray seriestext::lossyAscii(const QString &text)
{
    constexpr char16_t lastAscii = 127;
    QByteArray ascii;
    ascii.reserve(text.size());
    for (const QChar unit : text) {
        // The second half of a character beyond the basic plane: the first one stands for both.
        if (unit.isLowSurrogate())
            continue;
        ascii += unit.unicode() <= lastAscii ? static_cast<char>(unit.unicode()) : '?';
    }
    return ascii;
}
