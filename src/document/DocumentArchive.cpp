#include "document/DocumentArchive.h"

#include "capture/SeriesArchive.h"
#include "conversion/ZKConvCoordinate.h"
#include "document/DocumentKeys.h"
#include "imageview/ArchivedPicture.h"
#include "platform/Texts.h"

#include <QCborStreamWriter>
#include <QStringList>

#include <algorithm>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <variant>

namespace {

// Registered CBOR tags: an object with its class name, a value that is referred to later, and a
// reference to the n-th such value.
constexpr auto cborObject = QCborTag(27);
constexpr auto cborShareable = QCborTag(28);
constexpr auto cborReference = QCborTag(29);

template <class T, class... Others>
constexpr bool isOneOf = (std::is_same_v<T, Others> || ...);

/// The class and the exact bits of what `object` archives.
std::string bitsOf(const Archivable &object)
{
    SequentialEncoder coder;
    object.encodeWithCoder(coder);
    std::string bits(object.className());
    for (const ArchivedItem &item : coder.items()) {
        std::visit(
            [&bits](const auto &value) {
                bits.append(reinterpret_cast<const char *>(&value), sizeof value);
            },
            item);
    }
    return bits;
}

/// Writes one archive tree. Objects that stand at several places are found beforehand. Converters
/// never change, so two of the same bits are one: an opened document, whose axes have made their
/// converter anew, is written as it was read.
class TreeWriter
{
public:
    TreeWriter(QByteArray &bytes, const ArchiveDictionary &root)
        : m_writer(&bytes)
    {
        countObjects(root);
        write(root);
    }

private:
    using Object = std::shared_ptr<const Archivable>;

    void countObjects(const ArchiveDictionary &dictionary)
    {
        for (const auto &[key, value] : dictionary.entries())
            countObjects(value);
    }

    void countObjects(const ArchiveValue &value)
    {
        if (const auto *object = std::get_if<Object>(&value.value)) {
            ++m_places[representativeOf(*object)];
        } else if (const auto *array = std::get_if<ArchiveArray>(&value.value)) {
            for (const ArchiveValue &entry : *array)
                countObjects(entry);
        } else if (const auto *dictionary = std::get_if<ArchiveDictionary>(&value.value)) {
            countObjects(*dictionary);
        }
    }

    const Archivable *representativeOf(const Object &object)
    {
        if (dynamic_cast<const ZKConvCoordinate *>(object.get()) == nullptr)
            return object.get();
        return m_converters.try_emplace(bitsOf(*object), object.get()).first->second;
    }

    void write(const ArchiveValue &value)
    {
        std::visit([this](const auto &content) { write(content); }, value.value);
    }

    void write(std::monostate) { m_writer.appendNull(); }
    void write(bool truth) { m_writer.append(truth); }
    void write(std::int64_t number) { m_writer.append(qint64{number}); }
    void write(float number) { m_writer.append(number); }
    void write(double number) { m_writer.append(number); }
    void write(const std::string &text)
    {
        m_writer.appendTextString(text.data(), static_cast<qsizetype>(text.size()));
    }

    void write(const ArchiveArray &array)
    {
        m_writer.startArray(array.size());
        for (const ArchiveValue &value : array)
            write(value);
        m_writer.endArray();
    }

    void write(const ArchiveDictionary &dictionary)
    {
        m_writer.startMap(dictionary.entries().size());
        for (const auto &[key, value] : dictionary.entries()) {
            write(key);
            write(value);
        }
        m_writer.endMap();
    }

    void write(const Object &object)
    {
        if (object == nullptr) {
            m_writer.appendNull();
            return;
        }
        const Archivable *one = representativeOf(object);
        if (m_places[one] > 1) {
            const auto [known, isNew] = m_numbers.try_emplace(one, m_numbers.size());
            if (!isNew) {
                m_writer.append(cborReference);
                m_writer.append(quint64{known->second});
                return;
            }
            m_writer.append(cborShareable);
        }
        writeValuesOf(*object);
    }

    void writeValuesOf(const Archivable &object)
    {
        SequentialEncoder coder;
        object.encodeWithCoder(coder);
        m_writer.append(cborObject);
        m_writer.startArray(1 + coder.items().size());
        write(std::string(object.className()));
        for (const ArchivedItem &item : coder.items())
            std::visit([this](const auto &value) { writeItem(value); }, item);
        m_writer.endArray();
    }

    void writeItem(double value) { m_writer.append(value); }
    template <class Integer>
    void writeItem(Integer value) requires isOneOf<Integer, std::int32_t, std::int8_t>
    {
        m_writer.append(qint64{value});
    }
    void writeItem(ArchivedInteger integer) { m_writer.append(qint64{integer.value}); }
    void writeItem(ArchivedPoint point)
    {
        m_writer.startArray(2);
        m_writer.append(point.x);
        m_writer.append(point.y);
        m_writer.endArray();
    }
    void writeItem(const ArchivedBytes &bytes)
    {
        const auto *begin = bytes == nullptr ? nullptr : bytes->data();
        m_writer.appendByteString(reinterpret_cast<const char *>(begin),
                                  bytes == nullptr ? 0 : static_cast<qsizetype>(bytes->size()));
    }

    QCborStreamWriter m_writer;
    std::unordered_map<std::string, const Archivable *> m_converters;
    std::unordered_map<const Archivable *, int> m_places;
    std::unordered_map<const Archivable *, std::size_t> m_numbers;
};

const char *textOf(documentarchive::Fault fault)
{
    using documentarchive::Fault;
    switch (fault) {
    case Fault::NoDocument:
        return "document.damage.noDocument";
    case Fault::EndsEarly:
        return "document.damage.endsEarly";
    case Fault::TooLarge:
        return "document.damage.tooLarge";
    case Fault::RepeatedKey:
        return "document.damage.repeatedKey";
    case Fault::BadObject:
    case Fault::BadReference:
    case Fault::WrongKind:
        return "document.damage.badValue";
    case Fault::TrailingBytes:
        return "document.damage.trailing";
    case Fault::DamagedPicture:
        return "document.damage.picture";
    case Fault::PictureTooLarge:
        return "document.damage.pictureTooLarge";
    case Fault::Unreadable:
        break;
    }
    return "document.damage.unreadable";
}

/// The part as the user knows it.
QString nameOf(const std::string &part)
{
    if (part == documentkeys::graphImageViewData)
        return texts::localized("document.part.picture");
    if (part == documentkeys::dataTableViewData)
        return texts::localized("document.part.table");
    if (part == documentkeys::currentAxesData)
        return texts::localized("document.part.axes");
    if (part == documentkeys::cursorGuideData)
        return texts::localized("document.part.guide");
    if (part == documentkeys::dataSeriesData)
        return texts::localized("document.part.series");
    if (part.empty())
        return texts::localized("document.part.file");
    return texts::localized("document.part.window");
}

} // namespace

namespace documentarchive {

QByteArray archivedData(const ArchiveDictionary &root)
{
    QByteArray bytes;
    const TreeWriter writer(bytes, root);
    return bytes;
}

std::shared_ptr<const ArchivedPicture> pictureIn(const ArchiveDictionary &root)
{
    const ArchiveDictionary *view = root.dictionaryForKey(documentkeys::graphImageViewData);
    return view == nullptr ? nullptr
                           : std::dynamic_pointer_cast<const ArchivedPicture>(
                                 view->objectForKey(documentkeys::originalImage));
}

void dropPicture(ArchiveDictionary &root)
{
    const ArchiveDictionary *view = root.dictionaryForKey(documentkeys::graphImageViewData);
    if (view == nullptr)
        return;
    ArchiveDictionary rest;
    for (const auto &[key, value] : view->entries()) {
        if (key != documentkeys::originalImage)
            rest.set(key, value);
    }
    root.set(documentkeys::graphImageViewData, {std::move(rest)});
}

bool offersSomething(const ArchiveDictionary &root)
{
    if (pictureIn(root) != nullptr)
        return true;
    const ArchiveDictionary *series = root.dictionaryForKey(documentkeys::dataSeriesData);
    return series != nullptr && seriesarchive::storeFromData(*series).maxRows() > 0;
}

QString description(const std::vector<Damage> &damages)
{
    QStringList sentences;
    for (const Damage &damage : damages) {
        QString sentence = texts::localized(textOf(damage.fault));
        if (sentence.contains(QStringLiteral("%1")))
            sentence = sentence.arg(nameOf(damage.part));
        if (!sentences.contains(sentence))
            sentences.append(sentence);
    }
    return sentences.join(QLatin1Char('\n'));
}

} // namespace documentarchive
