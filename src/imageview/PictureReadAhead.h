#pragma once

#include "imageview/PictureReader.h"

#include <QString>

#include <atomic>
#include <memory>
#include <stop_token>

/// Reads a picture file before there is a window for it: the window is made while the picture is
/// decoded. The reading is given up with the object, unless it was waited for.
class PictureReadAhead
{
public:
    /// Begins to read the file at `path` in a thread of its own. Not PDF files, whose page the user
    /// may have to choose: null for these.
    [[nodiscard]] static std::shared_ptr<PictureReadAhead> begin(const QString &path);

    PictureReadAhead(const PictureReadAhead &) = delete;
    PictureReadAhead &operator=(const PictureReadAhead &) = delete;
    ~PictureReadAhead();

    [[nodiscard]] QString path() const { return m_path; }

    /// Waits for the end of the reading, in any thread; it ends soon after `stop` is requested.
    /// `percentRead`, which may be null, follows the progress.
    [[nodiscard]] PictureReading result(const std::stop_token &stop = {},
                                        std::atomic<int> *percentRead = nullptr) const;

private:
    struct Job;

    explicit PictureReadAhead(const QString &path);

    QString m_path;
    std::shared_ptr<Job> m_job;
};
