#pragma once

#include "geometry/ZKVector.h"

#include <cstddef>
#include <memory>
#include <vector>

/// The points of one series in their order, as a value: a copy is a snapshot that later changes
/// of the original do not touch.
///
/// Copies share their storage, so that the undo records of a long session stay small. Of all
/// copies that grew out of one list, only the one read last is held as a whole; each of the
/// others holds what tells it from its neighbour, usually a single point.
class PointList
{
public:
    PointList();
    explicit PointList(std::vector<ZKVector> points);
    // Copies only: a list that was moved from would be no list.
    PointList(const PointList &other) = default;
    PointList &operator=(const PointList &other) = default;
    ~PointList() = default;

    [[nodiscard]] bool isEmpty() const { return size() == 0; }
    [[nodiscard]] std::size_t size() const;

    /// Whether neither changed since one was copied from the other, or both from a third. Costs
    /// nothing; false says nothing about the points.
    [[nodiscard]] bool isSameStateAs(const PointList &other) const
    {
        return m_version == other.m_version;
    }

    /// The points in order. The reference holds until this list changes, or a copy of it is
    /// read or changed.
    [[nodiscard]] const std::vector<ZKVector> &points() const;

    void append(const ZKVector &point);

    /// Adds `point` and sorts the list; quick while the list is in order already.
    void appendSorted(const ZKVector &point);

    /// Sorts ascending by `compare:` of the points; equal points keep their order. Points with
    /// NaN, which compare equal to everything, do no harm.
    void sort();

    void clear();

private:
    struct Version;

    void becomeRoot() const;

    /// Replaces `removed` points from index `first` on by `inserted`.
    void replace(std::size_t first, std::size_t removed, std::vector<ZKVector> inserted);

    std::shared_ptr<Version> m_version;
};
