#include "imageview/PictureSuffixes.h"

#include <gtest/gtest.h>

TEST(PictureSuffixes, includeThoseOfAllPicturesThatCanBeOpened)
{
    for (const QString &suffix : picturesuffixes::all()) {
        EXPECT_TRUE(picturesuffixes::includes(suffix)) << qPrintable(suffix);
        EXPECT_TRUE(picturesuffixes::includes(suffix.toUpper())) << qPrintable(suffix);
    }
}

TEST(PictureSuffixes, includeNoOthers)
{
    for (const char *suffix : {"", "crvgrab", "txt", "pn", "png2"})
        EXPECT_FALSE(picturesuffixes::includes(QLatin1String(suffix))) << suffix;
}

// Those that are known without asking for them are there all the same.
TEST(PictureSuffixes, theUsualOnesAreAmongAll)
{
    for (const char *suffix : {"png", "jpg", "jpeg", "pdf"})
        EXPECT_TRUE(picturesuffixes::all().contains(QLatin1String(suffix))) << suffix;
}

TEST(PictureSuffixes, aHiddenFileHasNone)
{
    EXPECT_TRUE(picturesuffixes::includesSuffixOf(QStringLiteral("/tmp/a.PNG")));
    EXPECT_FALSE(picturesuffixes::includesSuffixOf(QStringLiteral("/tmp/.png")));
}
