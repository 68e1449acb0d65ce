#include "document/UndoStepsMenu.h"

#include "document/MyDocument.h"
#include "platform/Texts.h"
#include "platform/UndoManager.h"

#include <algorithm>

namespace {
constexpr int noRule = 0;
constexpr qsizetype mostSteps = 25; // a list to be read at a glance
} // namespace

UndoStepsMenu::UndoStepsMenu(MyDocument &document, QMenu *menu, Way way)
    : QMenu(texts::localized(way == Way::Undo ? "document.command.undoSteps"
                                              : "document.command.redoSteps"),
            menu)
    , m_document(document)
    , m_way(way)
{
    setObjectName(way == Way::Undo ? QStringLiteral("undoStepsMenu")
                                   : QStringLiteral("redoStepsMenu"));
    menu->addMenu(this);
    connect(this, &QMenu::aboutToShow, this, &UndoStepsMenu::fill);
    connect(menu, &QMenu::aboutToShow, this,
            [this] { menuAction()->setEnabled(!names().isEmpty()); });
}

QStringList UndoStepsMenu::names() const
{
    const UndoManager &undo = m_document.undoManager();
    return m_way == Way::Undo ? undo.undoActionNames() : undo.redoActionNames();
}

void UndoStepsMenu::fill()
{
    clear();
    const QStringList steps = names().mid(0, mostSteps);
    for (int step = 1; step <= steps.size(); ++step) {
        // The digits are mnemonics.
        const QString number =
            QLatin1String(step < 10 ? "&" : "") + QString::fromStdString(std::to_string(step));
        QAction *const action =
            addAction(texts::localized("document.undo.step").arg(number, steps.at(step - 1)));
        connect(action, &QAction::triggered, &m_document, [this, step] { run(step); });
    }
}

void UndoStepsMenu::run(int steps)
{
    m_document.perform(noRule, [&document = m_document, way = m_way, steps] {
        for (int i = 0; i < steps; ++i) {
            if (way == Way::Undo)
                document.undo();
            else
                document.redo();
        }
    });
}
