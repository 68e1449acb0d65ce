#pragma once

#include <thread>

/// The settings and the list of the system's fonts, read while the program connects to its screen:
/// they are some fifty files, and the first text of the first window would wait for them.
class FontsAhead final
{
public:
    /// Begins to read. To be made while the program has one thread, before the application object.
    /// Where the fonts are not ours to read, or no thread is to be had, this does nothing: the
    /// first text waits then.
    FontsAhead();

    FontsAhead(const FontsAhead &) = delete;
    FontsAhead &operator=(const FontsAhead &) = delete;
    FontsAhead(FontsAhead &&) = delete;
    FontsAhead &operator=(FontsAhead &&) = delete;

    /// Waits until they are there.
    ~FontsAhead();

    /// Waits until they are there. To be called before the first text, which would read them again.
    void await();

private:
    std::thread m_reading;
};
