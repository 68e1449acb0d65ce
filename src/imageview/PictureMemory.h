#pragma once

#include <cstdint>
#include <optional>

class QImage;
class QImageReader;
class QSize;

/// Whether there is room for a picture, asked before it is decoded.
namespace picturememory {

/// The bytes that this computer can give to pictures now.
[[nodiscard]] std::uint64_t available();

/// Whether the picture that `reader` is about to decode has a size, and `bytes` are enough for
/// it. Files that lie about their size, by accident or on purpose, are found out here.
[[nodiscard]] bool fits(const QImageReader &reader, std::uint64_t bytes);

/// Room for a picture that is being decoded: what is decoded at the same time does not count on it.
class Claim
{
public:
    Claim(Claim &&other) noexcept;
    Claim(const Claim &) = delete;
    Claim &operator=(const Claim &) = delete;
    Claim &operator=(Claim &&) = delete;
    ~Claim();

private:
    friend std::optional<Claim> claim(const QImageReader &reader, std::uint64_t bytes);

    explicit Claim(std::uint64_t bytes)
        : m_bytes(bytes)
    {}

    std::uint64_t m_bytes;
};

/// Room for the picture that `reader` is about to decode. Nothing where fits() says so, or where
/// the claims of others leave too little of the `bytes`. In any thread.
[[nodiscard]] std::optional<Claim> claim(const QImageReader &reader, std::uint64_t bytes);

/// The same as fits() for pixels that are there already, and need a copy for the screen.
[[nodiscard]] bool fits(const QImage &pixels, std::uint64_t bytes);

/// Whether `bytes` are enough for painting a page of `size` pixels.
[[nodiscard]] bool fitsPage(QSize size, std::uint64_t bytes);

} // namespace picturememory
