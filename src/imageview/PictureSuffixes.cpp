#include "imageview/PictureSuffixes.h"

#include <QFileInfo>
#include <QImageReader>

namespace picturesuffixes {

QStringList all()
{
    // Whether or not the toolkit reads it as a bitmap: PDF files have a reader of our own.
    QStringList suffixes{QStringLiteral("pdf")};
    for (const QByteArray &format : QImageReader::supportedImageFormats())
        suffixes.append(QString::fromLatin1(format).toLower());
    suffixes.removeDuplicates();
    suffixes.sort();
    return suffixes;
}

bool includesSuffixOf(const QString &path)
{
    const QFileInfo file(path);
    const bool isHiddenName = file.completeBaseName().isEmpty();
    return !isHiddenName && all().contains(file.suffix(), Qt::CaseInsensitive);
}

} // namespace picturesuffixes
