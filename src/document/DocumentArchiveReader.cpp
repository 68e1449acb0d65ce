// Reads a document file. Nothing in it is trusted: every length is compared with the bytes that are
// left before memory is asked for, and numbers of values and depths are bounded.
#include "document/DocumentArchive.h"

#include "archiving/ArchivedCopy.h"
#include "conversion/ConverterArchive.h"
#include "document/DocumentKeys.h"
#include "document/DocumentSchema.h"
#include "document/PictureHead.h"
#include "geometry/ZKVector.h"
#include "imageview/ArchivedPicture.h"

#include <QCborStreamReader>

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

using documentarchive::Damage;
using documentarchive::Fault;
using documentarchive::Pixels;

namespace {

// Far above what documents have, and low enough that reading stays within a few hundred megabytes.
constexpr int greatestDepth = 16;
constexpr std::size_t mostValues = 2'000'000;
constexpr std::size_t mostKeys = 256;
constexpr std::size_t mostItemsOfObject = 1000;
constexpr std::size_t mostDamages = 100;
constexpr qint64 longestText = 65'536;

constexpr quint64 objectTag = 27;
constexpr quint64 shareableTag = 28;
constexpr quint64 referenceTag = 29;

using Object = std::shared_ptr<const Archivable>;

/// The object of class `name` from its values, or null.
Object objectFrom(std::string_view name, const std::vector<ArchivedItem> &items)
{
    SequentialDecoder coder(items);
    Object object;
    if (name == ArchivedPicture::archivedName) {
        object = ArchivedPicture::initWithCoder(coder);
    } else if (name == ZKVector::kClassName) {
        // Documents hold points only.
        if (const auto point = ZKVector::initWithCoder(coder); point && point->dimension() == 2)
            object = std::make_shared<ArchivedCopy<ZKVector>>(*point);
    } else {
        object = converterarchive::converterWithCoder(name, coder);
    }
    return coder.failed() || coder.remaining() > 0 ? nullptr : object;
}

/// Reads one CBOR item into an archive tree. The first fault of the encoding ends the reading; a
/// fault of one value leaves that value out and the reading goes on.
class TreeReader
{
public:
    /// `offset` is the place of `bytes` in the file, for reports.
    TreeReader(const QByteArray &bytes, Pixels pixels, qint64 offset = 0)
        : m_reader(bytes)
        , m_bytes(bytes)
        , m_size(bytes.size())
        , m_offset(offset)
        , m_pixels(pixels)
    {}

    [[nodiscard]] ArchiveDictionary readRoot()
    {
        skipTags();
        if (m_reader.type() != QCborStreamReader::Map) {
            report(m_size == 0 ? Fault::EndsEarly : Fault::NoDocument);
            return {};
        }
        ArchiveDictionary root = readDictionary(0);
        m_part.clear();
        if (!m_stopped && m_reader.currentOffset() < m_size)
            report(Fault::TrailingBytes);
        return root;
    }

    [[nodiscard]] ArchiveValue readPart(std::string part)
    {
        m_part = std::move(part);
        return readValue(1);
    }

    [[nodiscard]] const std::vector<Damage> &damages() const { return m_damages; }
    [[nodiscard]] bool stopped() const { return m_stopped; }

private:
    void report(Fault fault) { report({fault, m_part, m_offset + m_reader.currentOffset()}); }

    void report(const Damage &damage)
    {
        if (m_damages.size() < mostDamages)
            m_damages.push_back(damage);
    }

    void stop(Fault fault)
    {
        if (!m_stopped)
            report(fault);
        m_stopped = true;
    }

    /// Ends the reading if the decoder did.
    void checkReader()
    {
        const QCborError error = m_reader.lastError();
        if (error == QCborError::NoError)
            return;
        if (error == QCborError::EndOfFile)
            stop(Fault::EndsEarly);
        else
            stop(error == QCborError::NestingTooDeep ? Fault::TooLarge : Fault::Unreadable);
    }

    /// Goes behind a value; false once the reading has ended.
    bool advance(int depth)
    {
        if (!m_reader.next(greatestDepth - depth))
            checkReader();
        return !m_stopped;
    }

    void skipTags()
    {
        while (m_reader.isTag() && m_reader.next(0)) {
        }
    }

    [[nodiscard]] qint64 bytesLeft() const { return m_size - m_reader.currentOffset(); }

    /// Whether the container at hand may be entered: its length is possible and it is not too deep.
    bool mayEnter(int depth, quint64 bytesPerEntry)
    {
        if (depth >= greatestDepth)
            stop(Fault::TooLarge);
        else if (m_reader.isLengthKnown() &&
                 m_reader.length() > static_cast<quint64>(bytesLeft()) / bytesPerEntry)
            stop(Fault::EndsEarly);
        return !m_stopped;
    }

    bool enter()
    {
        if (!m_reader.enterContainer())
            checkReader();
        return !m_stopped;
    }

    void leave()
    {
        if (!m_stopped && !m_reader.leaveContainer())
            checkReader();
    }

    /// Whether another entry of the container is to be read.
    bool hasNext()
    {
        checkReader();
        return !m_stopped && m_reader.hasNext();
    }

    ArchiveValue readValue(int depth)
    {
        if (++m_values > mostValues)
            stop(Fault::TooLarge);
        checkReader();
        if (m_stopped)
            return {};
        switch (m_reader.type()) {
        case QCborStreamReader::UnsignedInteger:
        case QCborStreamReader::NegativeInteger:
            return readInteger(depth);
        case QCborStreamReader::String:
            return {readText().value_or(std::string())};
        case QCborStreamReader::Array:
            return {readArray(depth)};
        case QCborStreamReader::Map:
            return {readDictionary(depth)};
        case QCborStreamReader::Tag:
            return readTagged(depth);
        default:
            return readSimple(depth);
        }
    }

    ArchiveValue readSimple(int depth)
    {
        ArchiveValue value;
        if (m_reader.isBool())
            value.value = m_reader.toBool();
        else if (m_reader.isFloat16())
            value.value = static_cast<float>(m_reader.toFloat16());
        else if (m_reader.isFloat())
            value.value = m_reader.toFloat();
        else if (m_reader.isDouble())
            value.value = m_reader.toDouble();
        else if (m_reader.isInvalid())
            stop(Fault::Unreadable);
        // What is left (null, bytes without a class) is no value that the tree knows.
        advance(depth);
        return value;
    }

    [[nodiscard]] std::optional<std::int64_t> integer() const
    {
        constexpr auto greatest = static_cast<quint64>(std::numeric_limits<std::int64_t>::max());
        const quint64 size = m_reader.isUnsignedInteger()
                                 ? m_reader.toUnsignedInteger()
                                 : static_cast<quint64>(m_reader.toNegativeInteger()) - 1;
        if (size > greatest)
            return std::nullopt;
        const auto number = static_cast<std::int64_t>(size);
        return m_reader.isUnsignedInteger() ? number : -1 - number;
    }

    ArchiveValue readInteger(int depth)
    {
        const std::optional<std::int64_t> number = integer();
        if (!number)
            report(Fault::WrongKind);
        advance(depth);
        return number ? ArchiveValue{*number} : ArchiveValue{};
    }

    /// The text at hand; nothing once the reading has ended.
    std::optional<std::string> readText()
    {
        std::string text;
        for (;;) {
            const qint64 length = m_reader.currentStringChunkSize();
            if (length > bytesLeft())
                stop(Fault::EndsEarly);
            else if (length + static_cast<qint64>(text.size()) > longestText)
                stop(Fault::TooLarge);
            if (m_stopped)
                return std::nullopt;
            const auto chunk = m_reader.readString();
            if (chunk.status == QCborStreamReader::EndOfString)
                return text;
            if (chunk.status == QCborStreamReader::Error) {
                checkReader();
                stop(Fault::Unreadable);
                return std::nullopt;
            }
            text += chunk.data.toStdString();
        }
    }

    /// The bytes at hand, copied once; null once the reading has ended.
    ArchivedBytes readBytes()
    {
        auto bytes = std::make_shared<std::vector<std::byte>>();
        for (;;) {
            const qint64 length = m_reader.currentStringChunkSize();
            if (length > bytesLeft()) {
                stop(Fault::EndsEarly);
                return nullptr;
            }
            const std::size_t filled = bytes->size();
            bytes->resize(filled + static_cast<std::size_t>(std::max<qint64>(length, 0)));
            const auto chunk = m_reader.readStringChunk(
                reinterpret_cast<char *>(bytes->data() + filled), std::max<qint64>(length, 0));
            if (chunk.status == QCborStreamReader::EndOfString)
                return bytes;
            if (chunk.status == QCborStreamReader::Error) {
                checkReader();
                stop(Fault::Unreadable);
                return nullptr;
            }
        }
    }

    /// The bytes at hand as a picture without its pixels, which are passed over where they stand in
    /// one piece; null once the reading has ended.
    ArchivedBytes readPictureHead()
    {
        std::span<const std::byte> picture;
        ArchivedBytes pieces;
        if (m_reader.isLengthKnown()) {
            picture = passOverBytes();
        } else if ((pieces = readBytes())) {
            picture = *pieces;
        }
        if (m_stopped)
            return nullptr;
        return std::make_shared<const std::vector<std::byte>>(picturehead::of(picture));
    }

    /// The bytes at hand, of known length, where they stand in the file.
    std::span<const std::byte> passOverBytes()
    {
        const qint64 length = m_reader.currentStringChunkSize();
        if (length < 0 || length > bytesLeft()) {
            stop(Fault::EndsEarly);
            return {};
        }
        char nothing = 0;
        auto chunk = m_reader.readStringChunk(&nothing, 0); // what has no room is passed over
        while (chunk.status == QCborStreamReader::Ok)
            chunk = m_reader.readStringChunk(&nothing, 0);
        const qint64 end = m_reader.currentOffset();
        if (chunk.status == QCborStreamReader::Error || end < length || end > m_size) {
            checkReader();
            stop(Fault::Unreadable);
            return {};
        }
        return std::as_bytes(
            std::span(m_bytes.constData() + end - length, static_cast<std::size_t>(length)));
    }

    ArchiveArray readArray(int depth)
    {
        ArchiveArray array;
        if (!mayEnter(depth, 1) || !enter())
            return array;
        while (hasNext())
            array.push_back(readValue(depth + 1));
        leave();
        return array;
    }

    ArchiveDictionary readDictionary(int depth)
    {
        ArchiveDictionary dictionary;
        if (!mayEnter(depth, 2) || !enter())
            return dictionary;
        while (hasNext())
            readEntry(dictionary, depth);
        leave();
        return dictionary;
    }

    void readEntry(ArchiveDictionary &dictionary, int depth)
    {
        if (!m_reader.isString())
            stop(Fault::Unreadable);
        else if (dictionary.entries().size() >= mostKeys)
            stop(Fault::TooLarge);
        if (m_stopped)
            return;
        const std::optional<std::string> key = readText();
        if (!key)
            return;
        if (depth == 0)
            m_part = *key;
        checkReader();
        ArchiveValue value = readValue(depth + 1);
        if (dictionary.find(*key) != nullptr)
            report(Fault::RepeatedKey);
        else
            dictionary.set(*key, std::move(value));
    }

    ArchiveValue readTagged(int depth)
    {
        const auto tag = static_cast<quint64>(m_reader.toTag());
        if (depth >= greatestDepth)
            stop(Fault::TooLarge);
        if (m_stopped || !advance(depth))
            return {};
        switch (tag) {
        case objectTag:
            return readObject(depth + 1);
        case shareableTag:
            return readShareable(depth + 1);
        case referenceTag:
            return readReference(depth + 1);
        default:
            return readValue(depth + 1);
        }
    }

    ArchiveValue readShareable(int depth)
    {
        const std::size_t number = m_shared.size();
        m_shared.emplace_back();
        ArchiveValue value = readValue(depth);
        if (const auto *object = std::get_if<Object>(&value.value))
            m_shared[number] = *object;
        return value;
    }

    ArchiveValue readReference(int depth)
    {
        const ArchiveValue number = readValue(depth);
        const auto *index = std::get_if<std::int64_t>(&number.value);
        if (index != nullptr && *index >= 0 && static_cast<std::size_t>(*index) < m_shared.size()) {
            if (const Object &object = m_shared[static_cast<std::size_t>(*index)])
                return {object};
        }
        if (!m_stopped)
            report(Fault::BadReference);
        return {};
    }

    ArchiveValue readObject(int depth)
    {
        const Damage damage{Fault::BadObject, m_part, m_offset + m_reader.currentOffset()};
        if (!m_reader.isArray()) {
            report(Fault::BadObject);
            advance(depth);
            return {};
        }
        if (!mayEnter(depth, 1) || !enter())
            return {};
        std::string className;
        bool isSound = hasNext() && m_reader.isString();
        if (isSound)
            className = readText().value_or(std::string());
        std::vector<ArchivedItem> items;
        while (hasNext()) {
            isSound = readItem(items, depth + 1) && isSound;
            if (items.size() > mostItemsOfObject)
                stop(Fault::TooLarge);
        }
        leave();
        if (m_stopped)
            return {};
        if (Object object = isSound ? objectFrom(className, items) : nullptr)
            return {std::move(object)};
        report(damage);
        return {};
    }

    /// One value of an object; false if it is of no kind that objects have.
    bool readItem(std::vector<ArchivedItem> &items, int depth)
    {
        if (m_reader.isInteger()) {
            const std::optional<std::int64_t> number = integer();
            items.emplace_back(ArchivedInteger{number.value_or(0)});
            return advance(depth) && number;
        }
        if (m_reader.isByteArray()) {
            items.emplace_back(m_pixels == Pixels::Kept ? readBytes() : readPictureHead());
            return !m_stopped;
        }
        if (m_reader.isArray())
            return readPoint(items, depth);
        if (const std::optional<double> number = realNumber()) {
            items.emplace_back(*number);
            return advance(depth);
        }
        advance(depth);
        return false;
    }

    /// The real number at hand. Writers may shorten one that fits fewer bits.
    [[nodiscard]] std::optional<double> realNumber() const
    {
        if (m_reader.isDouble())
            return m_reader.toDouble();
        if (m_reader.isFloat())
            return static_cast<double>(m_reader.toFloat());
        if (m_reader.isFloat16())
            return static_cast<double>(static_cast<float>(m_reader.toFloat16()));
        return std::nullopt;
    }

    bool readPoint(std::vector<ArchivedItem> &items, int depth)
    {
        const bool isPair = m_reader.isLengthKnown() && m_reader.length() == 2;
        if (!isPair || !enter()) {
            if (!m_stopped)
                advance(depth);
            return false;
        }
        std::array<float, 2> pair{};
        bool isSound = true;
        for (float &number : pair) {
            const std::optional<double> real = hasNext() ? realNumber() : std::nullopt;
            isSound = isSound && real;
            number = static_cast<float>(real.value_or(0));
            if (!m_stopped)
                advance(depth + 1);
        }
        leave();
        items.emplace_back(ArchivedPoint{pair[0], pair[1]});
        return isSound && !m_stopped;
    }

    QCborStreamReader m_reader;
    const QByteArray m_bytes;
    const qint64 m_size;
    const qint64 m_offset;
    const Pixels m_pixels;
    std::string m_part;
    std::vector<Object> m_shared;
    std::vector<Damage> m_damages;
    std::size_t m_values = 0;
    bool m_stopped = false;
};

/// Looks for the components that the reading did not come to, by their keys, and reads them where
/// they stand.
void findMissingParts(const QByteArray &bytes, Pixels pixels, ArchiveDictionary &root)
{
    for (const char *const part : {documentkeys::graphImageViewData,
                                   documentkeys::dataTableViewData, documentkeys::currentAxesData,
                                   documentkeys::cursorGuideData, documentkeys::dataSeriesData}) {
        if (root.dictionaryForKey(part) != nullptr)
            continue;
        const QByteArray key(part);
        const qsizetype place = bytes.indexOf(key);
        if (place < 0)
            continue;
        const qsizetype begin = place + key.size();
        TreeReader reader(QByteArray::fromRawData(bytes.constData() + begin, bytes.size() - begin),
                          pixels, begin);
        ArchiveValue value = reader.readPart(part);
        if (std::holds_alternative<ArchiveDictionary>(value.value))
            root.set(part, std::move(value));
    }
}

} // namespace

namespace documentarchive {

Reading unarchived(const QByteArray &bytes, Pixels pixels)
{
    TreeReader reader(bytes, pixels);
    Reading reading;
    reading.root = reader.readRoot();
    reading.damages = reader.damages();
    if (reader.stopped())
        findMissingParts(bytes, pixels, reading.root);
    documentschema::check(reading.root, reading.damages);
    return reading;
}

} // namespace documentarchive
