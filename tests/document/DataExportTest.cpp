#include "document/DocumentExchange.h"
#include "document/ExportChoices.h"
#include "document/ExportFormats.h"
#include "document/TestDocument.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class DataExport : public ::testing::Test
{
protected:
    DataExport()
    {
        window.digitize();
        window.click(210, 151);
    }

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Exports all data to a file of that name, and gives its content.
    [[nodiscard]] QByteArray exported(const QString &name)
    {
        window.command("saveDataAs");
        EXPECT_TRUE(window.services.panels->confirm(path(name)));
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    [[nodiscard]] QAction *digits(int index)
    {
        auto *const menu =
            window.document->window().findChild<QMenu *>(QStringLiteral("exportDigitsMenu"));
        return menu == nullptr ? nullptr : menu->actions().value(index);
    }

    TestDocument window;

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(DataExport, theSavePanelOffersEveryFormatAndBeginsWithText)
{
    window.command("saveDataAs");
    const FileToSave &asked = window.services.panels->file();
    QStringList suffixes;
    for (const FileKind &kind : asked.kinds)
        suffixes += kind.suffix;
    EXPECT_EQ(suffixes, QStringList({".txt", ".csv", ".json", ".xlsx"}));
    EXPECT_EQ(asked.kind, 0U);
}

TEST_F(DataExport, everyFormatHoldsTheData)
{
    EXPECT_EQ(exported("a.txt").count('\t'), 2);
    EXPECT_TRUE(exported("a.csv").startsWith("Series_01_x,Series_01_y\r\n"));
    EXPECT_TRUE(exported("a.xlsx").startsWith("PK"));
}

TEST_F(DataExport, jsonTellsThePictureAndTheAxesOfTheWindow)
{
    const QJsonObject object = QJsonDocument::fromJson(exported("a.json")).object();
    EXPECT_EQ(object["picture"].toObject()["width"].toInt(),
              static_cast<int>(window.document->imageSize().width));
    EXPECT_EQ(object["axes"].toObject()["anchors"].toArray().size(), 4);
    EXPECT_EQ(object["series"].toArray()[0].toObject()["points"].toArray().size(), 1);
}

TEST_F(DataExport, theFormatIsOfferedAgainTheNextTime)
{
    static_cast<void>(exported("a.csv"));
    window.command("saveDataAs");
    EXPECT_EQ(window.services.panels->file().kind, 1U);
    EXPECT_EQ(window.services.panels->file().folder, QFileInfo(path("a.csv")).absolutePath());
}

TEST_F(DataExport, theDigitsAreThoseOfTheMenuButForText)
{
    const QByteArray text = exported("before.txt");
    ASSERT_TRUE(digits(1));
    digits(1)->trigger();
    EXPECT_EQ(window.services.exportChoices().digits(), 3);
    const QByteArray line = exported("a.csv").split('\n').value(1).trimmed();
    for (const QByteArray &field : line.split(','))
        EXPECT_LE(field.size(), 5) << line.constData();
    EXPECT_EQ(exported("after.txt"), text);
    digits(0)->trigger();
    EXPECT_EQ(window.services.exportChoices().digits(), std::nullopt);
}

TEST(ExportChoices, areKeptFromSessionToSession)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("export.json"));
    {
        ExportChoices choices(file);
        EXPECT_EQ(choices.format(), ExchangeFormat::Text);
        EXPECT_EQ(choices.folder(), QString());
        EXPECT_EQ(choices.digits(), std::nullopt);
        choices.remember(ExchangeFormat::Json, folder.path());
        choices.setDigits(8);
    }
    const ExportChoices choices(file);
    EXPECT_EQ(choices.format(), ExchangeFormat::Json);
    EXPECT_EQ(choices.folder(), folder.path());
    EXPECT_EQ(choices.digits(), 8);
}

TEST(ExportChoices, whatMakesNoSenseCountsAsNone)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("export.json")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"({"Export Format":"ods","Export Folder":"/gone/away","Export Digits":99})");
    file.close();
    const ExportChoices choices(file.fileName());
    EXPECT_EQ(choices.format(), ExchangeFormat::Text);
    EXPECT_EQ(choices.folder(), QString());
    EXPECT_EQ(choices.digits(), std::nullopt);
}
