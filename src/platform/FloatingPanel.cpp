#include "platform/FloatingPanel.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
#include <xcb/xcb.h>
#endif

namespace {

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)

bool isX11() { return QGuiApplication::platformName() == QStringLiteral("xcb"); }

// A window that belongs to the root window belongs to its whole program: window managers keep it
// above each of the program's windows, and it stays when one of them is closed or minimised. What
// the toolkit says by itself some do not understand, and the panel gets lost behind a picture.
void belongToWholeProgram(const QWidget &panel)
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t *connection = x11->connection();
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    constexpr std::uint8_t bits = 32;
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(panel.winId()),
                        XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, bits, 1, &root);
    xcb_flush(connection);
}

#else

bool isX11() { return false; }
void belongToWholeProgram(const QWidget &) {}

#endif

// Other desktops know no windows of a whole program: there the panel floats above the window that
// it is shown over. Only a window on the screen may be chosen.
void belongToWindowInUse(QWidget &panel)
{
    panel.winId(); // makes the window that can belong to another
    QWindow *owner = QGuiApplication::focusWindow();
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (owner == nullptr && window->isVisible() && window->type() == Qt::Window)
            owner = window;
    }
    panel.windowHandle()->setTransientParent(owner);
}

} // namespace

namespace floatingpanel {

void show(QWidget &panel)
{
    panel.setAttribute(Qt::WA_ShowWithoutActivating);
    if (!isX11())
        belongToWindowInUse(panel);
    panel.show();
    if (isX11())
        belongToWholeProgram(panel);
}

} // namespace floatingpanel
