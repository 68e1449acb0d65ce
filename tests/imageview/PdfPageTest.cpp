#include "imageview/PdfPage.h"

#include <gtest/gtest.h>

TEST(PdfPage, letterPaperAtScaleFourHasFourTimesItsPoints)
{
    const PdfPlacement placement = pdfplacement::placementOf({612, 792, 0}, 4);
    EXPECT_EQ(placement.imageSize, (FloatSize{2448, 3168}));
    EXPECT_EQ(placement.imagePixels, QSize(2448, 3168));
    EXPECT_EQ(placement.pagePixels, QSize(2448, 3168));
    EXPECT_EQ(placement.pageOrigin, QPoint(0, 0));
}

TEST(PdfPage, brokenSizesKeepTheirFractionAndRoundTheirPixelsUp)
{
    const PdfPlacement placement = pdfplacement::placementOf({100.5, 50.25, 0}, 1);
    EXPECT_EQ(placement.imageSize, (FloatSize{100.5F, 50.25F}));
    EXPECT_EQ(placement.imagePixels, QSize(101, 51));
    EXPECT_EQ(placement.pagePixels.height(), 50);
}

TEST(PdfPage, turnedAsideItShrinksIntoTheUnturnedPaper)
{
    for (const int rotation : {90, 270}) {
        const PdfPlacement placement = pdfplacement::placementOf({300, 200, rotation}, 3);
        EXPECT_EQ(placement.imagePixels, QSize(900, 600));
        EXPECT_EQ(placement.pagePixels, QSize(400, 600));
        EXPECT_EQ(placement.pageOrigin, QPoint(250, 0));
    }
}

TEST(PdfPage, turnedAsidePortraitPaperIsWhiteAboveAndBelow)
{
    const PdfPlacement placement = pdfplacement::placementOf({200, 300, 90}, 3);
    EXPECT_EQ(placement.imagePixels, QSize(600, 900));
    EXPECT_EQ(placement.pagePixels, QSize(600, 400));
    EXPECT_EQ(placement.pageOrigin, QPoint(0, 250));
}

TEST(PdfPage, aSquarePageIsNeverMadeLargerOrSmaller)
{
    const PdfPlacement placement = pdfplacement::placementOf({200, 200, 90}, 2);
    EXPECT_EQ(placement.pagePixels, QSize(400, 400));
    EXPECT_EQ(placement.pageOrigin, QPoint(0, 0));
}

TEST(PdfPage, upsideDownItKeepsItsSize)
{
    const PdfPlacement placement = pdfplacement::placementOf({300, 200, 180}, 1);
    EXPECT_EQ(placement.pagePixels, QSize(300, 200));
    EXPECT_EQ(placement.pageOrigin, QPoint(0, 0));
}

TEST(PdfPage, endlessPaperStaysCountable)
{
    const PdfPlacement placement = pdfplacement::placementOf({1e30, 1e-30, 90}, 8);
    EXPECT_GT(placement.imagePixels.width(), 1'000'000);
    EXPECT_GE(placement.pagePixels.height(), 1);
}
