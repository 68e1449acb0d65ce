#pragma once

#include <QString>

#include <functional>
#include <optional>

/// The question for the password of a file.
struct PasswordSheet
{
    QString message;         ///< the title line, in bold
    QString informativeText; ///< the explanation below it
};

/// Asks at one window for passwords. Like other sheets they wait for their turn, and asking never
/// blocks: `ended` runs when the user has answered, with the password or, cancelled, with nothing.
class PasswordSheets
{
public:
    virtual ~PasswordSheets() = default;

    virtual void askForPassword(const PasswordSheet &sheet,
                                std::function<void(const std::optional<QString> &)> ended) = 0;
};
