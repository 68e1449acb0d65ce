#pragma once

#include <QString>

/// A file that one program at a time can hold. The system lets go of it when the program ends,
/// however that comes about; nothing is written, so that no start waits for the disk.
class HeldFile
{
public:
    /// Makes the file at `path` if there is none; it stays, empty.
    explicit HeldFile(const QString &path);
    HeldFile(const HeldFile &) = delete;
    HeldFile &operator=(const HeldFile &) = delete;
    ~HeldFile();

    /// Whether there is a file to hold.
    [[nodiscard]] bool isThere() const { return m_descriptor != none; }
    /// Takes hold of it until the end of this object; false if somebody else has it, or if there
    /// can be no such file.
    [[nodiscard]] bool hold();
    /// The same, once whoever has it has let go; false only if there can be no such file.
    bool waitAndHold();

private:
    static constexpr int none = -1;

    int m_descriptor;
};
