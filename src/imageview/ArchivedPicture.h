#pragma once

#include "archiving/SequentialCoder.h"
#include "imageview/Picture.h"

#include <memory>
#include <optional>
#include <string_view>

/// A picture in the form in which documents hold it: the bytes of a PNG file, made once per
/// picture, which also tell its exact size in points.
class ArchivedPicture final : public Archivable
{
public:
    static constexpr std::string_view archivedName = "NSImage";

    /// Encodes `picture`; null if there is not enough memory for it.
    [[nodiscard]] static std::shared_ptr<const ArchivedPicture> archived(const Picture &picture);

    /// Reads what encodeWithCoder() wrote; null after a failure of the coder. The picture itself
    /// is not decoded yet.
    [[nodiscard]] static std::shared_ptr<const ArchivedPicture>
    initWithCoder(SequentialDecoder &coder);

    explicit ArchivedPicture(ArchivedBytes bytes);

    [[nodiscard]] std::string_view className() const override { return archivedName; }
    void encodeWithCoder(SequentialEncoder &coder) const override;

    /// The picture's size in points, from the head of the bytes; nothing if that is damaged.
    [[nodiscard]] std::optional<FloatSize> size() const;

    /// The bytes as a picture, decoded once; nothing if they are damaged.
    [[nodiscard]] std::optional<Picture> picture() const;

    [[nodiscard]] const ArchivedBytes &bytes() const { return m_bytes; }

private:
    [[nodiscard]] std::optional<Picture> decoded() const;

    ArchivedBytes m_bytes;
    mutable std::optional<Picture> m_picture;
};
