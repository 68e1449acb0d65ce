#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

// Runs a fuzz target without a fuzzer: over the inputs that are kept in its corpus, over seeded
// variations of them and over seeded random bytes. A target that finds a fault aborts.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr int randomInputs = 5000;
constexpr std::size_t longestRandomInput = 400;

Bytes contentOf(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// CURVEGRAB_VARIATIONS asks for more of them.
int variationsPerFile()
{
    const char *wanted = std::getenv("CURVEGRAB_VARIATIONS");
    return std::max(500, wanted == nullptr ? 0 : std::atoi(wanted));
}

std::vector<Bytes> corpus()
{
    std::vector<std::filesystem::path> paths;
    for (const auto &entry : std::filesystem::directory_iterator(CURVEGRAB_CORPUS))
        paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    std::vector<Bytes> inputs;
    std::transform(paths.begin(), paths.end(), std::back_inserter(inputs), contentOf);
    return inputs;
}

void run(const Bytes &input) { EXPECT_EQ(LLVMFuzzerTestOneInput(input.data(), input.size()), 0); }

std::size_t dice(std::mt19937_64 &random, std::size_t count)
{
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
}

std::uint8_t randomByte(std::mt19937_64 &random)
{
    return static_cast<std::uint8_t>(dice(random, 256));
}

/// Puts a copy of a piece somewhere, or makes two neighbouring pieces change their places.
void movePiece(Bytes &input, std::mt19937_64 &random)
{
    std::array<std::size_t, 3> places{};
    for (std::size_t &place : places)
        place = dice(random, input.size() + 1);
    std::sort(places.begin(), places.end());
    const auto at = [&input](std::size_t place) {
        return input.begin() + static_cast<std::ptrdiff_t>(place);
    };
    if (dice(random, 2) == 0) {
        std::rotate(at(places[0]), at(places[1]), at(places[2]));
        return;
    }
    const Bytes piece(at(places[0]), at(places[1]));
    input.insert(at(places[2]), piece.begin(), piece.end());
}

/// `input` with up to four bits or bytes changed, put in or taken out, and sometimes with a piece
/// repeated or moved, or cut.
Bytes varied(Bytes input, std::mt19937_64 &random)
{
    const std::size_t changes = 1 + dice(random, 4);
    for (std::size_t i = 0; i < changes; ++i) {
        const auto place =
            input.begin() + static_cast<std::ptrdiff_t>(dice(random, input.size() + 1));
        const std::size_t kind = dice(random, 4);
        if (kind == 0 || place == input.end())
            input.insert(place, randomByte(random));
        else if (kind == 1)
            *place = randomByte(random);
        else if (kind == 2)
            *place = static_cast<std::uint8_t>(*place ^ (1U << dice(random, 8)));
        else
            input.erase(place);
    }
    if (dice(random, 4) == 0)
        movePiece(input, random);
    if (dice(random, 8) == 0)
        input.resize(dice(random, input.size() + 1));
    return input;
}

} // namespace

TEST(CorpusReplay, keptInputsAreSurvived)
{
    const std::vector<Bytes> inputs = corpus();
    ASSERT_FALSE(inputs.empty());
    for (const Bytes &input : inputs)
        run(input);
}

TEST(CorpusReplay, keptInputsCutAnywhereAreSurvived)
{
    for (const Bytes &input : corpus()) {
        for (std::size_t length = 0; length < input.size(); ++length)
            run(Bytes(input.begin(), input.begin() + static_cast<std::ptrdiff_t>(length)));
    }
}

TEST(CorpusReplay, variationsOfKeptInputsAreSurvived)
{
    std::mt19937_64 random(21);
    const int count = variationsPerFile();
    for (const Bytes &input : corpus()) {
        for (int i = 0; i < count; ++i)
            run(varied(input, random));
    }
}

TEST(CorpusReplay, randomInputsAreSurvived)
{
    std::mt19937_64 random(22);
    for (int i = 0; i < randomInputs; ++i) {
        Bytes input(dice(random, longestRandomInput));
        for (std::uint8_t &byte : input)
            byte = randomByte(random);
        run(input);
    }
}
