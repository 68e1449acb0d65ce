#include "imageview/PdfLibrary.h"

#include "platform/Modules.h"

PdfLibrary *PdfLibrary::find()
{
    return modules::find<PdfLibrary>(modules::folder(), QStringLiteral("curvegrabpdf"));
}
