#include "imageview/PictureSuffixes.h"

#include <QImageReader>

namespace picturesuffixes {

QStringList all()
{
    QStringList suffixes;
    for (const QByteArray &format : QImageReader::supportedImageFormats()) {
        // Qt's own reader for PDF knows nothing of pages and boxes.
        if (format != "pdf")
            suffixes.append(QString::fromLatin1(format).toLower());
    }
    suffixes.removeDuplicates();
    suffixes.sort();
    return suffixes;
}

} // namespace picturesuffixes
