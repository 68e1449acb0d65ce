#include "imageview/PdfPages.h"

#include <QFile>

#include <qpdf/QUtil.hh>
#include <qpdf/qpdf-c.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <string>
#include <utility>

namespace {

/// Files of more pages, or with a deeper tree of them, only pretend to have them.
constexpr std::size_t mostPages = 1'000'000;
constexpr std::size_t deepestTree = 1000;

/// A rectangle with its corners in order; empty unless both sides have a length.
struct Box
{
    double left = 0;
    double bottom = 0;
    double right = 0;
    double top = 0;

    [[nodiscard]] bool isEmpty() const { return !(left < right && bottom < top); }
    [[nodiscard]] Box intersected(const Box &other) const
    {
        return {std::max(left, other.left), std::max(bottom, other.bottom),
                std::min(right, other.right), std::min(top, other.top)};
    }
};

/// The paper of a page that names none, as PDF readers have it.
constexpr Box usualPaper{0, 0, 612, 792};

/// A file that is being read. The C interface of the library is used: its C++ headers do not
/// compile with every compiler.
class File
{
public:
    File()
        : m_data(qpdf_init())
    {
        qpdf_silence_errors(m_data);
        qpdf_set_suppress_warnings(m_data, QPDF_TRUE);
    }
    File(const File &) = delete;
    File &operator=(const File &) = delete;
    ~File() { qpdf_cleanup(&m_data); }

    [[nodiscard]] qpdf_data data() const { return m_data; }
    [[nodiscard]] bool hasWarnings() const { return qpdf_more_warnings(m_data) != QPDF_FALSE; }

private:
    qpdf_data m_data;
};

/// An object of a file, which outlives it.
class Object
{
public:
    Object(qpdf_data file, qpdf_oh handle)
        : m_file(file)
        , m_handle(handle)
    {}
    Object(Object &&other) noexcept
        : m_file(other.m_file)
        , m_handle(std::exchange(other.m_handle, 0))
    {}
    Object &operator=(Object &&other) noexcept
    {
        std::swap(m_file, other.m_file);
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    ~Object()
    {
        if (m_handle != 0)
            qpdf_oh_release(m_file, m_handle);
    }

    [[nodiscard]] bool isNull() const { return qpdf_oh_is_null(m_file, m_handle) != 0; }
    [[nodiscard]] bool isArray() const { return qpdf_oh_is_array(m_file, m_handle) != 0; }
    [[nodiscard]] bool isNumber() const { return qpdf_oh_is_number(m_file, m_handle) != 0; }
    [[nodiscard]] bool isDictionary() const { return qpdf_oh_is_dictionary(m_file, m_handle) != 0; }
    [[nodiscard]] int count() const { return qpdf_oh_get_array_n_items(m_file, m_handle); }
    [[nodiscard]] double number() const { return qpdf_oh_get_numeric_value(m_file, m_handle); }
    [[nodiscard]] Object at(int index) const
    {
        return {m_file, qpdf_oh_get_array_item(m_file, m_handle, index)};
    }
    [[nodiscard]] Object valueOf(const char *key) const
    {
        return {m_file, qpdf_oh_get_key(m_file, m_handle, key)};
    }
    /// The number by which other objects name this one; nothing if they cannot.
    [[nodiscard]] std::optional<std::pair<int, int>> identity() const
    {
        const int number = qpdf_oh_get_object_id(m_file, m_handle);
        if (number == 0)
            return {};
        return std::pair{number, qpdf_oh_get_generation(m_file, m_handle)};
    }

private:
    qpdf_data m_file;
    qpdf_oh m_handle;
};

Box boxOf(const Object &stored)
{
    if (!stored.isArray() || stored.count() != 4)
        return {};
    std::array<double, 4> corner{};
    for (int i = 0; i < 4; ++i) {
        const Object number = stored.at(i);
        if (!number.isNumber())
            return {};
        corner.at(static_cast<std::size_t>(i)) = number.number();
    }
    if (!std::all_of(corner.begin(), corner.end(), [](double c) { return std::isfinite(c); }))
        return {};
    return {std::min(corner[0], corner[2]), std::min(corner[1], corner[3]),
            std::max(corner[0], corner[2]), std::max(corner[1], corner[3])};
}

/// Quarter turns count; what is no multiple of 90 is rounded towards none.
int rotationOf(const Object &stored)
{
    if (!stored.isNumber())
        return 0;
    const double degrees = std::fmod(std::trunc(stored.number()), 360);
    const int quarters = static_cast<int>(degrees) / 90;
    return (quarters + 4) % 4 * 90;
}

/// What pages inherit from the nodes of the tree above them, where they do not say it themselves.
struct Inherited
{
    Box mediaBox;
    Box cropBox;
    int rotation = 0;

    void takeFrom(const Object &node)
    {
        if (const Object own = node.valueOf("/MediaBox"); !own.isNull())
            mediaBox = boxOf(own);
        if (const Object own = node.valueOf("/CropBox"); !own.isNull())
            cropBox = boxOf(own);
        if (const Object own = node.valueOf("/Rotate"); !own.isNull())
            rotation = rotationOf(own);
    }
};

PdfPage pageOf(const Inherited &attributes)
{
    const Box media = attributes.mediaBox.isEmpty() ? usualPaper : attributes.mediaBox;
    const Box &crop = attributes.cropBox;
    const Box shown = crop.isEmpty() ? media : crop.intersected(media);
    if (shown.isEmpty())
        return {};
    return {shown.right - shown.left, shown.top - shown.bottom, attributes.rotation};
}

/// Walks over the page tree without recursion: it may be as deep as a hostile file likes. Nothing
/// for a tree in which a branch hangs twice, perhaps on itself: renderers get lost there.
std::optional<std::vector<PdfPage>> pagesOf(const File &file)
{
    struct Node
    {
        Object object;
        Inherited inherited;
        std::size_t depth = 0;
    };
    std::vector<PdfPage> pages;
    std::vector<Node> ahead;
    ahead.push_back({Object(file.data(), qpdf_get_root(file.data())).valueOf("/Pages"), {}, 0});
    std::set<std::pair<int, int>> visited;
    while (!ahead.empty() && pages.size() < mostPages) {
        Node node = std::move(ahead.back());
        ahead.pop_back();
        if (!node.object.isDictionary())
            continue;
        node.inherited.takeFrom(node.object);
        const Object kids = node.object.valueOf("/Kids");
        if (!kids.isArray()) {
            pages.push_back(pageOf(node.inherited));
            continue;
        }
        const auto identity = node.object.identity();
        const bool isNew = !identity || visited.insert(*identity).second;
        if (!isNew || node.depth >= deepestTree)
            return {};
        for (int i = kids.count(); i > 0; --i)
            ahead.push_back({kids.at(i - 1), node.inherited, node.depth + 1});
    }
    return pages;
}

PictureProblem problemOf(qpdf_error_code_e error)
{
    switch (error) {
    case qpdf_e_password:
        return PictureProblem::NeedsPassword;
    case qpdf_e_unsupported:
        return PictureProblem::UnknownProtection;
    case qpdf_e_system:
        return PictureProblem::Unreadable;
    default:
        return PictureProblem::Damaged;
    }
}

PdfPages readWith(const QByteArray &path, const std::string &password)
{
    const File file;
    if ((qpdf_read(file.data(), path.constData(), password.c_str()) & QPDF_ERRORS) != 0)
        return {{}, problemOf(qpdf_get_error_code(file.data(), qpdf_get_error(file.data()))), true};
    std::optional<std::vector<PdfPage>> pages = pagesOf(file);
    if (!pages)
        return {{}, PictureProblem::Damaged, true};
    PdfPages read{std::move(*pages), {}, file.hasWarnings()};
    if (read.pages.empty())
        read.problem = read.isDamaged ? PictureProblem::Damaged : PictureProblem::NoPages;
    return read;
}

} // namespace

PdfPages PdfPages::read(const QString &path, const QString &password)
{
    // Older files hold their passwords in other encodings than today's.
    for (const std::string &encoded : QUtil::possible_repaired_encodings(password.toStdString())) {
        PdfPages read = readWith(QFile::encodeName(path), encoded);
        if (read.problem != PictureProblem::NeedsPassword)
            return read;
    }
    return {{}, PictureProblem::NeedsPassword, false};
}
