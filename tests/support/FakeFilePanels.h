#pragma once

#include "platform/FilePanels.h"

#include <functional>
#include <utility>

/// File panels that a test reads and answers; one panel is up at a time.
class FakeFilePanels final : public FilePanels
{
public:
    void chooseFileToSave(const FileToSave &file, FileChosen chosen) override
    {
        m_file = file;
        m_message = file.message;
        m_proposedName = file.proposedName + file.kinds[file.kind].suffix;
        m_chosen = [file, chosen = std::move(chosen)](const QString &path) {
            std::size_t kind = file.kind;
            for (std::size_t i = 0; i < file.kinds.size(); ++i)
                if (path.endsWith(file.kinds[i].suffix))
                    kind = i;
            chosen(path, kind);
        };
        ++m_saveCount;
    }

    void choosePictureToOpen(const QStringList &suffixes,
                             std::function<void(const QString &path)> chosen) override
    {
        m_suffixes = suffixes;
        m_chosen = std::move(chosen);
        ++m_openCount;
    }

    void chooseDocumentToSave(const QString &proposed,
                              std::function<void(const QString &path)> chosen) override
    {
        m_proposedName = proposed;
        m_chosen = std::move(chosen);
        ++m_saveCount;
    }

    void chooseFilesToOpen(const QStringList &suffixes,
                           std::function<void(const QStringList &paths)> chosen) override
    {
        m_suffixes = suffixes;
        m_chosen = [chosen = std::move(chosen)](const QString &path) { chosen({path}); };
        ++m_openCount;
    }

    [[nodiscard]] bool isAsking() const { return m_chosen != nullptr; }
    [[nodiscard]] const QString &message() const { return m_message; }
    /// What chooseFileToSave() asked for last.
    [[nodiscard]] const FileToSave &file() const { return m_file; }
    [[nodiscard]] const QString &proposedName() const { return m_proposedName; }
    [[nodiscard]] const QStringList &suffixes() const { return m_suffixes; }
    [[nodiscard]] int saveCount() const { return m_saveCount; }
    [[nodiscard]] int openCount() const { return m_openCount; }

    /// Confirms the panel with `path`; false if none is up.
    bool confirm(const QString &path)
    {
        const auto chosen = std::exchange(m_chosen, nullptr);
        if (!chosen)
            return false;
        chosen(path);
        return true;
    }

    /// Closes the panel without a file.
    void cancel() { m_chosen = nullptr; }

private:
    std::function<void(const QString &path)> m_chosen;
    FileToSave m_file;
    QString m_message;
    QString m_proposedName;
    QStringList m_suffixes;
    int m_saveCount = 0;
    int m_openCount = 0;
};
