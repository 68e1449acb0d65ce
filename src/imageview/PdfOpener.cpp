#include "imageview/PdfOpener.h"

#include "imageview/ChoosePageController.h"
#include "imageview/PdfThread.h"
#include "imageview/ReadingProgress.h"
#include "platform/PasswordSheets.h"
#include "platform/Texts.h"

#include <QFileInfo>
#include <QPointer>

#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::milliseconds timeBeforeProgress{500};

} // namespace

PdfOpener::PdfOpener(QWidget &progressHost)
    : m_progressHost(progressHost)
    , m_progress(new ReadingProgress(progressHost))
{
    m_progressTimer.setSingleShot(true);
    connect(m_progress, &ReadingProgress::cancelled, this, &PdfOpener::cancel);
    connect(&m_progressTimer, &QTimer::timeout, this, &PdfOpener::showProgress);
}

PdfOpener::~PdfOpener() = default;

void PdfOpener::open(const QString &path, float scale, PasswordSheets &passwords, Handler finished)
{
    cancel();
    m_path = path;
    m_scale = scale;
    m_passwords = &passwords;
    m_finished = std::move(finished);
    m_passwordWasTried = false;
    m_file = std::make_unique<PdfThread>(path);
    openWith(QString());
}

void PdfOpener::cancel()
{
    if (m_file == nullptr)
        return;
    if (m_choosePageController != nullptr && m_choosePageController->isChoosing())
        m_choosePageController->cancelOpeing(); // ends with finish()
    else
        finish({{}, PictureProblem::Cancelled, {}});
}

void PdfOpener::openWith(const QString &password)
{
    m_file->open(password, [this](const PdfOpening &opening) { opened(opening); });
    beginToWait();
}

void PdfOpener::opened(const PdfOpening &opening)
{
    endToWait();
    m_numberOfPages = opening.numberOfPages;
    if (opening.problem == PictureProblem::NeedsPassword)
        askForPassword();
    else if (opening.problem)
        finish({{}, opening.problem, {}});
    else if (opening.numberOfPages <= 1)
        getImageOfPage(1, m_scale, [this](const PictureReading &reading) { finish(reading); });
    else
        choosePage();
}

void PdfOpener::askForPassword()
{
    const char *const key =
        m_passwordWasTried ? "imageview.pdf.password-was-wrong" : "imageview.pdf.password-text";
    const PasswordSheet sheet{
        texts::localized("imageview.pdf.password-title").replace(QStringLiteral("%1"), name()),
        texts::localized(key)};
    m_passwordWasTried = true;
    m_passwords->askForPassword(sheet, [this, asked = QPointer<PdfThread>(m_file.get())](
                                           const std::optional<QString> &password) {
        if (asked == nullptr || asked != m_file.get())
            return; // the file was given up meanwhile
        if (password)
            openWith(*password);
        else
            cancel();
    });
}

void PdfOpener::choosePage()
{
    if (m_choosePageController == nullptr)
        m_choosePageController = std::make_unique<ChoosePageController>();
    m_choosePageController->chooseAPageOf(
        *this, m_scale, m_progressHost.window(),
        [this](const PictureReading &reading) { finish(reading); });
}

void PdfOpener::finish(const PictureReading &reading)
{
    endToWait();
    m_file.reset();
    const Handler finished = std::exchange(m_finished, {});
    finished(reading);
}

void PdfOpener::beginToWait() { m_progressTimer.start(timeBeforeProgress); }

void PdfOpener::endToWait()
{
    m_progressTimer.stop();
    m_progress->hide();
}

void PdfOpener::showProgress() { m_progress->showBusyFor(name()); }

QString PdfOpener::name() const { return QFileInfo(m_path).fileName(); }

void PdfOpener::preview(int page, double pixelsPerPoint,
                        std::function<void(const QImage &)> painted)
{
    m_file->preview(page, pixelsPerPoint, std::move(painted));
}

void PdfOpener::getImageOfPage(int page, float withScale, Handler read)
{
    m_file->readPage(page, withScale, std::move(read));
    beginToWait();
}
