#include "exchange/Spreadsheet.h"

#include "exchange/SampleFacts.h"
#include "platform/Modules.h"

#include <QFile>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

namespace {

/// A workbook as another program reads it.
class ReadWorkbook
{
public:
    explicit ReadWorkbook(const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(QStringLiteral("book.xlsx")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        QProcess cmake;
        cmake.setWorkingDirectory(m_folder.path());
        cmake.start(QStringLiteral(CURVEGRAB_CMAKE),
                    {QStringLiteral("-E"), QStringLiteral("tar"), QStringLiteral("xf"),
                     QStringLiteral("book.xlsx")});
        EXPECT_TRUE(cmake.waitForFinished());
        EXPECT_EQ(cmake.exitCode(), 0);
    }

    [[nodiscard]] QStringList sheetNames() const
    {
        QStringList names;
        const QByteArray book = part(QStringLiteral("xl/workbook.xml"));
        for (QXmlStreamReader xml(book); !xml.atEnd(); xml.readNext())
            if (xml.isStartElement() && xml.name() == u"sheet")
                names += xml.attributes().value(QStringLiteral("name")).toString();
        return names;
    }

    /// The cells of a sheet by their names; texts stand in quotes.
    [[nodiscard]] QMap<QString, QString> cells(int sheet) const
    {
        const QByteArray content = part(QStringLiteral("xl/worksheets/sheet%1.xml").arg(sheet));
        const QStringList strings = sharedStrings();
        QMap<QString, QString> cells;
        QString cell;
        bool isText = false;
        QXmlStreamReader xml(content);
        while (xml.readNext() != QXmlStreamReader::EndDocument && !xml.hasError()) {
            if (!xml.isStartElement())
                continue;
            if (xml.name() == u"c") {
                cell = xml.attributes().value(QStringLiteral("r")).toString();
                isText = xml.attributes().value(QStringLiteral("t")) == u"s";
            } else if (xml.name() == u"v") {
                const QString value = xml.readElementText();
                cells[cell] = isText ? u'"' + strings.value(value.toInt()) + u'"' : value;
            }
        }
        EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
        return cells;
    }

    [[nodiscard]] QByteArray part(const QString &name) const
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
        return file.readAll();
    }

private:
    [[nodiscard]] QStringList sharedStrings() const
    {
        QStringList strings;
        if (!QFile::exists(m_folder.filePath(QStringLiteral("xl/sharedStrings.xml"))))
            return strings;
        const QByteArray content = part(QStringLiteral("xl/sharedStrings.xml"));
        for (QXmlStreamReader xml(content); !xml.atEnd(); xml.readNext())
            if (xml.isStartElement() && xml.name() == u"t")
                strings += xml.readElementText();
        return strings;
    }

    QTemporaryDir m_folder;
};

QMap<QString, QString> cellsOf(const ExchangeFacts &facts, const ExchangeStyle &style)
{
    const auto bytes = spreadsheet::workbook({facts}, style);
    return bytes ? ReadWorkbook(*bytes).cells(1) : QMap<QString, QString>();
}

std::vector<std::string> namesFor(const std::vector<std::string> &documents)
{
    std::vector<ExchangeFacts> facts(documents.size());
    for (std::size_t i = 0; i < facts.size(); ++i)
        facts[i].document = documents[i];
    return spreadsheet::sheetNames(facts);
}

} // namespace

TEST(Spreadsheet, eachSeriesHasItsColumnsOfNumbers)
{
    const QMap<QString, QString> expected{{"A1", "\"Series_01_x\""},
                                          {"B1", "\"Series_01_y\""},
                                          {"C1", "\"Series_03_theta\""},
                                          {"D1", "\"Series_03_r\""},
                                          {"A2", "0.1"},
                                          {"B2", "-2.5"},
                                          {"C2", "15"},
                                          {"D2", "7.5"},
                                          {"A3", "0.3333333333333333"},
                                          {"B3", "1E+20"}};
    EXPECT_EQ(cellsOf(samplefacts::twoSeries(), {}), expected);
}

TEST(Spreadsheet, withoutTitlesTheDataBeginInTheFirstRow)
{
    const auto cells = cellsOf(samplefacts::twoSeries(), {false, 2});
    EXPECT_EQ(cells.value("A1"), "0.1");
    EXPECT_EQ(cells.value("A2"), "0.33");
    EXPECT_EQ(cells.size(), 6);
}

TEST(Spreadsheet, titlesStayInSight)
{
    const auto bytes = spreadsheet::workbook({samplefacts::twoSeries()}, {});
    ASSERT_TRUE(bytes);
    EXPECT_TRUE(ReadWorkbook(*bytes)
                    .part(QStringLiteral("xl/worksheets/sheet1.xml"))
                    .contains("state=\"frozen\""));
}

TEST(Spreadsheet, whatIsNoNumberIsAText)
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    ExchangeFacts facts;
    facts.series = {{1, samplefacts::points({{-infinite, 0.0 * infinite}}), nullptr}};
    const auto cells = cellsOf(facts, {false, {}});
    EXPECT_EQ(cells.value("A1"), "\"-inf\"");
    EXPECT_EQ(cells.value("B1"), "\"nan\"");
}

TEST(Spreadsheet, theLocaleOfTheProgramIsLeftAsItWas)
{
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    const auto *const point = std::localeconv()->decimal_point;
    const std::string pointBefore = point;
    ASSERT_TRUE(spreadsheet::workbook({samplefacts::twoSeries()}, {}));
    EXPECT_EQ(std::setlocale(LC_NUMERIC, nullptr), before);
    EXPECT_EQ(std::localeconv()->decimal_point, pointBefore);
}

TEST(Spreadsheet, everyDocumentHasItsSheet)
{
    ExchangeFacts second = samplefacts::twoSeries();
    second.document = "Zweite Messung: 5 °C.crvgrab";
    const auto bytes = spreadsheet::workbook({samplefacts::twoSeries(), second}, {});
    ASSERT_TRUE(bytes);
    const ReadWorkbook book(*bytes);
    EXPECT_EQ(book.sheetNames(), QStringList({"plot", "Zweite Messung 5 °C"}));
    EXPECT_EQ(book.cells(2).value("A2"), "0.1");
}

TEST(Spreadsheet, aSeriesLongerThanASheetCannotBeWritten)
{
    constexpr std::size_t rowsOfSheet = 1048576;
    ExchangeFacts facts;
    facts.series = {
        {1, std::vector<ZKVector>(rowsOfSheet + 1, ZKVector::vectorWithX(1, 2)), nullptr}};
    EXPECT_EQ(spreadsheet::workbook({facts}, {false, {}}), std::nullopt);
}

TEST(Spreadsheet, sheetsHaveNamesThatSheetsMayHave)
{
    using Names = std::vector<std::string>;
    EXPECT_EQ(namesFor({"a.crvgrab", "A.crvgrab", "a 2.crvgrab"}), Names({"a", "A 2", "a 2 2"}));
    EXPECT_EQ(namesFor({"what?[1]*.png", "'", "-"}), Names({"what1", "Data", "-"}));
    EXPECT_EQ(namesFor({"History.crvgrab", "HISTORY"}), Names({"History 2", "HISTORY 3"}));
    const std::string longName(40, 'x');
    EXPECT_EQ(namesFor({longName, longName}),
              Names({std::string(31, 'x'), std::string(29, 'x') + " 2"}));
}

TEST(Spreadsheet, withoutItsModuleSaysWhereThatBelongs)
{
    const QTemporaryDir folder;
    const QString modulesOfProgram = modules::folder();
    modules::setFolder(folder.path());
    EXPECT_EQ(spreadsheet::workbook({samplefacts::twoSeries()}, {}), std::nullopt);
    const QString reason = spreadsheet::reasonOfNothing();
    modules::setFolder(modulesOfProgram);
    EXPECT_TRUE(reason.contains(folder.path())) << qPrintable(reason);
    EXPECT_NE(spreadsheet::reasonOfNothing(), reason);
}
