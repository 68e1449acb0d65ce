#pragma once

#include <QByteArray>

// PNG files made by hand.

inline QByteArray bigEndian(quint32 value)
{
    QByteArray bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.append(static_cast<char>((value >> shift) & 0xffU));
    return bytes;
}

inline quint32 pngChecksum(const QByteArray &bytes)
{
    quint32 sum = 0xffffffffU;
    for (const char byte : bytes) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & 1U) != 0 ? (sum >> 1U) ^ 0xedb88320U : sum >> 1U;
    }
    return ~sum;
}

/// The beginning of a PNG file that claims a size.
inline QByteArray pngHeader(quint32 width, quint32 height)
{
    const QByteArray header =
        QByteArray("IHDR") + bigEndian(width) + bigEndian(height) + QByteArray("\x08\x06\0\0\0", 5);
    const QByteArray data = QByteArray("IDAT") + QByteArray(64, 'x');
    return QByteArray("\x89PNG\r\n\x1a\n") + bigEndian(13) + header +
           bigEndian(pngChecksum(header)) + bigEndian(64) + data + bigEndian(pngChecksum(data));
}
