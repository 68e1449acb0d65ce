#pragma once

#include "imageview/PictureReader.h"

#include <QImage>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class ZKPdfDocument;

/// What came of opening a PDF file.
struct PdfOpening
{
    std::optional<PictureProblem> problem;
    int numberOfPages = 0;
};

/// Works on one PDF file in a thread of its own, in the order in which it is asked to. The
/// handlers are called in the thread of this object, and never after its end. A page that is being
/// painted cannot be interrupted: at the end of this object it is left to wind up by itself.
class PdfThread : public QObject
{
    Q_OBJECT

public:
    explicit PdfThread(const QString &path);
    ~PdfThread() override;

    void open(const QString &password, std::function<void(const PdfOpening &)> opened);

    /// Paints a page of the opened file as a picture.
    void readPage(int page, float scale, std::function<void(const PictureReading &)> read);

    /// Paints a page as a preview. Only the newest one asked for counts: one that has not been
    /// begun when another is asked for is dropped, and its handler with it.
    void preview(int page, double pixelsPerPoint, std::function<void(const QImage &)> painted);

private:
    struct Desk;
    /// Called in this object's thread with what the work has brought.
    using Report = std::function<void()>;
    using Work = std::function<Report(std::unique_ptr<ZKPdfDocument> &)>;

    static void run(const std::shared_ptr<Desk> &desk);
    void add(Work work);

    QString m_path;
    std::shared_ptr<Desk> m_desk;
};
