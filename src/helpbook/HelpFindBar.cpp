#include "helpbook/HelpFindBar.h"

#include "platform/Texts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolButton>

HelpFindBar::HelpFindBar(QTextEdit &page, QWidget *parent)
    : QWidget(parent)
    , m_page(page)
    , m_text(new QLineEdit(this))
    , m_result(new QLabel(this))
{
    auto *layout = new QHBoxLayout(this);
    auto *caption = new QLabel(texts::localized("help.find.caption"), this);
    caption->setBuddy(m_text);
    m_text->setObjectName(QStringLiteral("helpFindText"));
    m_text->setClearButtonEnabled(true);
    m_text->setAccessibleName(texts::localized("help.find.accessible"));
    m_result->setObjectName(QStringLiteral("helpFindResult"));
    layout->addWidget(caption);
    layout->addWidget(m_text);
    const auto addButton = [this, layout](const char *name, const char *tip, Qt::ArrowType arrow) {
        auto *button = new QToolButton(this);
        button->setObjectName(QString::fromLatin1(name));
        button->setArrowType(arrow);
        button->setAutoRaise(true);
        button->setToolTip(texts::localized(tip));
        button->setAccessibleName(texts::localized(tip));
        layout->addWidget(button);
        return button;
    };
    connect(addButton("helpFindPrevious", "help.find.previous", Qt::UpArrow), &QToolButton::clicked,
            this, &HelpFindBar::findPrevious);
    connect(addButton("helpFindNext", "help.find.next", Qt::DownArrow), &QToolButton::clicked, this,
            &HelpFindBar::findNext);
    layout->addWidget(m_result, 1);
    connect(m_text, &QLineEdit::textEdited, this, &HelpFindBar::searchTextChanged);
    connect(m_text, &QLineEdit::returnPressed, this, &HelpFindBar::findNext);
    hide();
}

void HelpFindBar::open()
{
    show();
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
    refresh();
}

void HelpFindBar::dismiss()
{
    hide();
    clearMarks();
    m_page.setFocus(Qt::OtherFocusReason);
}

void HelpFindBar::refresh()
{
    if (!isVisibleTo(parentWidget()))
        return;
    clearMarks();
    m_result->clear();
    if (m_text->text().isEmpty())
        return;
    const int matches = markMatches();
    m_result->setText(matches == 0
                          ? texts::localized("help.find.none")
                          : texts::localizedFormat(
                                matches == 1 ? "help.find.match" : "help.find.matches", matches));
}

void HelpFindBar::findNext() { find(Direction::Forwards); }

void HelpFindBar::findPrevious() { find(Direction::Backwards); }

void HelpFindBar::searchTextChanged()
{
    refresh();
    // The match at hand may go on with what was typed: look from its begin again.
    QTextCursor cursor = m_page.textCursor();
    cursor.setPosition(cursor.selectionStart());
    m_page.setTextCursor(cursor);
    findNext();
}

bool HelpFindBar::find(Direction direction)
{
    const QString text = m_text->text();
    if (text.isEmpty())
        return false;
    const bool isBackwards = direction == Direction::Backwards;
    const QTextDocument::FindFlags flags =
        isBackwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (m_page.find(text, flags))
        return true;
    const QTextCursor before = m_page.textCursor();
    m_page.moveCursor(isBackwards ? QTextCursor::End : QTextCursor::Start);
    if (m_page.find(text, flags))
        return true;
    m_page.setTextCursor(before);
    return false;
}

int HelpFindBar::markMatches()
{
    QTextCharFormat format;
    format.setBackground(QColor(255, 221, 87));
    format.setForeground(Qt::black);
    QList<QTextEdit::ExtraSelection> marks;
    QTextCursor match = m_page.document()->find(m_text->text(), 0);
    while (!match.isNull()) {
        marks.append({match, format});
        match = m_page.document()->find(m_text->text(), match);
    }
    m_page.setExtraSelections(marks);
    return static_cast<int>(marks.size());
}

void HelpFindBar::clearMarks() { m_page.setExtraSelections({}); }
