#include "imageview/PictureSuffixes.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <array>

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

bool includes(const QString &suffix)
{
    // Those that charts mostly come with need not wait for all plugins to be loaded.
    static const std::array<QString, 4> usual{QStringLiteral("png"), QStringLiteral("jpg"),
                                              QStringLiteral("jpeg"), QStringLiteral("pdf")};
    const QString lower = suffix.toLower();
    return std::find(usual.begin(), usual.end(), lower) != usual.end() || all().contains(lower);
}

bool includesSuffixOf(const QString &path)
{
    const QFileInfo file(path);
    const bool isHiddenName = file.completeBaseName().isEmpty();
    return !isHiddenName && includes(file.suffix());
}

} // namespace picturesuffixes
