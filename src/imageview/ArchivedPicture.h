#pragma once

#include "archiving/SequentialCoder.h"
#include "imageview/Picture.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <stop_token>
#include <string_view>

enum class PictureProblem;

/// A picture in the form in which documents hold it: the bytes of a PNG file, made once per
/// picture, which also tell its exact size in points.
class ArchivedPicture final : public Archivable
{
public:
    static constexpr std::string_view archivedName = "NSImage";

    /// Encodes `picture`, in any thread; null if there is not enough memory for it. An encoding
    /// that would take seconds leaves off, with null, soon after `stop` was requested.
    [[nodiscard]] static std::shared_ptr<const ArchivedPicture>
    archived(const Picture &picture, const std::stop_token &stop = {});

    /// Reads what encodeWithCoder() wrote; null after a failure of the coder. The picture itself
    /// is not decoded yet.
    [[nodiscard]] static std::shared_ptr<const ArchivedPicture>
    initWithCoder(SequentialDecoder &coder);

    explicit ArchivedPicture(ArchivedBytes bytes);
    /// A picture that nobody has encoded yet: it has no bytes, and is in no document's file.
    explicit ArchivedPicture(Picture picture);

    [[nodiscard]] std::string_view className() const override { return archivedName; }
    void encodeWithCoder(SequentialEncoder &coder) const override;

    /// The picture's size in points, from the head of the bytes; nothing if that is damaged.
    [[nodiscard]] std::optional<FloatSize> size() const;

    /// Decodes the bytes unless that was done before. The problem, if there is one, is that they
    /// are Damaged, that the picture is TooLarge for `memoryLimit` bytes, or that `stop` was
    /// requested (Cancelled). `percentDecoded`, which may be null, follows the progress. May run in
    /// any thread, but in one at a time.
    [[nodiscard]] std::optional<PictureProblem>
    decode(std::uint64_t memoryLimit, const std::stop_token &stop = {},
           std::atomic<int> *percentDecoded = nullptr) const;
    /// The bytes as a picture, decoded once; nothing if they are damaged or there is no room.
    [[nodiscard]] std::optional<Picture> picture() const;

    [[nodiscard]] bool isEncoded() const { return m_bytes != nullptr; }
    [[nodiscard]] const ArchivedBytes &bytes() const { return m_bytes; }

private:
    ArchivedBytes m_bytes;
    mutable std::optional<Picture> m_picture;
};
