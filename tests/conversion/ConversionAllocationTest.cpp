#include "AllocationCounter.h"
#include "SampleConverters.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

using namespace sampleconverters;

namespace {

constexpr AxisValues linear{1, 100, false};
constexpr AxisValues logarithmic{1, 100, true};

struct Case
{
    std::string name;
    std::shared_ptr<const ZKConvCoordinate> converter;
};

class ConversionAllocation : public testing::TestWithParam<Case>
{
protected:
    [[nodiscard]] static const ZKConvCoordinate &converter() { return *GetParam().converter; }
};

std::vector<Case> everyKind()
{
    return {{"affine", affine(linear, linear)},
            {"affineLog", affine(logarithmic, logarithmic)},
            {"keystone", keystone(generalQuadrilateral, linear, linear)},
            {"keystoneLog", keystone(generalQuadrilateral, logarithmic, logarithmic)},
            {"keystoneParallel", keystone(square, linear, linear)},
            {"polar", polar(linear, 0)},
            {"polarLog", polar(logarithmic, 3, false)}};
}

} // namespace

TEST(AllocationCounter, countsARequest)
{
    const std::size_t before = allocationcounter::allocations();
    const auto memory = std::make_unique<std::array<char, 64>>();
    EXPECT_EQ(allocationcounter::allocations() - before, 1U);
    EXPECT_NE(memory, nullptr);
}

TEST_P(ConversionAllocation, vectorFormsAskForNoMemory)
{
    const ZKVector point = vector(120, 80);
    const std::size_t before = allocationcounter::allocations();
    const auto values = converter().convertFromCartesian(point);
    const auto again = converter().convertToCartesian(*values);
    const std::size_t after = allocationcounter::allocations();
    ASSERT_TRUE(again.has_value());
    EXPECT_NEAR(again->X(), 120, 1e-6);
    EXPECT_EQ(after - before, 0U);
}

TEST_P(ConversionAllocation, pointFormsAskForNoMemory)
{
    const std::size_t before = allocationcounter::allocations();
    const FloatPoint values = converter().convertPointFromCartesian({120, 80});
    const FloatPoint again = converter().convertPointToCartesian(values);
    const std::size_t after = allocationcounter::allocations();
    EXPECT_NEAR(again.x, 120, 1e-2);
    EXPECT_EQ(after - before, 0U);
}

TEST_P(ConversionAllocation, axisVectorsAskForNoMemory)
{
    FloatPoint basis1;
    FloatPoint basis2;
    const std::size_t before = allocationcounter::allocations();
    converter().getAxisVectorsAtPoint({120, 80}, basis1, basis2);
    const std::size_t after = allocationcounter::allocations();
    EXPECT_NE(basis1, FloatPoint{});
    EXPECT_NE(basis2, FloatPoint{});
    EXPECT_EQ(after - before, 0U);
}

TEST_P(ConversionAllocation, comparingAsksForNoMemory)
{
    const auto other = reopened(converter());
    ASSERT_NE(other, nullptr);
    const std::size_t before = allocationcounter::allocations();
    const bool equal = converter().isEqualConverterAs(*other);
    const std::size_t after = allocationcounter::allocations();
    EXPECT_TRUE(equal);
    EXPECT_EQ(after - before, 0U);
}

INSTANTIATE_TEST_SUITE_P(EveryKind, ConversionAllocation, testing::ValuesIn(everyKind()),
                         [](const testing::TestParamInfo<Case> &test) { return test.param.name; });
