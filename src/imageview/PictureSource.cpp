#include "imageview/PictureSource.h"

#include "platform/Texts.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>

#include <utility>

PictureSource::PictureSource(const QString &path)
    : m_origin(path)
{}

PictureSource::PictureSource(HandedOver handedOver)
    : m_origin(std::move(handedOver))
{}

PictureSource PictureSource::handedOver(const QByteArray &bytes, const QString &mimeType)
{
    return PictureSource(HandedOver{bytes, mimeType});
}

bool PictureSource::isFile() const { return std::holds_alternative<QString>(m_origin); }

QString PictureSource::path() const { return isFile() ? std::get<QString>(m_origin) : QString(); }

QString PictureSource::name() const
{
    return isFile() ? QFileInfo(path()).fileName() : texts::localized("imageview.pasted.name");
}

QString PictureSource::suffix() const
{
    if (isFile())
        return QFileInfo(path()).suffix().toLower();
    const QString &mimeType = std::get<HandedOver>(m_origin).mimeType;
    return QMimeDatabase().mimeTypeForName(mimeType.toLower()).preferredSuffix();
}

std::unique_ptr<QIODevice> PictureSource::device() const
{
    if (isFile())
        return std::make_unique<QFile>(path());
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(std::get<HandedOver>(m_origin).bytes);
    return buffer;
}
