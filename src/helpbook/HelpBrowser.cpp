#include "helpbook/HelpBrowser.h"

#include "helpbook/HelpBook.h"

HelpBrowser::HelpBrowser(const HelpBook &book, QWidget *parent)
    : QTextBrowser(parent)
    , m_book(book)
{
    setOpenExternalLinks(true);
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name)
{
    const QUrl address = name.isRelative() ? source().resolved(name) : name;
    const std::optional<int> page = m_book.indexOf(address);
    const bool isText =
        type == QTextDocument::HtmlResource || type == QTextDocument::MarkdownResource;
    if (isText && page)
        return m_book.text(m_book.pages()[static_cast<std::size_t>(*page)].file);
    return QTextBrowser::loadResource(type, m_book.located(address));
}
