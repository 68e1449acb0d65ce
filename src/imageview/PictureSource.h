#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <variant>

class QIODevice;

/// Where the bytes of a picture come from: a file, or another program that handed them over.
class PictureSource
{
public:
    /// The file at `path`; wherever a source is asked for, a path will do.
    PictureSource(const QString &path);
    /// What came through a pasteboard as `mimeType`.
    [[nodiscard]] static PictureSource handedOver(const QByteArray &bytes, const QString &mimeType);

    [[nodiscard]] bool isFile() const;
    /// The path of a file; else empty.
    [[nodiscard]] QString path() const;
    /// What the user knows it by.
    [[nodiscard]] QString name() const;
    /// The extension that its kind of picture has, lower case, without the point.
    [[nodiscard]] QString suffix() const;
    /// The bytes, not opened yet.
    [[nodiscard]] std::unique_ptr<QIODevice> device() const;

private:
    struct HandedOver
    {
        QByteArray bytes;
        QString mimeType;
    };

    explicit PictureSource(HandedOver handedOver);

    std::variant<QString, HandedOver> m_origin;
};
