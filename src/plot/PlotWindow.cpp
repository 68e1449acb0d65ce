#include "plot/PlotWindow.h"

#include "platform/DurableFile.h"
#include "platform/FilePanels.h"
#include "platform/HelpViewer.h"
#include "platform/Sheets.h"
#include "platform/Texts.h"
#include "plot/PlotChoices.h"
#include "plot/PlotContent.h"
#include "plot/PlotFigure.h"
#include "plot/PlotModule.h"
#include "plot/PlotView.h"

#include <QAction>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr QSize firstSize(640, 520);
constexpr QSize smallestView(320, 240);
constexpr char helpAnchor[] = "plot";

QString withoutSuffix(const QString &name)
{
    const auto point = name.lastIndexOf(QLatin1Char('.'));
    // A point in front hides a file; it begins no extension.
    return point > 0 ? name.left(point) : name;
}

QString noteOn(const PlotFigure &figure)
{
    if (figure.leftOutCount > 0)
        return texts::localizedFormat("plot.leftOut", figure.leftOutCount);
    return figure.pointCount == 0 ? texts::localized("plot.empty") : QString();
}

} // namespace

PlotWindow::PlotWindow(PlotModule &module, PlotChoices &choices)
    : m_module(module)
    , m_choices(choices)
    , m_note(new QLabel(this))
    , m_saveButton(new QPushButton(texts::localized("plot.save"), this))
{
    setObjectName(QStringLiteral("plotWindow"));
    // The program ends with its last document.
    setAttribute(Qt::WA_QuitOnClose, false);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    makeView();
    makeBar();
    addCommand("closePlot", {QKeySequence(Qt::CTRL | Qt::Key_W), QKeySequence(Qt::Key_Escape)},
               [this] { close(); });
}

QSize PlotWindow::sizeHint() const { return firstSize; }

void PlotWindow::setVisible(bool visible)
{
    if (visible && !std::exchange(m_isPlaced, true))
        m_choices.placeWindow(*this);
    QWidget::setVisible(visible);
}

void PlotWindow::hideEvent(QHideEvent *event)
{
    m_choices.rememberPlaceOf(*this);
    QWidget::hideEvent(event);
}

void PlotWindow::setDialogs(Sheets &sheets, FilePanels &panels)
{
    m_sheets = &sheets;
    m_panels = &panels;
}

void PlotWindow::setHelpViewer(HelpViewer &help)
{
    addCommand("showPlotHelp", {QKeySequence(QKeySequence::HelpContents)}, [&help] {
        help.openHelpAnchor(QString::fromLatin1(helpAnchor),
                            QString::fromLatin1(helpbook::bookName));
    });
}

void PlotWindow::addCommand(const char *name, const QList<QKeySequence> &keys,
                            const std::function<void()> &command)
{
    auto *action = new QAction(this);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, command);
    addAction(action);
}

void PlotWindow::makeView()
{
    auto *column = static_cast<QVBoxLayout *>(layout());
    if (PlotViewMaker *maker = m_module.maker()) {
        m_view = maker->makeView(this);
        m_view->setObjectName(QStringLiteral("plotView"));
        m_view->setAccessibleName(texts::localized("plot.view.name"));
        m_view->setMinimumSize(smallestView);
        column->addWidget(m_view, 1);
        return;
    }
    auto *missing = new QLabel(texts::localized("plot.missing").arg(m_module.folder()), this);
    missing->setObjectName(QStringLiteral("plotMissing"));
    missing->setWordWrap(true);
    missing->setAlignment(Qt::AlignCenter);
    missing->setMargin(firstSize.width() / 20);
    missing->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    column->addWidget(missing, 1);
}

void PlotWindow::makeBar()
{
    m_note->setObjectName(QStringLiteral("plotNote"));
    m_note->setWordWrap(true);
    m_saveButton->setObjectName(QStringLiteral("savePlotButton"));
    m_saveButton->setToolTip(texts::localized("plot.save.tip"));
    m_saveButton->setShortcut(QKeySequence::Save);
    m_saveButton->setEnabled(m_view != nullptr);
    connect(m_saveButton, &QPushButton::clicked, this, &PlotWindow::save);
    auto *bar = new QHBoxLayout;
    bar->setContentsMargins(9, 6, 9, 6);
    bar->addWidget(m_note, 1);
    bar->addWidget(m_saveButton);
    static_cast<QVBoxLayout *>(layout())->addLayout(bar);
}

void PlotWindow::showContent(const PlotContent &content)
{
    m_title = content.title;
    setWindowTitle(texts::localized("plot.window.title").arg(m_title));
    if (m_view == nullptr)
        return;
    const PlotFigure figure = plotfigure::of(content);
    m_note->setText(noteOn(figure));
    QStringList names;
    for (const PlotFigureSeries &series : figure.series)
        names += series.name;
    m_view->setAccessibleDescription(names.join(QStringLiteral(", ")));
    m_view->showFigure(figure);
}

void PlotWindow::save()
{
    FileToSave file;
    file.message = texts::localized("plot.save.message");
    file.proposedName = withoutSuffix(m_title);
    file.folder = m_choices.folder();
    for (std::size_t i = 0; i < plotpicture::formats.size(); ++i) {
        const plotpicture::Format format = plotpicture::formats[i];
        file.kinds.push_back({plotpicture::nameOf(format), plotpicture::suffixOf(format)});
        if (format == m_choices.format())
            file.kind = i;
    }
    m_panels->chooseFileToSave(
        file, [this](const QString &path, std::size_t kind) { write(path, kind); });
}

void PlotWindow::write(const QString &path, std::size_t format)
{
    const QByteArray bytes =
        plotpicture::bytesOf(*m_view, plotpicture::formats[format], withoutSuffix(m_title));
    const std::optional<QString> problem =
        bytes.isEmpty() ? texts::localized("plot.noMemory") : durablefile::write(path, bytes);
    if (!problem) {
        m_choices.remember(plotpicture::formats[format], QFileInfo(path).absolutePath());
        return;
    }
    m_sheets->present({texts::localized("plot.failed").arg(QFileInfo(path).fileName()),
                       *problem,
                       texts::localized("OK"),
                       {}},
                      {});
}
