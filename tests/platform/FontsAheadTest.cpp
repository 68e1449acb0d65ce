#include "platform/FontsAhead.h"

#include <fontconfig/fontconfig.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

std::string lastOfEnvironment()
{
    char **entry = environ;
    while (entry[1] != nullptr)
        ++entry;
    return *entry;
}

/// A file with settings of fonts that is gone in the end.
class FontSettings
{
public:
    FontSettings()
    {
        std::ofstream(m_path) << "<?xml version=\"1.0\"?><fontconfig></fontconfig>\n";
        ::setenv("FONTCONFIG_FILE", m_path.c_str(), 1);
    }

    FontSettings(const FontSettings &) = delete;
    FontSettings &operator=(const FontSettings &) = delete;
    FontSettings(FontSettings &&) = delete;
    FontSettings &operator=(FontSettings &&) = delete;

    ~FontSettings()
    {
        std::error_code error;
        std::filesystem::remove(m_path, error);
        ::unsetenv("FONTCONFIG_FILE");
    }

    [[nodiscard]] bool wereRead() const
    {
        FcStrList *const files = ::FcConfigGetConfigFiles(nullptr);
        bool found = false;
        while (const FcChar8 *const file = ::FcStrListNext(files))
            found = found || reinterpret_cast<const char *>(file) == m_path;
        ::FcStrListDone(files);
        return found;
    }

private:
    std::string m_path = std::filesystem::temp_directory_path() /
                         ("curvegrab-fonts-" + std::to_string(::getpid()) + ".conf");
};

} // namespace

TEST(FontsAhead, theSettingsOfTheFontsAreReadBeforeSomebodyAsksForThem)
{
    const FontSettings settings;
    FontsAhead fonts;
    fonts.await();
    ::setenv("FONTCONFIG_FILE", "/nowhere", 1); // whoever reads only now does not find them
    EXPECT_TRUE(settings.wereRead());
}

TEST(FontsAhead, whatIsTakenOutOfTheEnvironmentMeanwhileStandsLastInIt)
{
    ::setenv("DESKTOP_STARTUP_ID", "panel-1_TIME7", 1);
    ::setenv("CURVEGRAB_AFTER_IT", "1", 1);
    const FontsAhead fonts;
    EXPECT_EQ(lastOfEnvironment(), "DESKTOP_STARTUP_ID=panel-1_TIME7");
}

TEST(FontsAhead, whatIsNotInTheEnvironmentIsNotPutThere)
{
    ::unsetenv("XDG_ACTIVATION_TOKEN");
    const FontsAhead fonts;
    EXPECT_EQ(std::getenv("XDG_ACTIVATION_TOKEN"), nullptr);
}
