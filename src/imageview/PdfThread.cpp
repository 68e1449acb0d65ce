#include "imageview/PdfThread.h"

#include "imageview/PictureMemory.h"
#include "imageview/ZKPdfDocument.h"
#include "platform/WindingUp.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>

/// What the two threads share.
struct PdfThread::Desk
{
    std::mutex mutex;
    std::condition_variable wake;
    PdfThread *asking = nullptr; ///< null when nobody waits for answers any more
    std::deque<Work> work;
    Work preview;
    windingup::Worker worker; ///< used by the asking thread only

    [[nodiscard]] bool hasWork() const { return !work.empty() || preview; }
    [[nodiscard]] Work takeNext()
    {
        if (work.empty())
            return std::exchange(preview, {});
        Work next = std::move(work.front());
        work.pop_front();
        return next;
    }
};

PdfThread::PdfThread(const QString &path)
    : m_path(path)
    , m_desk(std::make_shared<Desk>())
{
    m_desk->asking = this;
    m_desk->worker = windingup::begin([desk = m_desk] { run(desk); });
}

PdfThread::~PdfThread()
{
    {
        const std::lock_guard lock(m_desk->mutex);
        m_desk->asking = nullptr;
        m_desk->work.clear();
        m_desk->preview = {};
    }
    m_desk->wake.notify_one();
    windingup::leave(std::move(m_desk->worker));
}

void PdfThread::run(const std::shared_ptr<Desk> &desk)
{
    std::unique_ptr<ZKPdfDocument> document;
    std::unique_lock lock(desk->mutex);
    while (true) {
        desk->wake.wait(lock, [&desk] { return desk->asking == nullptr || desk->hasWork(); });
        if (desk->asking == nullptr)
            return;
        const Work work = desk->takeNext();
        lock.unlock();
        Report report = work(document);
        lock.lock();
        if (desk->asking != nullptr)
            QMetaObject::invokeMethod(desk->asking, std::move(report), Qt::QueuedConnection);
    }
}

void PdfThread::add(Work work)
{
    {
        const std::lock_guard lock(m_desk->mutex);
        m_desk->work.push_back(std::move(work));
    }
    m_desk->wake.notify_one();
}

void PdfThread::open(const QString &password, std::function<void(const PdfOpening &)> opened)
{
    add([path = m_path, password, opened = std::move(opened)](auto &document) -> Report {
        document = ZKPdfDocument::zkPdfDocumentWithFile(path, password);
        const PdfOpening opening{document->problem(), document->numberOfPages()};
        return [opening, opened] { opened(opening); };
    });
}

void PdfThread::readPage(int page, float scale, std::function<void(const PictureReading &)> read)
{
    add([page, scale, read = std::move(read)](auto &document) -> Report {
        const PictureReading reading = document->readPage(page, scale, picturememory::available());
        return [reading, read] { read(reading); };
    });
}

void PdfThread::preview(int page, double pixelsPerPoint,
                        std::function<void(const QImage &)> painted)
{
    {
        const std::lock_guard lock(m_desk->mutex);
        m_desk->preview = [page, pixelsPerPoint,
                           painted = std::move(painted)](auto &document) -> Report {
            const QImage image = document->previewOfPage(page, pixelsPerPoint);
            return [image, painted] { painted(image); };
        };
    }
    m_desk->wake.notify_one();
}
