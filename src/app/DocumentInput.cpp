#include "app/DocumentInput.h"

#include "app/CommandLine.h"
#include "platform/Texts.h"

namespace documentinput {

std::optional<DocumentContents> read(const QString &file, const Console &console)
{
    ReadDocumentFile document = file == CommandLine::standardStream
                                    ? readDocument(console.in.readAll())
                                    : readDocumentFile(file);
    if (document.error.isEmpty() && document.contents)
        return std::move(document.contents);
    console.complainAbout(file, document.error.replace(u'\n', u' '));
    if (document.contents)
        console.complainAbout(file, texts::localized("app.damaged"));
    return std::nullopt;
}

} // namespace documentinput
