#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QTextEdit;

/// Searches the text of a page: every match is marked, one of them is selected.
class HelpFindBar : public QWidget
{
    Q_OBJECT

public:
    /// Starts hidden; `page` outlives the bar.
    explicit HelpFindBar(QTextEdit &page, QWidget *parent = nullptr);

    /// Shows the bar with its text ready to be replaced.
    void open();
    /// Hides the bar and the marks, and goes back to the page.
    void dismiss();
    /// Marks the matches again, after another page was loaded.
    void refresh();

public Q_SLOTS:
    /// Selects the next match, or the one before, from the page's end on to its other end.
    void findNext();
    void findPrevious();

private:
    enum class Direction { Forwards, Backwards };

    void searchTextChanged();
    bool find(Direction direction);
    [[nodiscard]] int markMatches();
    void clearMarks();

    QTextEdit &m_page;
    QLineEdit *m_text = nullptr;
    QLabel *m_result = nullptr;
};
