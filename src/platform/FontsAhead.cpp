#include "platform/FontsAhead.h"

#ifdef CURVEGRAB_FONTCONFIG
#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <clocale>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace {

/// What the application object takes out of the environment goes to its end: what stands before it
/// keeps its place then, and can be read meanwhile.
void moveToEndOfEnvironment(std::string_view name)
{
    char **found = nullptr;
    char **entry = environ;
    for (; *entry != nullptr; ++entry) {
        const std::string_view variable = *entry;
        if (variable.starts_with(name) && variable.substr(name.size()).starts_with('='))
            found = entry;
    }
    if (found != nullptr)
        std::rotate(found, found + 1, entry);
}

void readFonts()
{
    // The application object changes the locale of the program; this thread reads in its own.
    const locale_t plain = ::newlocale(LC_ALL_MASK, "C", nullptr);
    const locale_t former = ::uselocale(plain);
    ::FcInit();
    ::uselocale(former);
    if (plain != nullptr)
        ::freelocale(plain);
}

} // namespace

FontsAhead::FontsAhead()
{
    moveToEndOfEnvironment("XDG_ACTIVATION_TOKEN");
    moveToEndOfEnvironment("DESKTOP_STARTUP_ID");
    try {
        m_reading = std::thread(readFonts);
    } catch (const std::system_error &) {
        // They are read with the first text.
    }
}
#else
FontsAhead::FontsAhead() = default;
#endif

FontsAhead::~FontsAhead() { await(); }

void FontsAhead::await()
{
    if (m_reading.joinable())
        m_reading.join();
}
