#include "capture/PointList.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

/// One state of a list. The states that grew out of one list form a tree whose root holds all
/// its points; every other state says how it differs from the next one towards the root. Reading
/// a state makes it the root by turning the differences on the way round.
struct PointList::Version
{
    explicit Version(std::vector<ZKVector> whole)
        : points(std::move(whole))
        , size(points.size())
    {}
    Version(const Version &) = delete;
    Version &operator=(const Version &) = delete;

    /// A long history is a long chain: it is taken apart link by link, not by recursion.
    ~Version()
    {
        std::shared_ptr<Version> next = std::move(nearer);
        while (next != nullptr && next.use_count() == 1)
            next = std::exchange(next->nearer, nullptr);
    }

    std::vector<ZKVector> points;    ///< the root: all points; else: the stretch that differs
    std::shared_ptr<Version> nearer; ///< the next state towards the root; null at the root
    std::size_t first = 0;           ///< where the stretch begins
    std::size_t replaced = 0;        ///< how many points of `nearer` the stretch stands for
    std::size_t size;                ///< how many points the list has in this state
};

namespace {

std::ptrdiff_t offset(std::size_t index) { return static_cast<std::ptrdiff_t>(index); }

/// Puts `inserted` in the place of `count` points of `points` from `first` on, and gives these
/// back.
std::vector<ZKVector> exchangeStretch(std::vector<ZKVector> &points, std::size_t first,
                                      std::size_t count, std::vector<ZKVector> inserted)
{
    const auto begin = points.begin() + offset(first);
    const auto end = begin + offset(count);
    std::vector<ZKVector> taken(std::make_move_iterator(begin), std::make_move_iterator(end));
    const std::size_t common = std::min(count, inserted.size());
    const auto rest = inserted.begin() + offset(common);
    std::move(inserted.begin(), rest, begin);
    if (count > common)
        points.erase(begin + offset(common), end);
    else
        points.insert(end, std::make_move_iterator(rest), std::make_move_iterator(inserted.end()));
    return taken;
}

bool isBehind(const ZKVector &point, const ZKVector &other)
{
    return point.compare(other) == ComparisonResult::Descending;
}

bool isInOrder(const std::vector<ZKVector> &points)
{
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (isBehind(points[i - 1], points[i]))
            return false;
    }
    return true;
}

/// Merges two neighbouring runs of `order`; on a tie the first run goes first.
void mergeRuns(const std::vector<ZKVector> &points, const std::vector<std::size_t> &order,
               std::size_t begin, std::size_t middle, std::size_t end,
               std::vector<std::size_t> &merged)
{
    std::size_t left = begin;
    std::size_t right = middle;
    for (std::size_t i = begin; i < end; ++i) {
        const bool takeRight =
            left == middle || (right < end && isBehind(points[order[left]], points[order[right]]));
        merged[i] = takeRight ? order[right++] : order[left++];
    }
}

/// The indexes of `points` in ascending order. A merge sort of our own, since the points' order
/// is not one that the library's sorting may be given: NaN equals everything.
std::vector<std::size_t> sortedOrder(const std::vector<ZKVector> &points)
{
    const std::size_t count = points.size();
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::vector<std::size_t> merged(count);
    for (std::size_t width = 1; width < count; width *= 2) {
        for (std::size_t begin = 0; begin < count; begin += 2 * width) {
            const std::size_t middle = std::min(begin + width, count);
            mergeRuns(points, order, begin, middle, std::min(middle + width, count), merged);
        }
        order.swap(merged);
    }
    return order;
}

} // namespace

PointList::PointList()
    : PointList(std::vector<ZKVector>())
{}

PointList::PointList(std::vector<ZKVector> points)
    : m_version(std::make_shared<Version>(std::move(points)))
{}

std::size_t PointList::size() const { return m_version->size; }

const std::vector<ZKVector> &PointList::points() const
{
    if (m_version->nearer != nullptr)
        becomeRoot();
    return m_version->points;
}

void PointList::becomeRoot() const
{
    std::vector<std::shared_ptr<Version>> way;
    for (std::shared_ptr<Version> version = m_version; version != nullptr;
         version = version->nearer)
        way.push_back(version);
    for (std::size_t i = way.size() - 1; i > 0; --i) {
        Version &root = *way[i];
        Version &next = *way[i - 1];
        std::vector<ZKVector> whole = std::move(root.points);
        const std::size_t stretch = next.points.size();
        root.points = exchangeStretch(whole, next.first, next.replaced, std::move(next.points));
        root.first = next.first;
        root.replaced = stretch;
        next.points = std::move(whole);
        next.nearer = nullptr;
        root.nearer = way[i - 1];
    }
}

void PointList::append(const ZKVector &point) { replace(size(), 0, {point}); }

void PointList::appendSorted(const ZKVector &point)
{
    const std::vector<ZKVector> &present = points();
    if (!isInOrder(present)) {
        append(point);
        sort();
        return;
    }
    std::size_t place = present.size();
    while (place > 0 && isBehind(present[place - 1], point))
        --place;
    replace(place, 0, {point});
}

void PointList::sort()
{
    const std::vector<ZKVector> &present = points();
    const std::vector<std::size_t> order = sortedOrder(present);
    if (std::is_sorted(order.begin(), order.end()))
        return;
    std::vector<ZKVector> sorted;
    sorted.reserve(order.size());
    for (const std::size_t index : order)
        sorted.push_back(present[index]);
    replace(0, present.size(), std::move(sorted));
}

void PointList::clear() { replace(0, size(), {}); }

void PointList::replace(std::size_t first, std::size_t removed, std::vector<ZKVector> inserted)
{
    if (m_version->nearer != nullptr)
        becomeRoot();
    std::vector<ZKVector> whole = std::move(m_version->points);
    const std::size_t insertedCount = inserted.size();
    std::vector<ZKVector> taken = exchangeStretch(whole, first, removed, std::move(inserted));
    auto next = std::make_shared<Version>(std::move(whole));
    if (m_version.use_count() > 1) {
        m_version->points = std::move(taken);
        m_version->first = first;
        m_version->replaced = insertedCount;
        m_version->nearer = next;
    }
    m_version = std::move(next);
}
