#pragma once

#include <QString>

#include <functional>

/// A message or question at a document's window.
struct Sheet
{
    QString message;         ///< the title line, in bold
    QString informativeText; ///< the explanation below it
    QString defaultButton;   ///< the button that Return presses
    QString alternateButton; ///< the button that Escape presses; empty: there is none
    QString otherButton{};   ///< a third way, often one that loses something; empty: there is none
    bool isInformation = false; ///< nothing is wrong and nothing is asked
};

enum class SheetAnswer { Default, Alternate, Other };

/// Shows sheets at one window, one at a time, in the order in which they were asked for.
/// Showing never blocks: the caller goes on, and the end handler runs when the user has answered.
class Sheets
{
public:
    virtual ~Sheets() = default;

    /// Queues `sheet`; `ended` (may be empty) runs after it was closed, before the next one opens.
    virtual void present(const Sheet &sheet, std::function<void(SheetAnswer)> ended) = 0;
};
