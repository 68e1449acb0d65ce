#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <optional>
#include <vector>

/// The pages of a help book: files of HTML or Markdown in one folder, in the order of its file
/// "contents.txt".
class HelpBook
{
public:
    struct Page
    {
        QString file; ///< within the folder
        QString title;
    };

    /// The keys of a menu command by its name, as the user's system writes them; empty if it has
    /// none.
    using KeysOfCommand = std::function<QString(const QString &command)>;

    /// `folder` may be one of the resources. What it lacks is taken from the folder `standIn`, so
    /// that a book in another language may have some of the pages only.
    explicit HelpBook(const QString &folder, KeysOfCommand keysOfCommand = {},
                      const QString &standIn = {});

    [[nodiscard]] const std::vector<Page> &pages() const & { return m_pages; }
    const std::vector<Page> &pages() const && = delete;

    /// The address of a page, or of the place called `anchor` on whichever page has it.
    [[nodiscard]] QUrl url(const QString &file) const;
    [[nodiscard]] std::optional<QUrl> urlOfAnchor(const QString &anchor) const;
    /// The first page; an empty address if the book has none.
    [[nodiscard]] QUrl firstUrl() const;

    /// The number of the page at `url`, whatever place on it; nothing for another address.
    [[nodiscard]] std::optional<int> indexOf(const QUrl &url) const;

    /// A page's text, with each "{key:command}" replaced by the command's keys.
    [[nodiscard]] QString text(const QString &file) const;

    /// The names of places on a page, and the commands whose keys it tells.
    [[nodiscard]] static QStringList anchorsIn(const QString &source);
    [[nodiscard]] static QStringList commandsIn(const QString &source);

    /// A page as it stands in its file.
    [[nodiscard]] QString source(const QString &file) const;

    /// Where what is called `url` in this book lies: in its folder or in that of the stand-in.
    [[nodiscard]] QUrl located(const QUrl &url) const;

private:
    [[nodiscard]] QString pathOf(const QString &file) const;

    QString m_folder;
    QString m_standIn;
    KeysOfCommand m_keysOfCommand;
    std::vector<Page> m_pages;
};
