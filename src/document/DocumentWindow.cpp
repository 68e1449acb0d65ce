#include "document/DocumentWindow.h"

#include "document/ChosenButtonStyle.h"
#include "document/DocumentTypes.h"
#include "document/EmptyPictureHint.h"
#include "document/MyDocument.h"
#include "document/StatusLine.h"
#include "document/SymbolIcons.h"
#include "imageview/ReadingProgress.h"
#include "platform/Texts.h"
#include "ui_MyDocument.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QEvent>
#include <QGroupBox>
#include <QMenuBar>
#include <QMimeData>

#include <algorithm>
#include <functional>
#include <initializer_list>

namespace {
// Two series stand side by side in the drawer, as far as their numbers allow.
constexpr int columnWidth = 97;
// Less would leave hardly any picture.
constexpr int smallestHeight = 400;
} // namespace

DocumentWindow::DocumentWindow(MyDocument &document)
    : m_document(document)
    , m_ui(std::make_unique<Ui::MyDocument>())
{
    m_ui->setupUi(this);
    setObjectName(MyDocument::windowNibName());
    m_ui->actionSelectionTab->setTabs(m_ui->axisTabButton, m_ui->digitizingTabButton,
                                      m_ui->actionPages);
    m_ui->dataTableDrawer->setContent(m_ui->dataTableView);
    m_ui->rotDirRadio->setId(m_ui->counterClockwiseRadio, 0);
    m_ui->rotDirRadio->setId(m_ui->clockwiseRadio, 1);
    m_ui->dataTableView->setWidthOfEmptyColumns(columnWidth);
    m_status = new StatusLine(this);
    m_ui->statusBar->addWidget(m_status, 1);
    m_emptyHint = new EmptyPictureHint(m_ui->pictureScrollArea);
    connect(m_emptyHint, &EmptyPictureHint::openRequested, &m_document, &MyDocument::openDocument);
    setAcceptDrops(true);
    applyIcons();
    tintChosenButtons();
    keepDrawerAtTheRight();
    keepRoomForPolarTexts();
    keepPlacesOfBoxes();
    keepSizeWithoutPicture();
    setMinimumSize(minimumSizeHint().expandedTo({0, smallestHeight})); // the drawer adds its own
}

void DocumentWindow::tintChosenButtons()
{
    auto *style = new ChosenButtonStyle;
    style->setParent(this);
    for (QToolButton *button : findChildren<QToolButton *>()) {
        if (button->isCheckable())
            button->setStyle(style);
    }
}

// Where people write from right to left the controls follow, but not the drawer, which widens the
// window at the right, and not the table: its numbers would be read backwards.
void DocumentWindow::keepDrawerAtTheRight()
{
    m_ui->mainColumn->setLayoutDirection(layoutDirection());
    m_ui->centralWidget->setLayoutDirection(Qt::LeftToRight);
}

// Polar axes give some controls other texts. Those of both kinds have room from the start, so that
// the window's smallest size holds for both.
void DocumentWindow::keepRoomForPolarTexts()
{
    const auto keepRoom = [](QWidget *control, const std::function<void(const char *)> &setText,
                             std::initializer_list<const char *> keys) {
        int width = 0;
        for (const char *key : keys) {
            setText(key);
            width = std::max(width, control->sizeHint().width());
        }
        control->setMinimumWidth(width);
    };
    QCheckBox *const sort = m_ui->sortCheck;
    keepRoom(sort, [sort](const char *key) { sort->setText(texts::localized(key)); },
             {"SortByT", "SortByX"});
    QComboBox *const automatic = m_ui->autoXModePopUp;
    automatic->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    keepRoom(automatic,
             [automatic](const char *key) { automatic->setItemText(1, texts::localized(key)); },
             {"EqualT", "EqualX"});
}

// The boxes of the X axis and of the angle take turns in one place. In a narrow window the boxes
// of the axes give up their width, down to what their fields need.
void DocumentWindow::keepPlacesOfBoxes()
{
    QGroupBox *const x = m_ui->xAxisBox;
    QGroupBox *const t = m_ui->tAxisBox;
    QGroupBox *const y = m_ui->yAxisBox;
    const auto shareWidth = [this](QGroupBox *box, int least, int most) {
        box->setMinimumWidth(least);
        box->setMaximumWidth(most);
        box->setSizePolicy(QSizePolicy::Ignored, box->sizePolicy().verticalPolicy());
        m_ui->axisPageLayout->setStretchFactor(box, 1);
    };
    const int least = std::max(x->minimumSizeHint().width(), t->minimumSizeHint().width());
    const int most = std::max(x->sizeHint().width(), t->sizeHint().width());
    shareWidth(x, least, most);
    shareWidth(t, least, most);
    shareWidth(y, y->minimumSizeHint().width(), std::max(most, y->sizeHint().width()));
    t->hide();
}

// The window's smallest size is the same with and without a picture, so that a picture that
// comes in finds the window as it will stay.
void DocumentWindow::keepSizeWithoutPicture()
{
    const QSize controls = m_ui->actionSelectionTab->minimumSizeHint();
    const QMargins margins = m_ui->mainColumn->layout()->contentsMargins();
    m_ui->mainColumn->setMinimumWidth(controls.width() + margins.left() + margins.right());
    m_ui->noImageTab->setMinimumHeight(controls.height());
}

DocumentWindow::~DocumentWindow() = default;

void DocumentWindow::showEmptyHint(bool shown)
{
    m_isEmpty = shown;
    m_emptyHint->setVisible(m_isEmpty && !m_showsProgress);
}

void DocumentWindow::keepHintClearOfProgress()
{
    for (const ReadingProgress *progress : findChildren<ReadingProgress *>()) {
        connect(progress, &ReadingProgress::visibilityChanged, this, [this](bool visible) {
            m_showsProgress = visible;
            showEmptyHint(m_isEmpty);
        });
    }
}

void DocumentWindow::offerExamples(QMenu &examples) { m_emptyHint->offer(examples); }

void DocumentWindow::showScale(const QString &text) { m_ui->zoomLabel->setText(text); }

void DocumentWindow::setBlocked(bool blocked)
{
    if (blocked)
        m_focusBeforeBlocking = focusWidget();
    setUpdatesEnabled(!blocked); // most of it is over before anybody could see it
    centralWidget()->setEnabled(!blocked);
    menuBar()->setEnabled(!blocked);
    if (!blocked && m_focusBeforeBlocking != nullptr)
        m_focusBeforeBlocking->setFocus();
}

void DocumentWindow::showBlocked() { setUpdatesEnabled(true); }

void DocumentWindow::applyIcons()
{
    const auto set = [this](QToolButton *button, const char *name) {
        button->setIcon(symbolicons::icon(QString::fromLatin1(name), palette()));
    };
    set(m_ui->pointerToolButton, "tool-pointer");
    set(m_ui->handToolButton, "tool-hand");
    set(m_ui->zoomInToolButton, "tool-zoom-in");
    set(m_ui->zoomOutToolButton, "tool-zoom-out");
    set(m_ui->trimToolButton, "tool-trim");
    set(m_ui->rotateCCWButton, "turn-left");
    set(m_ui->rotateCWButton, "turn-right");
    set(m_ui->fitWidthButton, "fit-width");
    set(m_ui->fitHeightButton, "fit-height");
    set(m_ui->drawerOpenButton, "table");
    set(m_ui->axisTabButton, "axes");
    set(m_ui->digitizingTabButton, "digitize");
}

bool DocumentWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate)
        m_document.windowDidBecomeKey();
    else if (event->type() == QEvent::WindowDeactivate)
        m_document.windowDidResignKey();
    return QMainWindow::event(event);
}

void DocumentWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        applyIcons();
    QMainWindow::changeEvent(event);
}

// Documents that are dropped anywhere on the window are opened; what else is dropped is the
// picture area's to take.
void DocumentWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (documenttypes::documentPaths(*event->mimeData()).isEmpty())
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void DocumentWindow::dropEvent(QDropEvent *event)
{
    const QStringList paths = documenttypes::documentPaths(*event->mimeData());
    if (paths.isEmpty())
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // After the drop has ended: opening may bring up a question.
    QMetaObject::invokeMethod(
        &m_document, [&document = m_document, paths] { document.openFiles(paths); },
        Qt::QueuedConnection);
}

void DocumentWindow::closeEvent(QCloseEvent *event)
{
    if (!m_document.windowShouldClose()) {
        event->ignore();
        return;
    }
    event->accept();
    m_document.windowWillClose();
}
