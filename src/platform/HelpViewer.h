#pragma once

#include <QString>

/// Shows the help to the user.
class HelpViewer
{
public:
    virtual ~HelpViewer() = default;

    /// `openHelpAnchor:inBook:` shows the place called `anchor` of the help book called `inBook`;
    /// with an empty anchor, or one that the book does not have, the book's first page.
    virtual void openHelpAnchor(const QString &anchor, const QString &inBook) = 0;
};

/// The program's own help book and the places in it that commands and buttons open.
namespace helpbook {

inline constexpr char bookName[] = "Curvegrab X Help";
inline constexpr char axisSettings[] = "CV_Help_AxisSettings";
inline constexpr char digitizing[] = "CV_Help_Digitizing";
inline constexpr char preferences[] = "CV_Help_Preferences";

} // namespace helpbook
