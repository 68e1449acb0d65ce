#include "document/MenuRules.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace menurules;

// Every command with a rule in every state there is, against a table that says the rules in words
// of its own: a column of letters per condition.
namespace {

/// One row: when a command is enabled. '+' needs the condition, '-' needs its opposite, ' ' does
/// not care. Several rows of one tag: any of them will do.
struct Row
{
    int tag;
    char picture;
    char axisPage;
    char tableShown;
    char selection;
    char points;
    char goodPasteboard;
    char firstSeries;
    char lastSeries;
    const char *autoXModes; ///< those that will do
    const char *axisTypes;  ///< those that will do
    char actualSize;
    char zoomIn;
    char zoomOut;
};

constexpr const char *any = "012";

// clang-format off
constexpr std::array table{
    //      picture axis table selection points paste first last
    Row{7001, ' ', ' ', '+', '+', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{7002, ' ', ' ', ' ', ' ', ' ', '+', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{7003, ' ', ' ', '+', '+', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{7090, ' ', '+', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{7100, '+', ' ', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{7101, '+', ' ', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{7102, ' ', ' ', ' ', ' ', '+', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{7103, ' ', ' ', '+', '+', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{8000, ' ', '-', ' ', ' ', ' ', ' ', ' ', ' ', "0",  any,  ' ', ' ', ' '},
    Row{8000, ' ', '-', ' ', ' ', ' ', ' ', '+', ' ', "2",  any,  ' ', ' ', ' '},
    Row{8001, ' ', '-', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{8020, ' ', '-', ' ', ' ', ' ', ' ', ' ', '-', any,  any,  ' ', ' ', ' '},
    Row{8021, ' ', '-', ' ', ' ', ' ', ' ', '-', ' ', any,  any,  ' ', ' ', ' '},
    Row{8030, '+', '+', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{8031, '+', '+', ' ', ' ', ' ', ' ', ' ', ' ', any,  "01", ' ', ' ', ' '},
    Row{8100, ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  '+', ' ', ' '},
    Row{8101, ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', '+', ' '},
    Row{8102, ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', '+'},
    Row{8103, '+', ' ', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{8104, '+', ' ', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{8110, '+', '+', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{8111, '+', '+', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{9000, '+', ' ', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{9001, '+', '+', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{0,    ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{7000, ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{8032, ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
    Row{8105, ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', any,  any,  ' ', ' ', ' '},
};
// clang-format on

bool agrees(char wanted, bool is) { return wanted == ' ' || is == (wanted == '+'); }

bool isAmong(int number, const char *digits)
{
    return std::string_view(digits).find(static_cast<char>('0' + number)) != std::string_view::npos;
}

bool allows(const Row &row, const State &state)
{
    return agrees(row.picture, state.hasImage) && agrees(row.axisPage, state.inAxisSettingMode) &&
           agrees(row.tableShown, state.tableShown) &&
           agrees(row.selection, state.numSelectedSeries != 0) &&
           agrees(row.points, state.numValidSeries != 0) &&
           agrees(row.goodPasteboard, state.acceptsPasteboard) &&
           agrees(row.firstSeries, state.currentSeries == 0) &&
           agrees(row.lastSeries, state.currentSeries == 9) &&
           isAmong(state.autoXMode, row.autoXModes) && isAmong(state.axisType, row.axisTypes) &&
           agrees(row.actualSize, state.canZoomToActual) && agrees(row.zoomIn, state.canZoomIn) &&
           agrees(row.zoomOut, state.canZoomOut);
}

bool isEnabledByTable(int tag, const State &state)
{
    for (const Row &row : table) {
        if (row.tag == tag && allows(row, state))
            return true;
    }
    return false;
}

template <class T>
void multiply(std::vector<State> &states, T State::*member, const std::vector<T> &values)
{
    std::vector<State> product;
    product.reserve(states.size() * values.size());
    for (State state : states) {
        for (const T &value : values) {
            state.*member = value;
            product.push_back(state);
        }
    }
    states = std::move(product);
}

std::vector<State> everyState()
{
    std::vector<State> states(1);
    for (const auto member : {&State::hasImage, &State::inAxisSettingMode, &State::tableShown,
                              &State::acceptsPasteboard, &State::canZoomToActual, &State::canZoomIn,
                              &State::canZoomOut})
        multiply<bool>(states, member, {false, true});
    multiply<int>(states, &State::numSelectedSeries, {0, 1, 10});
    multiply<int>(states, &State::numValidSeries, {0, 1, 10});
    multiply<int>(states, &State::currentSeries, {0, 1, 8, 9});
    multiply<int>(states, &State::autoXMode, {0, 1, 2});
    multiply<int>(states, &State::axisType, {0, 1, 2});
    return states;
}

std::string described(const State &state)
{
    return "picture " + std::to_string(state.hasImage) + ", axis page " +
           std::to_string(state.inAxisSettingMode) + ", table " + std::to_string(state.tableShown) +
           ", selected " + std::to_string(state.numSelectedSeries) + ", with points " +
           std::to_string(state.numValidSeries) + ", series " +
           std::to_string(state.currentSeries) + ", automatic X " +
           std::to_string(state.autoXMode) + ", axes " + std::to_string(state.axisType);
}

class MenuTable : public testing::TestWithParam<int>
{};

std::vector<int> tags()
{
    std::vector<int> tags;
    for (const Row &row : table) {
        if (tags.empty() || tags.back() != row.tag)
            tags.push_back(row.tag);
    }
    return tags;
}

} // namespace

TEST_P(MenuTable, holdsInEveryState)
{
    static const std::vector<State> states = everyState();
    for (const State &state : states)
        ASSERT_EQ(validateMenuItem(GetParam(), state), isEnabledByTable(GetParam(), state))
            << described(state);
}

INSTANTIATE_TEST_SUITE_P(EachTag, MenuTable, testing::ValuesIn(tags()));
