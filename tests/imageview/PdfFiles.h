#pragma once

#include <QByteArray>
#include <QString>

/// The PDF files of the tests.
namespace pdffiles {

/// The path of a file that real programs have made (scripts/make-test-pdfs.sh).
[[nodiscard]] QString stored(const QString &name);

/// A file whose objects, from number 2 on, are `objects`; object 1 is its catalogue, which names
/// object 2 as the tree of pages.
[[nodiscard]] QByteArray withObjects(const QList<QByteArray> &objects);

/// A file of one page with these entries in its dictionary and this content.
[[nodiscard]] QByteArray withPage(const QByteArray &entries, const QByteArray &content = {});

/// `pages` pages, each of which takes the renderer about a second at its own size.
[[nodiscard]] QByteArray slow(int pages);

/// Writes the file and gives its path back.
QString written(const QString &path, const QByteArray &bytes);

} // namespace pdffiles
