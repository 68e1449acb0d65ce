#include "app/ExportCommand.h"

#include "app/DocumentInput.h"
#include "capture/SeriesText.h"
#include "document/DocumentExchange.h"
#include "exchange/ExchangeFile.h"
#include "exchange/Spreadsheet.h"
#include "platform/DurableFile.h"
#include "platform/Texts.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace {

/// The series to write: those asked for that hold points, as a selection in the table has them.
IndexSet chosenSeries(const CommandLine &commandLine, const QString &file, const SeriesStore &store,
                      const Console &console)
{
    IndexSet valid = store.validSeriesBetween(0, SeriesStore::seriesCount - 1);
    if (!commandLine.series)
        return valid;
    IndexSet chosen = store.validSeriesWithin(*commandLine.series);
    for (const int i : *commandLine.series)
        if (!chosen.contains(i) && !chosen.empty())
            console.complainAbout(file, texts::localizedFormat("app.export.emptySeries", i + 1));
    return chosen;
}

/// A document with what of it is exported.
struct Chosen
{
    DocumentContents contents;
    IndexSet series;
    QString file;
};

/// What is exported of one document; nothing if it cannot be had, and the user is told why.
std::optional<Chosen> chosenOf(const QString &file, const CommandLine &commandLine,
                               const Console &console)
{
    std::optional<DocumentContents> contents = documentinput::read(file, console);
    if (!contents)
        return std::nullopt;
    const IndexSet series = chosenSeries(commandLine, file, contents->series, console);
    if (series.empty()) {
        console.complainAbout(file, texts::localized(commandLine.series ? "app.export.noneOfThem"
                                                                        : "app.export.noPoints"));
        return std::nullopt;
    }
    return Chosen{std::move(*contents), series, file};
}

QByteArray plainText(const std::vector<Chosen> &documents, bool withTitles)
{
    QByteArray all;
    const char *separator = "";
    for (const Chosen &document : documents) {
        const auto text =
            seriestext::makeString(document.contents.series, document.series, withTitles);
        all += separator + seriestext::lossyAscii(QString::fromStdString(text.value_or("")));
        separator = "\n";
    }
    return all;
}

/// The bytes of all documents; nothing, and the user is told why, if they cannot be made.
std::optional<QByteArray> contentOf(const std::vector<Chosen> &documents,
                                    const CommandLine &commandLine, bool withTitles,
                                    const Console &console)
{
    if (commandLine.exportFormat() == ExchangeFormat::Text)
        return plainText(documents, withTitles);
    std::vector<ExchangeFacts> facts;
    facts.reserve(documents.size());
    for (const Chosen &document : documents)
        facts.push_back(documentexchange::factsOf(document.contents, document.series,
                                                  QFileInfo(document.file).fileName()));
    auto content =
        exchangefile::content(commandLine.exportFormat(), facts, {withTitles, commandLine.digits});
    if (!content)
        console.complainAbout(commandLine.output, spreadsheet::reasonOfNothing());
    return content;
}

bool isWritten(QIODevice &device, const QByteArray &bytes)
{
    return device.write(bytes) == bytes.size();
}

/// Writes the file whole or not at all; gives the reason of a failure.
std::optional<QString> writeFile(const QString &path, const QByteArray &bytes)
{
    const QFileInfo target(path);
    if (target.exists() && !target.isFile() && !target.isDir()) {
        // A device or a pipe: there is nothing that could be replaced.
        QFile device(path);
        if (device.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && isWritten(device, bytes))
            return std::nullopt;
        return device.errorString();
    }
    return durablefile::write(path, bytes);
}

/// Writes to where the user wants it; false, and the user is told why, if that fails.
bool write(const QString &output, const QByteArray &bytes, const Console &console)
{
    if (output == CommandLine::standardStream)
        return console.print(bytes);
    const std::optional<QString> reason = writeFile(output, bytes);
    if (reason)
        console.complainAbout(output, *reason);
    return !reason;
}

/// Whether `output` is one of the documents themselves, by whatever name.
bool isOneOf(const QStringList &files, const QString &output)
{
    const QString path = QFileInfo(output).canonicalFilePath();
    return !path.isEmpty() && std::any_of(files.begin(), files.end(), [&path](const QString &file) {
        return QFileInfo(file).canonicalFilePath() == path;
    });
}

} // namespace

namespace exportcommand {

int run(const CommandLine &commandLine, bool titlesByDefault, const Console &console)
{
    const bool writesFile = commandLine.output != CommandLine::standardStream;
    if (writesFile && isOneOf(commandLine.files, commandLine.output)) {
        console.complainAbout(commandLine.output, texts::localized("app.export.outputIsInput"));
        return exitcode::wrongUse;
    }
    std::vector<Chosen> documents;
    bool isWhole = true;
    for (const QString &file : commandLine.files) {
        std::optional<Chosen> chosen = chosenOf(file, commandLine, console);
        isWhole = isWhole && chosen;
        if (isWhole)
            documents.push_back(std::move(*chosen));
    }
    const auto content = isWhole ? contentOf(documents, commandLine,
                                             commandLine.titles.value_or(titlesByDefault), console)
                                 : std::nullopt;
    if (!content) {
        console.complain(texts::localized("app.export.nothingWritten"));
        return exitcode::failure;
    }
    return write(commandLine.output, *content, console) ? exitcode::success : exitcode::failure;
}

} // namespace exportcommand
