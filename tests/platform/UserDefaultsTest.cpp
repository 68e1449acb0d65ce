#include "platform/UserDefaults.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <filesystem>

namespace {

const QString key = QStringLiteral("A Key");

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

class UserDefaultsTest : public testing::Test
{
protected:
    QString path() const { return m_folder.filePath(QStringLiteral("prefs.json")); }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(UserDefaultsTest, aMissingFileHoldsNothing)
{
    const UserDefaults defaults(path());
    EXPECT_FALSE(defaults.objectForKey(key));
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(UserDefaultsTest, everyKindOfValueComesBackAsItself)
{
    const QJsonObject nested{{QStringLiteral("Red"), 0.25},
                             {QStringLiteral("list"), QJsonArray{1, true, QStringLiteral("x")}}};
    UserDefaults written(path());
    written.setObject(0.05000000074505806, QStringLiteral("double"));
    written.setObject(4, QStringLiteral("int"));
    written.setObject(false, QStringLiteral("bool"));
    written.setObject(QStringLiteral("1.5"), QStringLiteral("text"));
    written.setObject(nested, QStringLiteral("nested"));
    ASSERT_TRUE(written.synchronize());

    const UserDefaults read(path());
    EXPECT_EQ(read.objectForKey(QStringLiteral("double"))->toDouble(), 0.05000000074505806);
    EXPECT_TRUE(read.objectForKey(QStringLiteral("int"))->isDouble());
    EXPECT_EQ(read.objectForKey(QStringLiteral("int"))->toInt(), 4);
    EXPECT_TRUE(read.objectForKey(QStringLiteral("bool"))->isBool());
    EXPECT_FALSE(read.objectForKey(QStringLiteral("bool"))->toBool());
    EXPECT_TRUE(read.objectForKey(QStringLiteral("text"))->isString());
    EXPECT_EQ(read.objectForKey(QStringLiteral("nested")), QJsonValue(nested));
}

TEST_F(UserDefaultsTest, nothingIsWrittenBeforeSynchronize)
{
    UserDefaults defaults(path());
    defaults.setObject(1, key);
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(UserDefaultsTest, aRemovedKeyLeavesTheFile)
{
    write(path(), R"({"A Key": 1, "Other": 2})");
    UserDefaults defaults(path());
    defaults.removeObjectForKey(key);
    EXPECT_FALSE(defaults.objectForKey(key));
    ASSERT_TRUE(defaults.synchronize());
    EXPECT_FALSE(QJsonDocument::fromJson(contentOf(path())).object().contains(key));
}

TEST_F(UserDefaultsTest, foreignKeysAreKept)
{
    write(path(), R"({"Foreign": {"deep": [1, 2]}})");
    UserDefaults defaults(path());
    defaults.setObject(1, key);
    ASSERT_TRUE(defaults.synchronize());
    const QJsonObject written = QJsonDocument::fromJson(contentOf(path())).object();
    EXPECT_EQ(written.value(QStringLiteral("Foreign")).toObject().value(QStringLiteral("deep")),
              QJsonValue(QJsonArray{1, 2}));
}

TEST_F(UserDefaultsTest, aNullInTheFileIsNoValue)
{
    write(path(), R"({"A Key": null})");
    EXPECT_FALSE(UserDefaults(path()).objectForKey(key));
}

TEST_F(UserDefaultsTest, missingFoldersAreCreated)
{
    const QString deep = m_folder.filePath(QStringLiteral("one/two/prefs.json"));
    UserDefaults defaults(deep);
    defaults.setObject(1, key);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_TRUE(UserDefaults(deep).objectForKey(key));
}

TEST_F(UserDefaultsTest, aDamagedFileCountsAsEmptyAndIsKeptBeside)
{
    const QByteArray damaged = R"({"A Key": 1, )";
    write(path(), damaged);
    UserDefaults defaults(path());
    EXPECT_FALSE(defaults.objectForKey(key));
    EXPECT_EQ(contentOf(path()), damaged);

    defaults.setObject(2, key);
    ASSERT_TRUE(defaults.synchronize());
    EXPECT_EQ(contentOf(path() + QStringLiteral(".damaged")), damaged);
    EXPECT_EQ(UserDefaults(path()).objectForKey(key)->toInt(), 2);
}

TEST_F(UserDefaultsTest, aFileThatIsNoDictionaryIsDamaged)
{
    write(path(), "[1, 2]");
    UserDefaults defaults(path());
    ASSERT_TRUE(defaults.synchronize());
    EXPECT_EQ(contentOf(path() + QStringLiteral(".damaged")), "[1, 2]");
}

TEST_F(UserDefaultsTest, theNewestDamagedFileIsKept)
{
    write(path() + QStringLiteral(".damaged"), "older");
    write(path(), "newer");
    UserDefaults defaults(path());
    ASSERT_TRUE(defaults.synchronize());
    EXPECT_EQ(contentOf(path() + QStringLiteral(".damaged")), "newer");
}

TEST_F(UserDefaultsTest, onlyTheFirstWritingKeepsTheDamagedFile)
{
    write(path(), "damaged");
    UserDefaults defaults(path());
    ASSERT_TRUE(defaults.synchronize());
    defaults.setObject(1, key);
    ASSERT_TRUE(defaults.synchronize());
    EXPECT_EQ(contentOf(path() + QStringLiteral(".damaged")), "damaged");
}

TEST_F(UserDefaultsTest, aFolderThatCannotBeMadeIsRefusedAndTheValuesStay)
{
    write(path(), "{}");
    UserDefaults defaults(path() + QStringLiteral("/below-a-file/prefs.json"));
    defaults.setObject(1, key);
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(defaults.objectForKey(key)->toInt(), 1);
}

TEST_F(UserDefaultsTest, aPlaceThatCannotBeWrittenIsRefused)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("prefs.json")));
    UserDefaults defaults(path());
    defaults.setObject(1, key);
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_TRUE(std::filesystem::is_directory(path().toStdString()));
}

TEST(UserDefaults, theStandardFileLiesInTheConfigurationFolder)
{
    const QString config = qEnvironmentVariable("XDG_CONFIG_HOME");
    ASSERT_FALSE(config.isEmpty());
    EXPECT_TRUE(UserDefaults::standardPath().startsWith(config + QLatin1Char('/')));
    EXPECT_TRUE(UserDefaults::standardPath().endsWith(QStringLiteral(".json")));
}
