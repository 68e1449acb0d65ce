#include "imageview/PictureReader.h"

#include "imageview/PictureFile.h"
#include "imageview/PictureMemory.h"
#include "platform/Texts.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <new>
#include <string>
#include <utility>

namespace {

/// Drawings have no pixels of their own; larger ones are made to fit this.
constexpr int longestSideOfDrawing = 8192;

/// Where the signature of a page description may stand.
constexpr qint64 signatureRange = 1024;

bool isDrawing(const QByteArray &format) { return format == "svg" || format == "svgz"; }

/// Formats without a real signature, which are believed only with the right file name.
bool hasWeakSignature(const QByteArray &format)
{
    static const std::array<QByteArray, 3> weak{"tga", "wbmp", "xbm"};
    return std::find(weak.begin(), weak.end(), format) != weak.end();
}

std::optional<PictureProblem> problemOfFormat(QImageReader &reader, const PictureSource &source)
{
    if (!reader.canRead())
        return PictureProblem::NotAPicture;
    const QByteArray format = reader.format();
    if (format.isEmpty() || format == "pdf")
        return PictureProblem::NotAPicture;
    if (hasWeakSignature(format) && format != source.suffix().toLatin1())
        return PictureProblem::NotAPicture;
    return {};
}

std::optional<PictureProblem> problemOfSize(QImageReader &reader, std::uint64_t memoryLimit)
{
    const QSize size = reader.size();
    if (isDrawing(reader.format())) {
        if (size.isEmpty())
            return PictureProblem::Damaged;
        if (std::max(size.width(), size.height()) > longestSideOfDrawing) {
            const QSize bounded =
                size.scaled(longestSideOfDrawing, longestSideOfDrawing, Qt::KeepAspectRatio);
            reader.setScaledSize(bounded.expandedTo({1, 1}));
        }
        return {};
    }
    if (size.isEmpty())
        return PictureProblem::Damaged;
    if (!picturememory::fits(reader, memoryLimit))
        return PictureProblem::TooLarge;
    return {};
}

/// Decoders make up what is missing at the end of some formats; the file knows better.
bool isIncomplete(const PictureFile &file, const QByteArray &format)
{
    if (format == "jpeg" || format == "jpg" || format == "gif")
        return file.ranOut();
    static const std::array<QByteArray, 9> exact{"bmp", "dib", "tif", "tiff", "pbm",
                                                 "pgm", "ppm", "tga", "wbmp"};
    return std::find(exact.begin(), exact.end(), format) != exact.end() && file.fellShort();
}

/// Looks for the signature of page descriptions, which are never read as bitmaps.
bool isPageDescription(PictureFile &file) { return file.peek(signatureRange).contains("%PDF-"); }

/// The format that the first bytes tell beyond doubt; null for those that the toolkit's plugins,
/// all of which it loads for that, have to be asked about.
QByteArray formatOfSignature(PictureFile &file)
{
    static const std::array<std::pair<QByteArray, QByteArray>, 2> signatures{
        {{QByteArray("\x89PNG\r\n\x1a\n"), "png"}, {QByteArray("\xff\xd8\xff"), "jpeg"}}};
    for (const auto &[signature, format] : signatures)
        if (file.peek(signature.size()) == signature)
            return format;
    return {};
}

/// Opens `file` for `reader` up to the point where only the decoding is left.
std::optional<PictureProblem> prepare(PictureFile &file, QImageReader &reader,
                                      const PictureSource &source, std::uint64_t memoryLimit)
{
    const auto known = source.isFile() ? pictureproblem::ofPath(source.path()) : std::nullopt;
    if (known)
        return known;
    if (!file.open(QIODevice::ReadOnly))
        return PictureProblem::Unreadable;
    if (file.size() == 0)
        return PictureProblem::Empty;
    if (isPageDescription(file))
        return PictureProblem::PdfUnderOtherName;
    QImageReader::setAllocationLimit(0); // the size is compared with the memory here instead
    reader.setDevice(&file);
    const QByteArray format = formatOfSignature(file);
    reader.setFormat(format);
    reader.setDecideFormatFromContent(format.isEmpty());
    reader.setAutoTransform(true);
    if (const auto problem = problemOfFormat(reader, source))
        return problem;
    return problemOfSize(reader, memoryLimit);
}

PictureReading decoded(PictureFile &file, QImageReader &reader, const std::stop_token &stop)
{
    PictureReading reading{{}, {}, reader.size()};
    const QByteArray format = reader.format();
    file.beginNoticing();
    QImage image = reader.read();
    if (stop.stop_requested())
        reading.problem = PictureProblem::Cancelled;
    else if (image.isNull() || isIncomplete(file, format))
        reading.problem = PictureProblem::Damaged;
    if (reading.problem)
        return reading;
    reading.picture = Picture::fromImageRep(std::move(image));
    if (!reading.picture)
        reading.problem = PictureProblem::TooLarge;
    return reading;
}

const char *keyOf(PictureProblem problem)
{
    switch (problem) {
    case PictureProblem::Missing:
        return "imageview.error.missing";
    case PictureProblem::Folder:
        return "imageview.error.folder";
    case PictureProblem::Unreadable:
        return "imageview.error.unreadable";
    case PictureProblem::Empty:
        return "imageview.error.empty";
    case PictureProblem::NotAPicture:
        return "imageview.error.not-a-picture";
    case PictureProblem::Damaged:
        return "imageview.error.damaged";
    case PictureProblem::TooLarge:
        return "imageview.error.too-large";
    case PictureProblem::NotAPdf:
        return "imageview.error.not-a-pdf";
    case PictureProblem::PdfUnderOtherName:
        return "imageview.error.pdf-under-other-name";
    case PictureProblem::NoPages:
        return "imageview.error.no-pages";
    case PictureProblem::PageTooLarge:
        return "imageview.error.page-too-large";
    case PictureProblem::NeedsPassword:
        return "imageview.error.needs-password";
    case PictureProblem::UnknownProtection:
        return "imageview.error.unknown-protection";
    case PictureProblem::PdfModuleMissing:
        return "imageview.error.pdf-module-missing";
    case PictureProblem::Cancelled:
        break;
    }
    return "imageview.error.cancelled";
}

/// For what was handed over, there is nothing to tell about files.
const char *keyOfHandedOver(PictureProblem problem)
{
    switch (problem) {
    case PictureProblem::Damaged:
        return "imageview.pasted.damaged";
    case PictureProblem::TooLarge:
        return "imageview.pasted.too-large";
    default:
        return "imageview.pasted.not-a-picture";
    }
}

QString withSize(QString text, QSize size)
{
    const auto number = [](int value) { return QString::fromStdString(std::to_string(value)); };
    text.replace(QStringLiteral("%2"), number(size.width()));
    return text.replace(QStringLiteral("%3"), number(size.height()));
}

} // namespace

PictureReader::PictureReader(std::uint64_t memoryLimit)
    : m_memoryLimit(memoryLimit)
{}

PictureReading PictureReader::probe(const PictureSource &source) const
{
    PictureFile file(source, {}, nullptr);
    QImageReader reader;
    const std::optional<PictureProblem> problem = prepare(file, reader, source, m_memoryLimit);
    return {{}, problem, reader.device() != nullptr ? reader.size() : QSize()};
}

PictureReading PictureReader::read(const PictureSource &source, const std::stop_token &stop,
                                   std::atomic<int> *percentRead) const
{
    PictureFile file(source, stop, percentRead);
    QImageReader reader;
    try {
        if (const auto problem = prepare(file, reader, source, m_memoryLimit))
            return {{}, problem, reader.device() != nullptr ? reader.size() : QSize()};
        // What others have taken since the limit was measured counts too.
        const auto claim =
            picturememory::claim(reader, std::min(m_memoryLimit, picturememory::available()));
        if (!claim && !isDrawing(reader.format()))
            return {{}, PictureProblem::TooLarge, reader.size()};
        return decoded(file, reader, stop);
    } catch (const std::bad_alloc &) {
        return {{}, PictureProblem::TooLarge, {}};
    }
}

PictureReading PictureReader::read(const QImage &pixels) const
{
    if (pixels.isNull())
        return {{}, PictureProblem::NotAPicture, {}};
    PictureReading reading{{}, PictureProblem::TooLarge, pixels.size()};
    if (!picturememory::fits(pixels, m_memoryLimit))
        return reading;
    try {
        reading.picture = Picture::fromImageRep(pixels);
    } catch (const std::bad_alloc &) {
        return reading;
    }
    if (reading.picture)
        reading.problem.reset();
    return reading;
}

std::optional<PictureProblem> pictureproblem::ofPath(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return PictureProblem::Missing;
    if (file.isDir())
        return PictureProblem::Folder;
    if (!file.isFile() || !file.isReadable())
        return PictureProblem::Unreadable;
    if (file.size() == 0)
        return PictureProblem::Empty;
    return {};
}

QString pictureproblem::explanation(const PictureReading &reading, const PictureSource &source)
{
    if (!source.isFile())
        return explanation(reading);
    const QString text =
        withSize(texts::localized(keyOf(reading.problem.value())), reading.pixelSize);
    // The name comes last: it may hold anything.
    return QString(text).replace(QStringLiteral("%1"), source.name());
}

QString pictureproblem::explanation(const PictureReading &reading)
{
    return withSize(texts::localized(keyOfHandedOver(reading.problem.value())), reading.pixelSize);
}
