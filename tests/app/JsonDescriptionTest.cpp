// The description of the JSON that other programs read is complete.
#include "app/ConsoleFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

using sampleroots::Kind;

namespace {

class JsonDescription : public ConsoleFixture
{};

void collectMembers(const QJsonValue &value, QSet<QString> &members)
{
    for (const QJsonValue &entry : value.toArray())
        collectMembers(entry, members);
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        members.insert(member.key());
        collectMembers(member.value(), members);
    }
}

} // namespace

TEST_F(JsonDescription, namesEveryMember)
{
    QStringList files;
    for (const Kind kind : {Kind::Parallel, Kind::Quadrangle, Kind::Polar})
        files += writeDocument(QString::number(files.size()) + QStringLiteral(".crvgrab"),
                               sampleroots::root(kind, 1));
    ASSERT_EQ(run(QStringList{"--export", "-", "--format", "json"} + files), exitcode::success);
    ASSERT_EQ(run(QStringList{"--info", "--json"} + files), exitcode::success);
    QSet<QString> members;
    for (const QByteArray &line : out().trimmed().split('\n'))
        collectMembers(QJsonDocument::fromJson(line).object(), members);
    EXPECT_GT(members.size(), 40);

    QFile file(QStringLiteral(CURVEGRAB_SOURCE "/docs/json.md"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString description = QString::fromUtf8(file.readAll());
    for (const QString &member : members)
        EXPECT_TRUE(description.contains(u'`' + member + u'`')) << qPrintable(member);
}
