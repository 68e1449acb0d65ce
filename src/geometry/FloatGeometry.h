#pragma once

/// Points, sizes and rectangles of 32-bit floats, the precision in which the views work.
/// Every store into one narrows; the origin is at the bottom left and y grows upwards.

/// A point; which space it is in (picture, view, window, graph) is said where it is used.
struct FloatPoint
{
    float x = 0;
    float y = 0;

    friend bool operator==(const FloatPoint &, const FloatPoint &) = default;
};

struct FloatSize
{
    float width = 0;
    float height = 0;

    friend bool operator==(const FloatSize &, const FloatSize &) = default;
};

/// A rectangle by its bottom left corner and its size.
struct FloatRect
{
    FloatPoint origin;
    FloatSize size;

    /// Half-open: the left and bottom edges belong to the rectangle, the right and top ones do not.
    [[nodiscard]] bool contains(FloatPoint p) const
    {
        return p.x >= origin.x && p.x < origin.x + size.width && p.y >= origin.y &&
               p.y < origin.y + size.height;
    }

    friend bool operator==(const FloatRect &, const FloatRect &) = default;
};
