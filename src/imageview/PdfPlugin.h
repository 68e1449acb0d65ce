#pragma once

#include "imageview/PdfLibrary.h"

/// What the program sees of the module.
class PdfPlugin final : public QObject, public PdfLibrary
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID CURVEGRAB_PDF_LIBRARY)
    Q_INTERFACES(PdfLibrary)

public:
    [[nodiscard]] PdfPages readPages(const QString &path, const QString &password) const override;
    [[nodiscard]] std::unique_ptr<PdfPainter> open(const QString &path,
                                                   const QString &password) const override;
};
