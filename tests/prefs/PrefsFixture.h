#pragma once

#include "platform/UserDefaults.h"
#include "prefs/CurvegrabPrefs.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

/// A store over a settings file of its own.
class PrefsFixture : public testing::Test
{
protected:
    QString path() const { return m_folder.filePath(QStringLiteral("prefs.json")); }

    void writeFile(const QByteArray &content) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    QByteArray fileContent() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    UserDefaults m_userDefaults{path()};
    CurvegrabPrefs m_prefs{m_userDefaults};
};
