#include "imageview/PdfFiles.h"

#include <QFile>
#include <QList>

namespace pdffiles {

QString stored(const QString &name)
{
    return QStringLiteral(IMAGEVIEW_TEST_DATA) + QLatin1Char('/') + name;
}

QByteArray withObjects(const QList<QByteArray> &objects)
{
    QByteArray file = "%PDF-1.4\n";
    QList<qsizetype> places;
    const auto add = [&](const QByteArray &object) {
        places.append(file.size());
        file += QByteArray::number(places.size()) + " 0 obj\n" + object + "\nendobj\n";
    };
    add("<< /Type /Catalog /Pages 2 0 R >>");
    for (const QByteArray &object : objects)
        add(object);
    const qsizetype table = file.size();
    const QByteArray count = QByteArray::number(places.size() + 1);
    file += "xref\n0 " + count + "\n0000000000 65535 f \n";
    for (const qsizetype place : places)
        file += QByteArray::number(place).rightJustified(10, '0') + " 00000 n \n";
    file += "trailer\n<< /Size " + count + " /Root 1 0 R >>\nstartxref\n" +
            QByteArray::number(table) + "\n%%EOF\n";
    return file;
}

QByteArray withPage(const QByteArray &entries, const QByteArray &content)
{
    return withObjects({"<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                        "<< /Type /Page /Parent 2 0 R /Contents 4 0 R " + entries + " >>",
                        "<< /Length " + QByteArray::number(content.size()) + " >>\nstream\n" +
                            content + "\nendstream"});
}

QByteArray slow(int pages)
{
    QByteArray content = "/G gs 0 0 1 rg\n";
    for (int i = 0; i < 24; ++i)
        content += "0 0 1000 1000 re f\n";
    QByteArray kids;
    for (int page = 0; page < pages; ++page)
        kids += "4 0 R ";
    return withObjects(
        {"<< /Type /Pages /Kids [" + kids + "] /Count " + QByteArray::number(pages) + " >>",
         "<< /Length " + QByteArray::number(content.size()) + " >>\nstream\n" + content +
             "\nendstream",
         "<< /Type /Page /Parent 2 0 R /Contents 3 0 R /MediaBox [0 0 1000 1000] /Resources << "
         "/ExtGState << /G << /ca 0.01 /BM /Luminosity >> >> >> >>"});
}

QString written(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? path : QString();
}

} // namespace pdffiles
