#include "app/CommandLine.h"

#include "capture/SeriesStore.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace {

/// Options of the toolkit, which takes them off the command line itself.
constexpr std::array<std::string_view, 14> toolkitOptionsWithValue{
    "platform",    "platformpluginpath", "platformtheme", "plugin",       "qwindowgeometry",
    "qwindowicon", "qwindowtitle",       "style",         "stylesheet",   "session",
    "display",     "geometry",           "fontengine",    "qmljsdebugger"};
constexpr std::array<std::string_view, 3> toolkitFlags{"reverse", "widgetcount", "nograb"};

template <std::size_t count>
bool contains(const std::array<std::string_view, count> &names, const QString &name)
{
    return std::find(names.begin(), names.end(), name.toStdString()) != names.end();
}

/// A whole number of one or two digits; nothing for anything else.
std::optional<int> smallNumber(const QString &text)
{
    constexpr int mostDigits = 2;
    const QString number = text.trimmed();
    const bool isNumber = !number.isEmpty() && number.size() <= mostDigits &&
                          std::all_of(number.begin(), number.end(),
                                      [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
    if (!isNumber)
        return std::nullopt;
    int value = 0;
    for (const QChar digit : number)
        value = value * 10 + digit.digitValue();
    return value;
}

/// Goes through the arguments one by one.
class Parser
{
public:
    explicit Parser(const QStringList &arguments)
        : m_rest(arguments)
    {}

    CommandLine parsed()
    {
        while (!m_rest.isEmpty() && !m_line.mistake && m_line.action != CommandLine::Action::Help &&
               m_line.action != CommandLine::Action::Version)
            readArgument(m_rest.takeFirst());
        checkTogether();
        return m_line;
    }

private:
    using Action = CommandLine::Action;

    void readArgument(const QString &argument)
    {
        if (argument == u"--") {
            m_line.files += std::exchange(m_rest, {});
        } else if (!argument.startsWith(u'-') || argument == CommandLine::standardStream) {
            m_line.files += argument;
        } else {
            readOption(argument);
        }
    }

    void readOption(const QString &argument)
    {
        const auto sign = argument.indexOf(u'=');
        m_option = argument.left(sign);
        m_attached = sign < 0 ? std::nullopt : std::optional(argument.mid(sign + 1));
        if (m_option == u"--export")
            readExport();
        else if (m_option == u"--series")
            readSeries();
        else if (m_option == u"--format")
            readFormat();
        else if (m_option == u"--digits")
            readDigits();
        else if (m_option == u"--titles" || m_option == u"--no-titles")
            readTitles(m_option == u"--titles");
        else if (m_option == u"--json")
            m_line.asJson = isPlain();
        else if (m_option == u"--info")
            choose(Action::Info);
        else if (m_option == u"--help" || m_option == u"-h")
            choose(Action::Help);
        else if (m_option == u"--version" || m_option == u"-v")
            choose(Action::Version);
        else
            passToolkitOption(argument);
    }

    // An option in place of OUT means that OUT was forgotten; a file of such a name takes "=".
    void readExport()
    {
        const bool isForgotten = !m_attached && !m_rest.isEmpty() &&
                                 m_rest.first().startsWith(u'-') &&
                                 m_rest.first() != CommandLine::standardStream;
        if (isForgotten) {
            fail("app.usage.noValue", m_option);
        } else if (const std::optional<QString> output = value()) {
            choose(Action::Export);
            m_line.output = *output;
        }
    }

    void readSeries()
    {
        const std::optional<QString> list = value();
        if (!list)
            return;
        m_exportOption = m_option;
        if (const auto series = serieslist::fromText(*list))
            m_line.series = *series;
        else
            fail("app.usage.series", *list);
    }

    void readFormat()
    {
        const std::optional<QString> name = value();
        if (!name)
            return;
        m_exportOption = m_option;
        m_line.format = exchangeformat::fromName(*name);
        if (!m_line.format)
            fail("app.usage.format", *name);
    }

    void readDigits()
    {
        const std::optional<QString> text = value();
        if (!text)
            return;
        m_exportOption = m_option;
        m_line.digits = smallNumber(*text);
        if (!m_line.digits || *m_line.digits < exchangeformat::fewestDigits ||
            *m_line.digits > exchangeformat::mostDigits)
            fail("app.usage.digits", *text);
    }

    void readTitles(bool wanted)
    {
        if (!isPlain())
            return;
        if (m_line.titles && *m_line.titles != wanted)
            fail("app.usage.bothTitles");
        m_exportOption = m_option;
        m_line.titles = wanted;
    }

    void choose(Action action)
    {
        const bool isOther = m_line.action != Action::OpenWindows && m_line.action != action;
        if (isOther && action != Action::Help && action != Action::Version)
            fail("app.usage.exportAndInfo");
        else if (action == Action::Export || isPlain())
            m_line.action = action;
    }

    void passToolkitOption(const QString &argument)
    {
        const QString name = m_option.mid(m_option.startsWith(u"--") ? 2 : 1);
        if (contains(toolkitOptionsWithValue, name)) {
            m_line.choosesPlatform = m_line.choosesPlatform || name == u"platform";
            static_cast<void>(value());
        } else if (!contains(toolkitFlags, name)) {
            fail("app.usage.unknown", argument);
        }
    }

    /// The option's value, attached by "=" or in the next argument; without one a mistake.
    std::optional<QString> value()
    {
        if (!m_attached && !m_rest.isEmpty())
            m_attached = m_rest.takeFirst();
        if (!m_attached || m_attached->isEmpty()) {
            fail("app.usage.noValue", m_option);
            return std::nullopt;
        }
        return m_attached;
    }

    /// Whether the option has no value, as it should.
    bool isPlain()
    {
        if (m_attached)
            fail("app.usage.unwantedValue", m_option);
        return !m_attached;
    }

    void checkTogether()
    {
        if (m_line.mistake || m_line.action == Action::Help || m_line.action == Action::Version)
            return;
        const bool exports = m_line.action == Action::Export;
        if (!exports && !m_exportOption.isEmpty())
            fail("app.usage.exportOnly", m_exportOption);
        else if (m_line.asJson && m_line.action != Action::Info)
            fail("app.usage.infoOnly", QStringLiteral("--json"));
        else if (m_line.action == Action::OpenWindows)
            checkFilesToOpen();
        else if (m_line.files.isEmpty())
            fail("app.usage.noFile");
        else if (exports)
            checkOutput();
    }

    // A forgotten OUT would make the first document the output, and overwrite it.
    void checkOutput()
    {
        if (m_line.output.endsWith(QStringLiteral(".crvgrab"), Qt::CaseInsensitive))
            fail("app.usage.outputIsDocument", m_line.output);
        else if (m_line.digits && m_line.exportFormat() == ExchangeFormat::Text)
            fail("app.usage.textDigits", QStringLiteral("--digits"));
    }

    void checkFilesToOpen()
    {
        if (m_line.files.contains(QStringView(CommandLine::standardStream)))
            fail("app.usage.openStandardInput");
    }

    void fail(const char *text, const QString &argument = {})
    {
        if (!m_line.mistake)
            m_line.mistake = CommandLine::Mistake{text, argument};
    }

    QStringList m_rest;
    CommandLine m_line;
    QString m_option;
    QString m_exportOption; ///< one that was given and belongs to exports
    std::optional<QString> m_attached;
};

/// A series number from 1 to 10 as an index from 0.
std::optional<int> seriesIndex(const QString &text)
{
    const std::optional<int> number = smallNumber(text);
    return number && SeriesStore::isSeries(*number - 1) ? std::optional(*number - 1) : std::nullopt;
}

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments) { return Parser(arguments).parsed(); }

std::optional<std::optional<IndexSet>> serieslist::fromText(const QString &text)
{
    if (text == u"all")
        return std::optional<IndexSet>();
    IndexSet series;
    for (const QString &part : text.split(u',')) {
        const auto dash = part.indexOf(u'-');
        const std::optional<int> first = seriesIndex(part.left(dash));
        const std::optional<int> last = dash < 0 ? first : seriesIndex(part.mid(dash + 1));
        if (!first || !last)
            return std::nullopt;
        for (int i = std::min(*first, *last); i <= std::max(*first, *last); ++i)
            series.insert(i);
    }
    return series;
}
