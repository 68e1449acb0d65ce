#pragma once

#include <Qt>

/// The cap and join with which lines are drawn that do not say their own: the drawing layer's
/// default, one for the whole application. It starts with butt caps and mitred joins; the drawing
/// of series sets it to round ones, and so it stays for everything that is drawn afterwards.
namespace defaultlinestyle {

[[nodiscard]] Qt::PenCapStyle capStyle();
[[nodiscard]] Qt::PenJoinStyle joinStyle();

void setCapStyle(Qt::PenCapStyle style);
void setJoinStyle(Qt::PenJoinStyle style);

} // namespace defaultlinestyle
