#include "document/ToolPalette.h"

#include "document/DocumentWindow.h"
#include "document/MenuRules.h"
#include "document/MyDocument.h"
#include "imageview/GraphImageView.h"
#include "imageview/MouseDownMode.h"
#include "ui_MyDocument.h"

#include <QButtonGroup>

ToolPalette::ToolPalette(MyDocument &document)
    : QObject(&document.window())
    , m_document(document)
{
    const Ui::MyDocument &ui = document.window().ui();
    add(ui.pointerToolButton, DigitizeMode, menurules::MouseTool, &MyDocument::choosePointerTool);
    add(ui.handToolButton, HandMode, menurules::MouseTool, &MyDocument::chooseHandTool);
    add(ui.zoomInToolButton, ZoomInMode, menurules::MouseTool, &MyDocument::chooseZoomInTool);
    add(ui.zoomOutToolButton, ZoomOutMode, menurules::MouseTool, &MyDocument::chooseZoomOutTool);
    add(ui.trimToolButton, TrimMode, menurules::TrimTool, &MyDocument::chooseTrimTool);
}

void ToolPalette::add(QAbstractButton *button, int mode, int tag, void (MyDocument::*choose)())
{
    m_document.window().ui().mouseTools->setId(button, mode);
    connect(button, &QAbstractButton::clicked, this, [&document = m_document, tag, choose] {
        document.perform(tag, [&document, choose] { (document.*choose)(); });
    });
}

void ToolPalette::refresh()
{
    const menurules::State state = m_document.menuState();
    QButtonGroup *tools = m_document.window().ui().mouseTools;
    for (QAbstractButton *button : tools->buttons())
        button->setEnabled(menurules::validateMenuItem(
            tools->id(button) == TrimMode ? menurules::TrimTool : menurules::MouseTool, state));
    tools->button(m_document.mouseTool())->setChecked(true);
}
