#pragma once

#include <QByteArray>
#include <QFile>

#include <gtest/gtest.h>

/// The files that a test puts somewhere and looks into.
namespace filecontent {

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void putContent(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

} // namespace filecontent
