#include "imageview/ChoosePageController.h"

#include "imageview/PageSource.h"
#include "platform/NumberText.h"
#include "platform/Texts.h"
#include "ui_ChoosePagePanel.h"

#include <QKeyEvent>

#include <algorithm>
#include <chrono>
#include <string>
#include <utility>

namespace {

constexpr std::chrono::milliseconds timeBeforeRenderingIsTold{500};

QString numberText(int number) { return QString::fromStdString(std::to_string(number)); }

/// The size that the user has given to the panel, for the next one.
QSize &rememberedSize()
{
    static QSize size;
    return size;
}

} // namespace

ChoosePageController::ChoosePageController()
    : m_ui(std::make_unique<Ui::ChoosePagePanel>())
{
    m_slowPreview.setSingleShot(true);
    connect(&m_slowPreview, &QTimer::timeout, this, [this] {
        if (m_panel != nullptr)
            m_ui->pageView->showRendering();
    });
}

ChoosePageController::~ChoosePageController() = default;

void ChoosePageController::makePanel(QWidget *window)
{
    m_panel = new QDialog(window);
    m_ui->setupUi(m_panel);
    m_panel->setWindowModality(Qt::ApplicationModal);
    connectPanel();
}

void ChoosePageController::connectPanel()
{
    connect(m_ui->pageView, &ChoosePdfView::pagesScrolled, this,
            &ChoosePageController::pageScrollBy);
    connect(m_ui->pageView, &ChoosePdfView::pageChosen, this, &ChoosePageController::choosePage);
    connect(m_ui->openButton, &QPushButton::clicked, this, &ChoosePageController::choosePage);
    connect(m_ui->cancelButton, &QPushButton::clicked, this, &ChoosePageController::cancelOpeing);
    connect(m_ui->gotoButton, &QPushButton::clicked, this, &ChoosePageController::gotoPage);
    connect(m_ui->nextButton, &QToolButton::clicked, this, &ChoosePageController::nextPage);
    connect(m_ui->prevButton, &QToolButton::clicked, this, &ChoosePageController::prevPage);
    connect(m_ui->pageSlider, &PageSlider::moved, this, &ChoosePageController::sliderChanged);
    connect(m_panel, &QDialog::finished, this, &ChoosePageController::ended);
    for (QWidget *control : m_panel->findChildren<QWidget *>())
        control->installEventFilter(this);
}

void ChoosePageController::chooseAPageOf(PageSource &document, float withScale, QWidget *onWindow,
                                         Handler finished)
{
    if (m_panel == nullptr)
        makePanel(onWindow);
    m_myDocument = &document;
    m_scale = withScale;
    keepWidthOfPageNumbers();
    m_finished = std::move(finished);
    m_panel->setWindowTitle(texts::localized("imageview.choose-page.title")
                                .replace(QStringLiteral("%1"), document.name()));
    m_ui->pageSlider->setNumberOfPages(document.numberOfPages());
    m_ui->pageView->clear();
    m_currentPage = 0;
    setPageImage(1);
    if (rememberedSize().isValid())
        m_panel->resize(rememberedSize());
    m_ui->pageView->setFocus();
    m_panel->show();
}

bool ChoosePageController::isChoosing() const { return m_panel != nullptr && m_panel->isVisible(); }

void ChoosePageController::setPageImage(int page)
{
    if (page < 1 || page == m_currentPage || page > m_myDocument->numberOfPages())
        return;
    m_currentPage = page;
    m_myDocument->preview(page, m_panel->devicePixelRatioF(),
                          [this, page](const QImage &preview) { showPreview(page, preview); });
    m_slowPreview.start(timeBeforeRenderingIsTold);
    m_ui->pageField->setText(numberText(page));
    m_ui->pageSlider->setPage(page);
    m_ui->currentPageText->setText(pageOfTotal(page));
    m_ui->prevButton->setEnabled(page > 1);
    m_ui->nextButton->setEnabled(page < m_myDocument->numberOfPages());
}

// The buttons beside them stay in their places while pages are turned.
void ChoosePageController::keepWidthOfPageNumbers()
{
    m_ui->currentPageText->setText(pageOfTotal(m_myDocument->numberOfPages()));
    m_ui->currentPageText->setMinimumWidth(m_ui->currentPageText->sizeHint().width());
}

QString ChoosePageController::pageOfTotal(int page) const
{
    return texts::localized("PageOfTotal")
        .arg(numberText(page), numberText(m_myDocument->numberOfPages()));
}

// The picture of a page that was left meanwhile is not worth a flicker.
void ChoosePageController::showPreview(int page, const QImage &preview)
{
    if (page != m_currentPage || m_panel == nullptr)
        return;
    m_slowPreview.stop();
    m_ui->pageView->showPage(preview);
}

void ChoosePageController::pageScrollBy(int step)
{
    const int last = m_myDocument->numberOfPages();
    const long long target = static_cast<long long>(m_currentPage) + step;
    setPageImage(static_cast<int>(std::min<long long>(std::max<long long>(target, 1), last)));
}

void ChoosePageController::choosePage() { m_panel->done(QDialog::Accepted); }

void ChoosePageController::cancelOpeing() { m_panel->done(QDialog::Rejected); }

void ChoosePageController::gotoPage()
{
    setPageImage(numbertext::integerValue(m_ui->pageField->text()));
    m_ui->pageField->setText(numberText(m_currentPage));
    m_ui->pageField->selectAll();
}

void ChoosePageController::nextPage() { setPageImage(m_currentPage + 1); }

void ChoosePageController::prevPage() { setPageImage(m_currentPage - 1); }

void ChoosePageController::sliderChanged() { setPageImage(-m_ui->pageSlider->integerValue()); }

void ChoosePageController::ended(int result)
{
    m_slowPreview.stop();
    rememberedSize() = m_panel->size();
    const Handler finished = std::exchange(m_finished, {});
    if (result == QDialog::Accepted)
        m_myDocument->getImageOfPage(m_currentPage, m_scale, finished);
    else
        finished({{}, PictureProblem::Cancelled, {}});
}

bool ChoosePageController::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && isChoosing()) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isPlain = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        if (isPlain && turnPageByKey(key->key(), watched == m_ui->pageField))
            return true;
    }
    return QObject::eventFilter(watched, event);
}

// Inside the field, the keys that move in its text are the field's own.
bool ChoosePageController::turnPageByKey(int key, bool inField)
{
    const int last = m_myDocument->numberOfPages();
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (inField)
            gotoPage();
        return inField;
    case Qt::Key_PageUp:
    case Qt::Key_Up:
        prevPage();
        return true;
    case Qt::Key_PageDown:
    case Qt::Key_Down:
        nextPage();
        return true;
    case Qt::Key_Left:
        if (!inField)
            prevPage();
        return !inField;
    case Qt::Key_Right:
        if (!inField)
            nextPage();
        return !inField;
    case Qt::Key_Home:
        if (!inField)
            setPageImage(1);
        return !inField;
    case Qt::Key_End:
        if (!inField)
            setPageImage(last);
        return !inField;
    default:
        return false;
    }
}
