#include "imageview/PictureFile.h"

#include "imageview/PictureSource.h"

#include <utility>

PictureFile::PictureFile(const PictureSource &source, std::stop_token stop,
                         std::atomic<int> *percentRead)
    : m_source(source.device())
    , m_stop(std::move(stop))
    , m_percentRead(percentRead)
{}

bool PictureFile::open(OpenMode mode)
{
    // Unbuffered here, so that every request of the reader is seen as it is.
    return m_source->open(mode) && QIODevice::open(mode | QIODevice::Unbuffered);
}

void PictureFile::close()
{
    QIODevice::close();
    m_source->close();
}

bool PictureFile::seek(qint64 position)
{
    return QIODevice::seek(position) && m_source->seek(position);
}

void PictureFile::beginNoticing()
{
    m_ranOut = false;
    m_fellShort = false;
}

qint64 PictureFile::readData(char *data, qint64 maximum)
{
    if (m_stop.stop_requested())
        return -1;
    const qint64 count = m_source->read(data, maximum);
    if (maximum > 0 && count <= 0)
        m_ranOut = true;
    if (count < maximum)
        m_fellShort = true;
    if (m_percentRead != nullptr && m_source->size() > 0)
        m_percentRead->store(static_cast<int>(100 * m_source->pos() / m_source->size()));
    return count;
}

qint64 PictureFile::writeData(const char * /*data*/, qint64 /*length*/) { return -1; }
