#include "platform/CsvField.h"

namespace {

bool isNoNumber(std::string_view text)
{
    if (text.starts_with('-'))
        text.remove_prefix(1);
    return text == "inf" || text == "nan";
}

} // namespace

std::string csvfield::quoted(std::string_view text)
{
    if (text.find_first_of(",\"\r\n") == std::string_view::npos)
        return std::string(text);
    std::string quoted = "\"";
    for (const char character : text) {
        if (character == '"')
            quoted += '"';
        quoted += character;
    }
    return quoted + '"';
}

std::string csvfield::line(const std::vector<std::string> &fields)
{
    std::string line;
    const char *separator = "";
    for (const std::string &field : fields) {
        line += separator;
        if (!isNoNumber(field))
            line += quoted(field);
        separator = ",";
    }
    return line + "\r\n";
}
