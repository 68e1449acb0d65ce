#pragma once

#include <functional>

class QObject;

/// The first window on the screen: what is not needed to see it may wait for it.
namespace firstpaint {

/// Calls `action` once a window of the program has been painted for the first time from now on.
/// Not at all when `context` is gone by then.
void whenOver(QObject &context, std::function<void()> action);

} // namespace firstpaint
