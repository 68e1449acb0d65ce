#include "document/ExportDigitsMenu.h"

#include "document/ExportChoices.h"
#include "platform/Texts.h"

#include <QActionGroup>

namespace {
constexpr int asNeeded = 0;
constexpr int offered[] = {3, 4, 6, 8, 10, 12};
} // namespace

ExportDigitsMenu::ExportDigitsMenu(ExportChoices &choices, QMenu *menu)
    : QMenu(texts::localized("document.command.exportDigits"), menu)
    , m_choices(choices)
{
    setObjectName(QStringLiteral("exportDigitsMenu"));
    menu->addMenu(this);
    addChoice(texts::localized("document.export.digitsAsNeeded"), asNeeded);
    for (const int digits : offered)
        addChoice(QString::fromStdString(std::to_string(digits)), digits);
    auto *const group = new QActionGroup(this);
    for (QAction *action : actions())
        group->addAction(action);
    connect(this, &QMenu::aboutToShow, this, &ExportDigitsMenu::showChoice);
    showChoice();
}

void ExportDigitsMenu::addChoice(const QString &text, int digits)
{
    QAction *action = addAction(text);
    action->setCheckable(true);
    action->setData(digits);
    connect(action, &QAction::triggered, this, [this, digits] {
        m_choices.setDigits(digits == asNeeded ? std::nullopt : std::optional(digits));
    });
}

void ExportDigitsMenu::showChoice()
{
    for (QAction *action : actions())
        action->setChecked(action->data().toInt() == m_choices.digits().value_or(asNeeded));
}
