#pragma once

#include <QIODevice>

#include <atomic>
#include <memory>
#include <stop_token>

class PictureSource;

/// The bytes of a picture while they are read: reading can be cut off from another thread, tells
/// how far it has come, and notices readers that ask for more than there is.
class PictureFile : public QIODevice
{
public:
    PictureFile(const PictureSource &source, std::stop_token stop, std::atomic<int> *percentRead);

    bool open(OpenMode mode) override;
    void close() override;
    [[nodiscard]] bool isSequential() const override { return false; }
    [[nodiscard]] qint64 size() const override { return m_source->size(); }
    bool seek(qint64 position) override;

    /// Forgets what was noticed up to now.
    void beginNoticing();
    /// The reader asked for bytes beyond the end and got none.
    [[nodiscard]] bool ranOut() const { return m_ranOut; }
    /// The reader got fewer bytes than it asked for.
    [[nodiscard]] bool fellShort() const { return m_fellShort; }

protected:
    qint64 readData(char *data, qint64 maximum) override;
    qint64 writeData(const char *data, qint64 length) override;

private:
    std::unique_ptr<QIODevice> m_source;
    std::stop_token m_stop;
    std::atomic<int> *m_percentRead;
    bool m_ranOut = false;
    bool m_fellShort = false;
};
