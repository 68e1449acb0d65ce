#include "languages/CatalogueFile.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

QDir folder() { return QDir(QStringLiteral(CURVEGRAB_TEXTS_FOLDER)); }

QString attribute(const QXmlStreamReader &xml, const char *name)
{
    return xml.attributes().value(QLatin1String(name)).toString();
}

void readTranslation(QXmlStreamReader &xml, CatalogueEntry &entry)
{
    entry.isUnfinished = !attribute(xml, "type").isEmpty();
    if (!entry.hasPlurals) {
        entry.translations = {xml.readElementText()};
        return;
    }
    while (xml.readNextStartElement())
        entry.translations += xml.readElementText();
}

CatalogueEntry readMessage(QXmlStreamReader &xml, const QString &file)
{
    CatalogueEntry entry;
    entry.file = file;
    entry.id = attribute(xml, "id");
    entry.hasPlurals = attribute(xml, "numerus") == u"yes";
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source")
            entry.source = xml.readElementText();
        else if (xml.name() == u"translation")
            readTranslation(xml, entry);
        else
            xml.skipCurrentElement();
    }
    return entry;
}

void readFile(const QDir &in, const QString &language, const QString &name,
              std::vector<CatalogueEntry> &entries)
{
    QFile file(in.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"TS")
            EXPECT_EQ(attribute(xml, "language"), language) << qPrintable(file.fileName());
        else if (xml.name() == u"message")
            entries.push_back(readMessage(xml, name));
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(file.fileName()) << ":" << xml.lineNumber() << ": "
                                 << qPrintable(xml.errorString());
}

} // namespace

namespace cataloguefiles {

QStringList languages()
{
    QStringList codes = folder().entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    codes.removeAll(QStringLiteral("en"));
    codes.prepend(QStringLiteral("en"));
    return codes;
}

std::vector<CatalogueEntry> entries(const QString &language)
{
    std::vector<CatalogueEntry> entries;
    const QDir in(folder().filePath(language));
    for (const QString &name : in.entryList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name))
        readFile(in, language, name, entries);
    return entries;
}

} // namespace cataloguefiles
