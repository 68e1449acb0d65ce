#include "document/DocumentTypes.h"

#include <gtest/gtest.h>

TEST(DocumentTypes, theCaseOfAnExtensionDoesNotMatter)
{
    for (const char *name : {"/a/plot.png", "/a/PLOT.PNG", "/a/plot.Pdf"})
        EXPECT_TRUE(documenttypes::isPicture(QString::fromLatin1(name))) << name;
    for (const char *name : {"/a/plot.crvgrab", "/a/PLOT.CRVGRAB"})
        EXPECT_TRUE(documenttypes::isDocument(QString::fromLatin1(name))) << name;
}

TEST(DocumentTypes, onlyTheLastExtensionCounts)
{
    EXPECT_FALSE(documenttypes::isPicture(QStringLiteral("/a/plot.png.txt")));
    EXPECT_FALSE(documenttypes::isPicture(QStringLiteral("/a/png")));
    EXPECT_FALSE(documenttypes::isDocument(QStringLiteral("/a/plot.crvgrab.bak")));
    EXPECT_EQ(documenttypes::documentPathFor(QStringLiteral("/a.b/plot.v2.png")),
              QStringLiteral("/a.b/plot.v2.crvgrab"));
}
