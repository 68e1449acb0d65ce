#pragma once

#include <QMenu>

class MyDocument;

/// A submenu that lists what can be taken back (or done again), the next step first. Choosing one
/// takes back everything down to it.
class UndoStepsMenu : public QMenu
{
    Q_OBJECT

public:
    enum class Way { Undo, Redo };

    /// Adds itself to `menu`, which owns it.
    UndoStepsMenu(MyDocument &document, QMenu *menu, Way way);

private:
    [[nodiscard]] QStringList names() const;
    void fill();
    void run(int steps);

    MyDocument &m_document;
    Way m_way;
};
