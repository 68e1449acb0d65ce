#include "imageview/PasteboardPicture.h"

#include "imageview/PictureReader.h"
#include "imageview/PictureSuffixes.h"

#include <QMimeData>
#include <QSysInfo>
#include <QUrl>

#include <algorithm>
#include <array>

namespace pasteboardpicture {

namespace {

/// Files that programs of the same computer name with its host.
bool isThisHost(const QString &host)
{
    return host.isEmpty() || host.compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0 ||
           host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
}

std::size_t rank(const QString &format)
{
    static const std::array<QLatin1String, 5> lossless{
        QLatin1String("image/png"), QLatin1String("image/tiff"), QLatin1String("image/bmp"),
        QLatin1String("image/x-bmp"), QLatin1String("image/x-ms-bmp")};
    const std::size_t unknown = lossless.size();
    if (format.contains(QLatin1String("svg"), Qt::CaseInsensitive))
        return unknown + 1;
    const auto *const place =
        std::find_if(lossless.begin(), lossless.end(), [&format](QLatin1String known) {
            return format.compare(known, Qt::CaseInsensitive) == 0;
        });
    return static_cast<std::size_t>(place - lossless.begin());
}

} // namespace

std::optional<QString> firstFile(const QMimeData &pasteboard)
{
    for (QUrl url : pasteboard.urls()) {
        if (!url.isLocalFile())
            continue;
        if (isThisHost(url.host()))
            url.setHost(QString());
        return url.toLocalFile();
    }
    return {};
}

bool isOffered(const QMimeData &pasteboard)
{
    if (const std::optional<QString> file = firstFile(pasteboard))
        return picturesuffixes::includesSuffixOf(*file);
    return pasteboard.hasImage() || !imageFormats(pasteboard).isEmpty();
}

QStringList imageFormats(const QMimeData &pasteboard)
{
    QStringList formats;
    for (const QString &format : pasteboard.formats()) {
        if (format.startsWith(QLatin1String("image/"), Qt::CaseInsensitive))
            formats.append(format);
    }
    std::stable_sort(formats.begin(), formats.end(),
                     [](const QString &a, const QString &b) { return rank(a) < rank(b); });
    return formats;
}

std::optional<PictureSource> imageSource(const QMimeData &pasteboard, const PictureReader &reader)
{
    std::optional<PictureSource> first;
    for (const QString &format : imageFormats(pasteboard)) {
        const PictureSource source = PictureSource::handedOver(pasteboard.data(format), format);
        const PictureReading probed = reader.probe(source);
        // What is too large in one form is so in all.
        if (!probed.problem || probed.problem == PictureProblem::TooLarge)
            return source;
        if (!first)
            first = source;
    }
    return first;
}

} // namespace pasteboardpicture
