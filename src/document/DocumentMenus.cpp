#include "document/DocumentMenus.h"

#include "document/ExamplesMenu.h"
#include "document/ExportDigitsMenu.h"
#include "document/MenuRules.h"
#include "document/MyDocument.h"
#include "document/RecentFilesMenu.h"
#include "document/UndoStepsMenu.h"
#include "document/WindowListMenu.h"
#include "imageview/GraphImageView.h"
#include "imageview/MouseDownMode.h"
#include "platform/Texts.h"
#include "platform/UndoManager.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace {

constexpr int noRule = 0;
constexpr char tagProperty[] = "tag";

QKeySequence keys(const char *text) { return QKeySequence(QString::fromLatin1(text)); }

/// Hands the keys to the picture, from whatever field they go to now.
QAction *addGoToPicture(MyDocument &document, QMenu &menu)
{
    QAction *action = menu.addAction(texts::localized("document.command.goToPicture"));
    action->setObjectName(QStringLiteral("goToPicture"));
    action->setProperty(tagProperty, menurules::PictureCommand);
    action->setShortcut(keys("F6"));
    QObject::connect(action, &QAction::triggered, &menu, [&document] {
        document.perform(menurules::PictureCommand, [&document] {
            // A picture that has the focus from a click does not show it yet.
            document.graphView().clearFocus();
            document.graphView().setFocus(Qt::ShortcutFocusReason);
        });
    });
    return action;
}

} // namespace

DocumentMenus::DocumentMenus(MyDocument &document, QMainWindow &window, const SharedItems &shared)
    : QObject(&window)
    , m_document(document)
    , m_window(window)
    , m_shared(shared)
{
    addFileMenu();
    addEditMenu();
    addViewMenu();
    addPictureMenu();
    addAxesMenu();
    addDataMenu();
    addWindowMenu();
    addHelpMenu();
}

QMenu *DocumentMenus::addMenu(const char *title)
{
    QMenu *menu = m_window.menuBar()->addMenu(texts::localized(title));
    connect(menu, &QMenu::aboutToShow, this, &DocumentMenus::refresh);
    return menu;
}

QAction *DocumentMenus::add(QMenu *menu, const Command &command)
{
    QAction *action = menu->addAction(texts::localized(command.text));
    action->setObjectName(QString::fromLatin1(command.name));
    action->setProperty(tagProperty, command.tag);
    action->setShortcuts(command.shortcuts);
    connect(action, &QAction::triggered, this, [this, tag = command.tag, invoke = command.invoke] {
        m_document.perform(tag, [&document = m_document, invoke] { (document.*invoke)(); });
    });
    m_actions.push_back(action);
    return action;
}

void DocumentMenus::addFileMenu()
{
    QMenu *menu = addMenu("document.menu.file");
    add(menu, {"newDocument",
               "document.command.new",
               noRule,
               {QKeySequence::New},
               &MyDocument::newDocument});
    add(menu, {"openDocument",
               "document.command.open",
               noRule,
               {QKeySequence::Open},
               &MyDocument::openDocument});
    m_recentFiles = new RecentFilesMenu(m_document, menu);
    add(menu, {"openImageFile",
               "document.command.openPicture",
               noRule,
               {keys("Ctrl+Shift+O")},
               &MyDocument::openImageFile});
    menu->addSeparator();
    add(menu, {"performClose",
               "document.command.close",
               noRule,
               {QKeySequence::Close},
               &MyDocument::performClose});
    add(menu, {"saveDocument",
               "document.command.save",
               noRule,
               {QKeySequence::Save},
               &MyDocument::saveDocument});
    add(menu, {"saveDocumentAs",
               "document.command.saveAs",
               noRule,
               {keys("Ctrl+Shift+S")},
               &MyDocument::saveDocumentAs});
    m_revert = add(menu, {"revertDocumentToSaved",
                          "document.command.revert",
                          noRule,
                          {},
                          &MyDocument::revertDocumentToSaved});
    // The disk, which may be slow, is not asked at every change.
    connect(menu, &QMenu::aboutToShow, this,
            [this] { m_revert->setEnabled(m_document.canRevert()); });
    menu->addSeparator();
    add(menu, {"saveDataAs",
               "document.command.saveAll",
               menurules::SaveAllData,
               {keys("Ctrl+E")},
               &MyDocument::saveDataAs});
    add(menu, {"saveSelectionAs",
               "document.command.saveSelection",
               menurules::SaveSelection,
               {keys("Ctrl+Shift+E")},
               &MyDocument::saveSelectionAs});
    new ExportDigitsMenu(m_document.exportChoices(), menu);
    menu->addSeparator();
    add(menu,
        {"terminate", "document.command.quit", noRule, {keys("Ctrl+Q")}, &MyDocument::terminate});
}

void DocumentMenus::addEditMenu()
{
    QMenu *menu = addMenu("document.menu.edit");
    m_undo = add(
        menu, {"undo", "document.command.undo", noRule, {QKeySequence::Undo}, &MyDocument::undo});
    m_redo = add(menu, {"redo",
                        "document.command.redo",
                        noRule,
                        {keys("Ctrl+Shift+Z"), keys("Ctrl+Y")},
                        &MyDocument::redo});
    new UndoStepsMenu(m_document, menu, UndoStepsMenu::Way::Undo);
    new UndoStepsMenu(m_document, menu, UndoStepsMenu::Way::Redo);
    menu->addSeparator();
    add(menu, {"copy",
               "document.command.copy",
               menurules::CopySelection,
               {QKeySequence::Copy},
               &MyDocument::copy});
    add(menu, {"paste",
               "document.command.paste",
               menurules::Paste,
               {QKeySequence::Paste},
               &MyDocument::paste});
    add(menu, {"delete",
               "document.command.delete",
               menurules::DeleteSelection,
               {QKeySequence::Delete},
               &MyDocument::deleteSelection});
    add(menu, {"selectAll",
               "document.command.selectAll",
               noRule,
               {QKeySequence::SelectAll},
               &MyDocument::selectAll});
    menu->addSeparator();
    add(menu, {"editPreferences",
               "document.command.preferences",
               noRule,
               {keys("Ctrl+,")},
               &MyDocument::editPreferences})
        ->setMenuRole(QAction::PreferencesRole);
}

void DocumentMenus::addViewMenu()
{
    QMenu *menu = addMenu("document.menu.view");
    m_tabs = {add(menu, {"showAxisSetting",
                         "document.command.axisSetting",
                         noRule,
                         {keys("Ctrl+1")},
                         &MyDocument::showAxisSetting}),
              add(menu, {"showDigitizing",
                         "document.command.digitizing",
                         menurules::PictureCommand,
                         {keys("Ctrl+2")},
                         &MyDocument::showDigitizing})};
    for (QAction *tab : m_tabs)
        tab->setCheckable(true);
    m_actions.push_back(addGoToPicture(m_document, *menu));
    menu->addSeparator();
    add(menu, {"zoomToActualSize",
               "document.command.actualSize",
               menurules::ActualSize,
               {keys("Ctrl+0")},
               &MyDocument::zoomToActualSize});
    add(menu, {"zoomIn",
               "document.command.zoomIn",
               menurules::ZoomIn,
               {keys("Ctrl++"), keys("Ctrl+=")},
               &MyDocument::zoomIn});
    add(menu, {"zoomOut",
               "document.command.zoomOut",
               menurules::ZoomOut,
               {keys("Ctrl+-")},
               &MyDocument::zoomOut});
    add(menu, {"zoomToFitWidth",
               "document.command.fitWidth",
               menurules::FitWidth,
               {keys("Ctrl+3")},
               &MyDocument::zoomToFitWidth});
    add(menu, {"zoomToFitHeight",
               "document.command.fitHeight",
               menurules::FitHeight,
               {keys("Ctrl+4")},
               &MyDocument::zoomToFitHeight});
    menu->addSeparator();
    m_axisGrid = add(menu, {"toggleAxisGrid",
                            "document.command.axisGrid",
                            menurules::PictureCommand,
                            {keys("Ctrl+G")},
                            &MyDocument::toggleAxisGrid});
    m_axisGrid->setCheckable(true);
    add(menu, {"showResult",
               "document.command.result",
               noRule,
               {keys("Ctrl+Shift+G")},
               &MyDocument::showResult});
    menu->addSeparator();
    menu->addAction(m_shared.showHideTable);
    menu->addAction(m_shared.showHideInfo);
}

void DocumentMenus::addPictureMenu()
{
    QMenu *menu = addMenu("document.menu.picture");
    add(menu, {"imageRotateCcw",
               "document.command.rotateCcw",
               menurules::RotateCcw,
               {keys("Ctrl+L")},
               &MyDocument::imageRotateCcw});
    add(menu, {"imageRotateCw",
               "document.command.rotateCw",
               menurules::RotateCw,
               {keys("Ctrl+R")},
               &MyDocument::imageRotateCw});
    menu->addSeparator();
    m_tools = {add(menu, {"choosePointerTool",
                          "document.command.pointerTool",
                          menurules::MouseTool,
                          {keys("Alt+1")},
                          &MyDocument::choosePointerTool}),
               add(menu, {"chooseHandTool",
                          "document.command.handTool",
                          menurules::MouseTool,
                          {keys("Alt+2")},
                          &MyDocument::chooseHandTool}),
               add(menu, {"chooseZoomInTool",
                          "document.command.zoomInTool",
                          menurules::MouseTool,
                          {keys("Alt+3")},
                          &MyDocument::chooseZoomInTool}),
               add(menu, {"chooseZoomOutTool",
                          "document.command.zoomOutTool",
                          menurules::MouseTool,
                          {keys("Alt+4")},
                          &MyDocument::chooseZoomOutTool}),
               add(menu, {"chooseTrimTool",
                          "document.command.trimTool",
                          menurules::TrimTool,
                          {keys("Alt+5")},
                          &MyDocument::chooseTrimTool})};
    for (QAction *tool : m_tools)
        tool->setCheckable(true);
}

void DocumentMenus::addAxesMenu()
{
    QMenu *menu = addMenu("document.menu.axes");
    m_axisTypes = {add(menu, {"chooseParallelAxes",
                              "document.command.parallel",
                              menurules::AxisCommand,
                              {},
                              &MyDocument::chooseParallelAxes}),
                   add(menu, {"chooseQuadrangleAxes",
                              "document.command.quadrangle",
                              menurules::AxisCommand,
                              {},
                              &MyDocument::chooseQuadrangleAxes}),
                   add(menu, {"choosePolarAxes",
                              "document.command.polar",
                              menurules::AxisCommand,
                              {},
                              &MyDocument::choosePolarAxes})};
    for (QAction *type : m_axisTypes)
        type->setCheckable(true);
    menu->addSeparator();
    add(menu, {"resetPosition",
               "document.command.resetPosition",
               menurules::ResetPosition,
               {keys("Ctrl+D")},
               &MyDocument::resetPosition});
    add(menu, {"wholePosition",
               "document.command.wholePosition",
               menurules::WholePosition,
               {keys("Ctrl+Shift+D")},
               &MyDocument::wholePosition});
}

void DocumentMenus::addDataMenu()
{
    QMenu *menu = addMenu("document.menu.data");
    add(menu, {"moveToNextSeries",
               "document.command.nextSeries",
               menurules::NextSeries,
               {keys("Ctrl+]")},
               &MyDocument::moveToNextSeries});
    add(menu, {"moveToPrevSeries",
               "document.command.prevSeries",
               menurules::PreviousSeries,
               {keys("Ctrl+[")},
               &MyDocument::moveToPrevSeries});
    menu->addSeparator();
    menu->addAction(m_shared.lockUnlockX);
    menu->addAction(m_shared.lockUnlockY);
    menu->addSeparator();
    m_drawModes = {
        add(menu, {"setDrawMarkers",
                   "document.command.drawMarkers",
                   noRule,
                   {},
                   &MyDocument::setDrawMarkers}),
        add(menu, {"setDrawMarkersAndLines",
                   "document.command.drawBoth",
                   noRule,
                   {},
                   &MyDocument::setDrawMarkersAndLines}),
        add(menu,
            {"setDrawLines", "document.command.drawLines", noRule, {}, &MyDocument::setDrawLines})};
    for (QAction *mode : m_drawModes)
        mode->setCheckable(true);
    menu->addSeparator();
    m_sort = add(menu, {"simulateToggleSort",
                        "document.command.sort",
                        noRule,
                        {},
                        &MyDocument::simulateToggleSort});
    m_sort->setCheckable(true);
}

void DocumentMenus::addWindowMenu()
{
    QMenu *menu = addMenu("document.menu.window");
    add(menu, {"performMiniaturize",
               "document.command.minimize",
               noRule,
               {keys("Ctrl+M")},
               &MyDocument::performMiniaturize});
    add(menu, {"zoomWindow",
               "document.command.zoomWindow",
               menurules::PictureCommand,
               {keys("Ctrl+Shift+W")},
               &MyDocument::zoomWindow});
    new WindowListMenu(m_document, menu);
}

void DocumentMenus::addHelpMenu()
{
    QMenu *menu = addMenu("document.menu.help");
    add(menu, {"showHelp",
               "document.command.help",
               noRule,
               {keys("F1"), keys("Ctrl+?")},
               &MyDocument::showHelp});
    add(menu, {"showAxisHelp", "document.command.axisHelp", noRule, {}, &MyDocument::showAxisHelp});
    add(menu, {"showDigitizeHelp",
               "document.command.digitizeHelp",
               noRule,
               {},
               &MyDocument::showDigitizeHelp});
    m_examples = new ExamplesMenu(m_document, menu);
    menu->addMenu(m_examples);
    connect(menu, &QMenu::aboutToShow, this,
            [this] { m_examples->menuAction()->setVisible(m_examples->hasExamples()); });
    menu->addSeparator();
    add(menu, {"about", "document.command.about", noRule, {}, &MyDocument::about});
}

void DocumentMenus::refresh()
{
    const menurules::State state = m_document.menuState();
    for (QAction *action : m_actions)
        action->setEnabled(
            menurules::validateMenuItem(action->property(tagProperty).toInt(), state));
    m_revert->setEnabled(m_document.fileStamp() && m_document.isDocumentEdited());
    refreshUndoTitles();
    refreshMarks();
    if (!m_document.isKey())
        return;
    m_shared.lockUnlockX->setEnabled(menurules::validateMenuItem(menurules::LockX, state));
    m_shared.lockUnlockY->setEnabled(menurules::validateMenuItem(menurules::LockY, state));
}

void DocumentMenus::refreshUndoTitles()
{
    const UndoManager &undo = m_document.undoManager();
    m_undo->setEnabled(undo.canUndo());
    m_redo->setEnabled(undo.canRedo());
    const QString undoName = undo.undoActionName();
    const QString redoName = undo.redoActionName();
    m_undo->setText(undoName.isEmpty()
                        ? texts::localized("document.command.undo")
                        : texts::localized("document.command.undoNamed").arg(undoName));
    m_redo->setText(redoName.isEmpty()
                        ? texts::localized("document.command.redo")
                        : texts::localized("document.command.redoNamed").arg(redoName));
}

void DocumentMenus::refreshMarks()
{
    const auto mark = [](const std::vector<QAction *> &choice, int index) {
        for (std::size_t i = 0; i < choice.size(); ++i)
            choice[i]->setChecked(static_cast<int>(i) == index);
    };
    mark(m_tabs, m_document.isInAxisSettingMode() ? 0 : 1);
    mark(m_axisTypes, m_document.axisType());
    mark(m_drawModes, m_document.drawMode());
    // The modes of the tools without a gap: setting axes has no tool of its own.
    const int tool = m_document.mouseTool();
    mark(m_tools, tool == DigitizeMode ? 0 : tool - DragAnchorMode);
    m_axisGrid->setChecked(m_document.graphView().showsAxisGrid());
    m_sort->setChecked(m_document.sortsAutomatically());
}
