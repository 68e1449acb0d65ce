#pragma once

#include "imageview/PdfPage.h"
#include "imageview/PictureReader.h"

#include <QString>

#include <optional>
#include <vector>

/// What a PDF file says about its pages, without painting any of them.
struct PdfPages
{
    std::vector<PdfPage> pages;
    std::optional<PictureProblem> problem;
    bool isDamaged = false; ///< the file had to be repaired to find the pages

    /// Reads the file; `password` may be empty. Needs no window, and may run in any thread.
    [[nodiscard]] static PdfPages read(const QString &path, const QString &password);
};
