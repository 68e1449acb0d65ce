// The description of the document file is complete.
#include "document/DocumentArchive.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

QByteArray bytesOf(const char *path)
{
    QFile file(QStringLiteral(CURVEGRAB_SOURCE "/") + QString::fromLatin1(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Every key of the tree, and every class of an object in it.
void collectNames(const ArchiveDictionary &dictionary, std::vector<std::string> &names);

void collectNames(const ArchiveValue &value, std::vector<std::string> &names)
{
    if (const auto *dictionary = std::get_if<ArchiveDictionary>(&value.value)) {
        collectNames(*dictionary, names);
    } else if (const auto *array = std::get_if<ArchiveArray>(&value.value)) {
        for (const ArchiveValue &entry : *array)
            collectNames(entry, names);
    } else if (const auto *object = std::get_if<std::shared_ptr<const Archivable>>(&value.value)) {
        names.emplace_back((*object)->className());
    }
}

void collectNames(const ArchiveDictionary &dictionary, std::vector<std::string> &names)
{
    for (const auto &[key, value] : dictionary.entries()) {
        names.push_back(key);
        collectNames(value, names);
    }
}

} // namespace

TEST(FileFormat, describesEveryKeyAndEveryClassOfADocument)
{
    const auto reading =
        documentarchive::unarchived(bytesOf("examples/damped-oscillation.crvgrab"));
    ASSERT_TRUE(reading.isWhole());
    std::vector<std::string> names;
    collectNames(reading.root, names);
    EXPECT_GT(names.size(), 40U);
    const QByteArray description = bytesOf("docs/file-format.md");
    for (const std::string &name : names) {
        // The four anchors are described as a range.
        const bool isInnerAnchor = name == "Anchor Position 2" || name == "Anchor Position 3";
        EXPECT_TRUE(isInnerAnchor || description.contains(("`" + name + "`").c_str())) << name;
    }
}
