#pragma once

/// How a document's change count moves; the document counts as modified while
/// its count is not zero.
enum class ChangeKind {
    Done,    ///< something was changed: one up
    Undone,  ///< a change was taken back: one down
    Redone,  ///< a taken-back change was made again: one up
    Cleared, ///< loaded or saved: zero
};
