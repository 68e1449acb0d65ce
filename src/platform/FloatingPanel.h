#pragma once

class QWidget;

/// Panels beside the work: tool windows that lie above all other windows of the program, whichever
/// of them is in use, and do not take the keyboard from it.
namespace floatingpanel {

/// Shows the tool window `panel`, and tells the desktop that it floats.
void show(QWidget &panel);

} // namespace floatingpanel
