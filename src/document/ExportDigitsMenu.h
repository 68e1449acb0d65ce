#pragma once

#include <QMenu>

class ExportChoices;

/// The submenu with how many digits numbers have in the files whose format leaves that free.
class ExportDigitsMenu : public QMenu
{
    Q_OBJECT

public:
    /// Adds itself to `menu`, which owns it. `choices` outlive it.
    ExportDigitsMenu(ExportChoices &choices, QMenu *menu);

private:
    void addChoice(const QString &text, int digits);
    void showChoice();

    ExportChoices &m_choices;
};
