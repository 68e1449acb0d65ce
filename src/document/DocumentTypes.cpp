#include "document/DocumentTypes.h"

#include "imageview/PictureSuffixes.h"

#include <QDir>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace documenttypes {

bool isDocument(const QString &path)
{
    return QFileInfo(path).suffix().compare(QLatin1String(extension), Qt::CaseInsensitive) == 0;
}

bool isPicture(const QString &path) { return picturesuffixes::includes(QFileInfo(path).suffix()); }

QString documentPathFor(const QString &path)
{
    const QFileInfo file(path);
    return file.absoluteDir().filePath(file.completeBaseName() + QLatin1Char('.') +
                                       QLatin1String(extension));
}

QStringList documentPaths(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile() && isDocument(url.toLocalFile()))
            paths.append(url.toLocalFile());
    }
    return paths;
}

} // namespace documenttypes
