#include "document/PictureHead.h"

#include <QtEndian>

#include <algorithm>
#include <string_view>
#include <utility>

namespace {
constexpr std::size_t signature = 8;
constexpr std::size_t lengthAndType = 8;
constexpr std::size_t checksum = 4;
/// A chunk of pixels without any; readers look for one behind the head.
constexpr unsigned char noPixels[] = {0, 0, 0, 0, 'I', 'D', 'A', 'T', 0x35, 0xaf, 0x06, 0x1e};
} // namespace

namespace picturehead {

std::vector<std::byte> of(std::span<const std::byte> png)
{
    const auto append = [](std::vector<std::byte> &bytes, std::span<const std::byte> more) {
        bytes.insert(bytes.end(), more.begin(), more.end());
    };
    std::vector<std::byte> head;
    append(head, png.first(std::min(signature, png.size())));
    std::size_t position = signature;
    bool hasPixels = false;
    while (position + lengthAndType + checksum <= png.size()) {
        const auto *start = reinterpret_cast<const char *>(png.data() + position);
        const std::size_t length = lengthAndType + qFromBigEndian<quint32>(start) + checksum;
        if (length > png.size() - position)
            return head;
        if (std::string_view(start + 4, 4) != "IDAT")
            append(head, png.subspan(position, length));
        else if (!std::exchange(hasPixels, true))
            append(head, std::as_bytes(std::span(noPixels)));
        position += length;
    }
    return head;
}

} // namespace picturehead
