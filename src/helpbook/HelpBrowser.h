#pragma once

#include <QTextBrowser>

class HelpBook;

/// Shows the pages of a help book.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    /// `book` outlives the browser.
    explicit HelpBrowser(const HelpBook &book, QWidget *parent = nullptr);

    QVariant loadResource(int type, const QUrl &name) override;

private:
    const HelpBook &m_book;
};
