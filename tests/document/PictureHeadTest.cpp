#include "document/PictureHead.h"

#include "document/SampleRoots.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::byte> pngOf(QSize size)
{
    return *std::dynamic_pointer_cast<const ArchivedPicture>(sampleroots::picture(size))->bytes();
}

ArchivedPicture headOf(const std::vector<std::byte> &png)
{
    return ArchivedPicture(std::make_shared<const std::vector<std::byte>>(picturehead::of(png)));
}

} // namespace

TEST(PictureHead, tellsTheSizeOfThePicture)
{
    EXPECT_EQ(headOf(pngOf({40, 30})).size(), (FloatSize{40, 30}));
}

TEST(PictureHead, hasNoPixels)
{
    EXPECT_FALSE(headOf(pngOf({40, 30})).picture());
    EXPECT_LT(picturehead::of(pngOf({1000, 800})).size(), 300U);
}

TEST(PictureHead, ofACutFileIsDamagedToo)
{
    const std::vector<std::byte> whole = pngOf({40, 30});
    for (std::size_t length = 0; length + 12 < whole.size(); length += 7) {
        const std::vector<std::byte> cut(whole.begin(),
                                         whole.begin() + static_cast<std::ptrdiff_t>(length));
        EXPECT_FALSE(headOf(cut).size()) << length;
    }
}

TEST(PictureHead, ofAChunkLongerThanTheFileIsDamagedToo)
{
    std::vector<std::byte> png = pngOf({40, 30});
    png.at(8 + 25) = std::byte{0xff}; // the length of the chunk behind the header
    EXPECT_FALSE(headOf(png).size());
}
