#include "imageview/PictureSuffixes.h"

#include <QFileInfo>
#include <QImageReader>

namespace picturesuffixes {

QStringList all()
{
    QStringList suffixes;
    for (const QByteArray &format : QImageReader::supportedImageFormats())
        suffixes.append(QString::fromLatin1(format).toLower());
    // Whether or not the toolkit reads it as a bitmap, which is not the way it is opened.
    suffixes.append(QStringLiteral("pdf"));
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
