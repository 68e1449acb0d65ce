#pragma once

#include "imageview/PageSource.h"
#include "imageview/PictureReader.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

class ChoosePageController;
class PasswordSheets;
class PdfThread;
struct PdfOpening;
class QWidget;
class ReadingProgress;

/// Opens a page of a PDF file as a picture, without holding up the window: asks for the password
/// of a locked file and for the page of a file with several, and shows after half a second that
/// there is work going on.
class PdfOpener : public QObject, private PageSource
{
    Q_OBJECT

public:
    using Handler = std::function<void(const PictureReading &)>;

    /// The progress panel is shown over `progressHost`.
    explicit PdfOpener(QWidget &progressHost);
    ~PdfOpener() override;

    /// Begins with the file; `finished` is called later with its picture or problem. The pages are
    /// painted at `scale`. A file in progress is given up.
    void open(const QString &path, float scale, PasswordSheets &passwords, Handler finished);

    /// Gives up the file in progress; its handler is told so.
    void cancel();

    /// Whether a file is in progress.
    [[nodiscard]] bool isOpening() const { return m_file != nullptr; }

private:
    void openWith(const QString &password);
    void opened(const PdfOpening &opening);
    void askForPassword();
    void choosePage();
    void finish(const PictureReading &reading);
    void beginToWait();
    void endToWait();
    void showProgress();

    [[nodiscard]] QString name() const override;
    [[nodiscard]] int numberOfPages() const override { return m_numberOfPages; }
    void preview(int page, double pixelsPerPoint,
                 std::function<void(const QImage &)> painted) override;
    void getImageOfPage(int page, float withScale, Handler read) override;

    QWidget &m_progressHost;
    std::unique_ptr<ChoosePageController> m_choosePageController; ///< made for the first panel
    std::unique_ptr<PdfThread> m_file;
    QString m_path;
    float m_scale = 1;
    int m_numberOfPages = 0;
    bool m_passwordWasTried = false;
    PasswordSheets *m_passwords = nullptr;
    Handler m_finished;
    ReadingProgress *m_progress;
    QTimer m_progressTimer;
};
