#pragma once

#include <QtGlobal>

#include <algorithm>

/// How much longer than every day the tests of endurance run.
namespace endurance {

/// `everyday`, or so many times more as CURVEGRAB_ENDURANCE asks for.
[[nodiscard]] inline int times(int everyday)
{
    return everyday * std::max(1, qEnvironmentVariableIntValue("CURVEGRAB_ENDURANCE"));
}

} // namespace endurance
