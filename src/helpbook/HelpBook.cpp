#include "helpbook/HelpBook.h"

#include <QFile>
#include <QRegularExpression>

#include <utility>

namespace {

const QRegularExpression &titleMark()
{
    static const QRegularExpression mark(QStringLiteral("<title>(.*?)</title>"));
    return mark;
}

const QRegularExpression &anchorMark()
{
    static const QRegularExpression mark(QStringLiteral("<a name=\"([^\"]+)\""));
    return mark;
}

const QRegularExpression &keyMark()
{
    static const QRegularExpression mark(QStringLiteral("\\{key:([A-Za-z]+)\\}"));
    return mark;
}

/// The title of a page in Markdown is its first heading.
const QRegularExpression &headingMark()
{
    static const QRegularExpression mark(QStringLiteral("^# (.*)$"),
                                         QRegularExpression::MultilineOption);
    return mark;
}

QString titleOf(const QString &file, const QString &source)
{
    const bool isMarkdown = file.endsWith(QStringLiteral(".md"));
    return (isMarkdown ? headingMark() : titleMark()).match(source).captured(1);
}

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList capturesOf(const QRegularExpression &mark, const QString &text)
{
    QStringList captures;
    for (const QRegularExpressionMatch &match : mark.globalMatch(text))
        captures += match.captured(1);
    return captures;
}

QUrl urlOfPath(const QString &path)
{
    return path.startsWith(u':') ? QUrl(QStringLiteral("qrc") + path) : QUrl::fromLocalFile(path);
}

} // namespace

HelpBook::HelpBook(const QString &folder, KeysOfCommand keysOfCommand, const QString &standIn)
    : m_folder(folder)
    , m_standIn(standIn)
    , m_keysOfCommand(std::move(keysOfCommand))
{
    const QStringList files =
        source(QStringLiteral("contents.txt")).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &file : files)
        m_pages.push_back({file, titleOf(file, source(file))});
}

QUrl HelpBook::url(const QString &file) const { return urlOfPath(m_folder + u'/' + file); }

QUrl HelpBook::located(const QUrl &url) const
{
    const QString folder = this->url(QString()).toString();
    const QString address = url.toString();
    return address.startsWith(folder) ? urlOfPath(pathOf(address.mid(folder.size()))) : url;
}

QString HelpBook::pathOf(const QString &file) const
{
    const QString path = m_folder + u'/' + file;
    return m_standIn.isEmpty() || QFile::exists(path) ? path : m_standIn + u'/' + file;
}

std::optional<QUrl> HelpBook::urlOfAnchor(const QString &anchor) const
{
    for (const Page &page : m_pages) {
        if (anchorsIn(source(page.file)).contains(anchor)) {
            QUrl place = url(page.file);
            place.setFragment(anchor);
            return place;
        }
    }
    return std::nullopt;
}

QUrl HelpBook::firstUrl() const { return m_pages.empty() ? QUrl() : url(m_pages.front().file); }

std::optional<int> HelpBook::indexOf(const QUrl &url) const
{
    for (std::size_t i = 0; i < m_pages.size(); ++i)
        if (this->url(m_pages[i].file).matches(url, QUrl::RemoveFragment))
            return static_cast<int>(i);
    return std::nullopt;
}

QString HelpBook::text(const QString &file) const
{
    const QString raw = source(file);
    QString filled;
    qsizetype done = 0;
    for (const QRegularExpressionMatch &match : keyMark().globalMatch(raw)) {
        const QString keys = m_keysOfCommand ? m_keysOfCommand(match.captured(1)) : QString();
        filled += QStringView(raw).mid(done, match.capturedStart() - done);
        filled += keys.isEmpty() ? QStringLiteral("–") : keys.toHtmlEscaped();
        done = match.capturedEnd();
    }
    filled += QStringView(raw).mid(done);
    return filled;
}

QStringList HelpBook::anchorsIn(const QString &source) { return capturesOf(anchorMark(), source); }

QStringList HelpBook::commandsIn(const QString &source) { return capturesOf(keyMark(), source); }

QString HelpBook::source(const QString &file) const { return textOf(pathOf(file)); }
