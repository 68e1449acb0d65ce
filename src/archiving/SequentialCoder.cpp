#include "archiving/SequentialCoder.h"

#include <limits>
#include <utility>

void SequentialEncoder::encodeInt(std::int32_t value) { m_items.emplace_back(value); }

void SequentialEncoder::encodeChar(std::int8_t value) { m_items.emplace_back(value); }

void SequentialEncoder::encodeDouble(double value) { m_items.emplace_back(value); }

void SequentialEncoder::encodePoint(ArchivedPoint value) { m_items.emplace_back(value); }

void SequentialEncoder::encodeBytes(ArchivedBytes value) { m_items.emplace_back(std::move(value)); }

const std::vector<ArchivedItem> &SequentialEncoder::items() const { return m_items; }

SequentialDecoder::SequentialDecoder(std::span<const ArchivedItem> items)
    : m_items(items)
{}

template <class T>
T SequentialDecoder::next()
{
    if (m_failed || m_items.empty() || !std::holds_alternative<T>(m_items.front())) {
        m_failed = true;
        return T{};
    }
    T value = std::get<T>(m_items.front());
    m_items = m_items.subspan(1);
    return value;
}

template <class T>
T SequentialDecoder::nextInteger()
{
    if (m_items.empty() || !std::holds_alternative<ArchivedInteger>(m_items.front()))
        return next<T>();
    const std::int64_t value = next<ArchivedInteger>().value;
    if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max())
        m_failed = true;
    return m_failed ? T{} : static_cast<T>(value);
}

std::int32_t SequentialDecoder::decodeInt() { return nextInteger<std::int32_t>(); }

std::int8_t SequentialDecoder::decodeChar() { return nextInteger<std::int8_t>(); }

double SequentialDecoder::decodeDouble() { return next<double>(); }

ArchivedPoint SequentialDecoder::decodePoint() { return next<ArchivedPoint>(); }

ArchivedBytes SequentialDecoder::decodeBytes() { return next<ArchivedBytes>(); }

void SequentialDecoder::fail() { m_failed = true; }

bool SequentialDecoder::failed() const { return m_failed; }

std::size_t SequentialDecoder::remaining() const { return m_items.size(); }
