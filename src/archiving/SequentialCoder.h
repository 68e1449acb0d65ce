#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

/// A point as it is archived: two 32-bit floats, type code "{_NSPoint=ff}".
struct ArchivedPoint
{
    float x = 0;
    float y = 0;

    friend bool operator==(const ArchivedPoint &, const ArchivedPoint &) = default;
};

/// A block of bytes shared with its maker, so that a large picture is not copied.
using ArchivedBytes = std::shared_ptr<const std::vector<std::byte>>;

/// An integer from a file, which does not tell its type code: it is read as any integer type that
/// holds it.
struct ArchivedInteger
{
    std::int64_t value = 0;

    friend bool operator==(const ArchivedInteger &, const ArchivedInteger &) = default;
};

/// One archived value: a 32-bit integer ("i"), an 8-bit integer ("c"), a double ("d"), a
/// point, a block of bytes, or an integer of unknown type.
using ArchivedItem =
    std::variant<std::int32_t, std::int8_t, double, ArchivedPoint, ArchivedBytes, ArchivedInteger>;

/// Collects the values of one object in the order in which the object hands them over;
/// there are no keys, the order is the format.
class SequentialEncoder
{
public:
    void encodeInt(std::int32_t value);
    void encodeChar(std::int8_t value);
    void encodeDouble(double value);
    void encodePoint(ArchivedPoint value);
    void encodeBytes(ArchivedBytes value);

    [[nodiscard]] const std::vector<ArchivedItem> &items() const;

private:
    std::vector<ArchivedItem> m_items;
};

/// Gives the values of one object back in order. A value of another type than asked for, or
/// none left, is a failure; the first failure sticks and every later read gives zero, so that a
/// reader may check once, at its end.
class SequentialDecoder
{
public:
    explicit SequentialDecoder(std::span<const ArchivedItem> items);

    [[nodiscard]] std::int32_t decodeInt();
    [[nodiscard]] std::int8_t decodeChar();
    [[nodiscard]] double decodeDouble();
    [[nodiscard]] ArchivedPoint decodePoint();
    [[nodiscard]] ArchivedBytes decodeBytes();

    /// Marks what was read as unusable.
    void fail();
    [[nodiscard]] bool failed() const;
    /// How many values are left: a count is checked against it before memory is asked for.
    [[nodiscard]] std::size_t remaining() const;

private:
    template <class T>
    [[nodiscard]] T next();
    template <class T>
    [[nodiscard]] T nextInteger();

    std::span<const ArchivedItem> m_items;
    bool m_failed = false;
};

/// An object that archives itself sequentially.
class Archivable
{
public:
    virtual ~Archivable() = default;

    /// The name under which documents know the class, for example "ZKConvCoordinateAffine".
    [[nodiscard]] virtual std::string_view className() const = 0;
    virtual void encodeWithCoder(SequentialEncoder &coder) const = 0;
};
