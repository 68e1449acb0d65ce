#include "helpbook/HelpWindow.h"

#include "helpbook/HelpBrowser.h"
#include "helpbook/HelpFindBar.h"
#include "platform/StateFile.h"
#include "platform/Texts.h"
#include "platform/WindowPlacement.h"

#include <QAction>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace {

const QString placementKey = QStringLiteral("Help Window");
const QString zoomKey = QStringLiteral("Help Text Zoom");

constexpr QSize firstSize(980, 760);
constexpr int contentsWidth = 220;
constexpr int mostZoom = 12;
constexpr int leastZoom = -4;

QList<QKeySequence> keys(std::initializer_list<const char *> texts)
{
    QList<QKeySequence> sequences;
    for (const char *const text : texts)
        sequences += QKeySequence(QString::fromLatin1(text));
    return sequences;
}

} // namespace

HelpWindow::HelpWindow(const QString &title, HelpBook book, StateFile &state)
    : m_book(std::move(book))
    , m_state(state)
    , m_contents(new QListWidget)
    , m_page(new HelpBrowser(m_book))
{
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(title);
    // The program ends with its last document, whether the help is open or not.
    setAttribute(Qt::WA_QuitOnClose, false);
    makeContents();
    auto *right = new QWidget;
    m_findBar = new HelpFindBar(*m_page, right);
    auto *column = new QVBoxLayout(right);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_page);
    column->addWidget(m_findBar);
    auto *splitter = new QSplitter;
    splitter->addWidget(m_contents);
    splitter->addWidget(right);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({contentsWidth, firstSize.width() - contentsWidth});
    setCentralWidget(splitter);
    m_page->setObjectName(QStringLiteral("helpPage"));
    m_page->setAccessibleName(texts::localized("help.page"));
    connect(m_page, &QTextBrowser::sourceChanged, this, &HelpWindow::pageChanged);
    makeToolBar();
    restorePlacement();
}

HelpWindow::~HelpWindow() = default;

void HelpWindow::showAnchor(const QString &anchor)
{
    m_page->setSource(m_book.urlOfAnchor(anchor).value_or(m_book.firstUrl()));
    // A panel that keeps all other windows waiting may be what help is wanted for.
    winId();
    windowHandle()->setTransientParent(QGuiApplication::modalWindow());
    show();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    m_page->setFocus(Qt::OtherFocusReason);
}

void HelpWindow::makeContents()
{
    m_contents->setObjectName(QStringLiteral("helpContents"));
    m_contents->setSpacing(2);
    m_contents->setAccessibleName(texts::localized("help.contents"));
    for (const HelpBook::Page &page : m_book.pages())
        m_contents->addItem(page.title);
    const auto open = [this](int row) {
        if (row >= 0 && m_book.indexOf(m_page->source()) != row)
            m_page->setSource(m_book.url(m_book.pages()[static_cast<std::size_t>(row)].file));
    };
    connect(m_contents, &QListWidget::currentRowChanged, this, open);
}

QAction *HelpWindow::addButton(QToolBar *bar, const char *name, const char *text, const char *tip,
                               const QList<QKeySequence> &keys)
{
    QAction *action = bar->addAction(texts::localized(text));
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcuts(keys);
    const QString shown =
        keys.isEmpty() ? QString() : keys.first().toString(QKeySequence::NativeText);
    action->setToolTip(texts::localized(tip).arg(shown));
    return action;
}

void HelpWindow::makeToolBar()
{
    QToolBar *bar = addToolBar(texts::localized("help.toolbar"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QAction *back = addButton(bar, "helpBack", "help.back", "help.back.tip", keys({"Alt+Left"}));
    back->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    QAction *forward =
        addButton(bar, "helpForward", "help.forward", "help.forward.tip", keys({"Alt+Right"}));
    forward->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
    bar->addSeparator();
    QAction *find = addButton(bar, "helpFind", "help.find", "help.find.tip", keys({"Ctrl+F"}));
    bar->addSeparator();
    QAction *smaller =
        addButton(bar, "helpSmaller", "help.smaller", "help.smaller.tip", keys({"Ctrl+-"}));
    QAction *normal =
        addButton(bar, "helpNormal", "help.normal", "help.normal.tip", keys({"Ctrl+0"}));
    QAction *larger =
        addButton(bar, "helpLarger", "help.larger", "help.larger.tip", keys({"Ctrl++", "Ctrl+="}));
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(m_page, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_page, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(back, &QAction::triggered, m_page, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, m_page, &QTextBrowser::forward);
    connect(find, &QAction::triggered, m_findBar, &HelpFindBar::open);
    connect(smaller, &QAction::triggered, this, [this] { setZoom(m_zoom - 1); });
    connect(normal, &QAction::triggered, this, [this] { setZoom(0); });
    connect(larger, &QAction::triggered, this, [this] { setZoom(m_zoom + 1); });

    const auto addHidden = [this](const char *name, const QList<QKeySequence> &shortcuts) {
        auto *action = new QAction(this);
        action->setObjectName(QString::fromLatin1(name));
        action->setShortcuts(shortcuts);
        addAction(action);
        return action;
    };
    connect(addHidden("helpFindAgain", keys({"F3", "Ctrl+G"})), &QAction::triggered, m_findBar,
            &HelpFindBar::findNext);
    connect(addHidden("helpFindBackwards", keys({"Shift+F3", "Ctrl+Shift+G"})), &QAction::triggered,
            m_findBar, &HelpFindBar::findPrevious);
    connect(addHidden("helpClose", keys({"Ctrl+W"})), &QAction::triggered, this, &QWidget::close);
}

void HelpWindow::pageChanged(const QUrl &url)
{
    // The contents follow; they do not open the page once more.
    const QSignalBlocker blocker(m_contents);
    if (const std::optional<int> row = m_book.indexOf(url))
        m_contents->setCurrentRow(*row);
    m_findBar->refresh();
}

void HelpWindow::setZoom(int steps)
{
    const int wanted = std::max(leastZoom, std::min(mostZoom, steps));
    m_page->zoomIn(wanted - m_zoom);
    m_zoom = wanted;
}

void HelpWindow::restorePlacement()
{
    resize(firstSize);
    windowplacement::restore(*this, m_state, placementKey);
    setZoom(m_state.value(zoomKey).toInt());
}

void HelpWindow::rememberPlacement()
{
    windowplacement::remember(*this, m_state, placementKey);
    m_state.remember(m_zoom, zoomKey);
}

void HelpWindow::closeEvent(QCloseEvent *event)
{
    rememberPlacement();
    QMainWindow::closeEvent(event);
}

void HelpWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape)
        QMainWindow::keyPressEvent(event);
    else if (m_findBar->isVisible())
        m_findBar->dismiss();
    else
        close();
}
