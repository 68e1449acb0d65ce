#pragma once

#include <QWidget>

class QHBoxLayout;
class QWidget;

/// The drawer at the window's right edge that holds the data table.
///
/// Opening widens the window by the drawer's width where the desktop allows it, closing narrows
/// it by what it took. Opening and closing are calls, never consequences of being shown or hidden.
class TableDrawer : public QWidget
{
    Q_OBJECT

public:
    static constexpr int standardWidth = 230; ///< points, the handle included
    static constexpr int handleWidth = 9; ///< points; the handle stays when the drawer is closed

    explicit TableDrawer(QWidget *parent = nullptr);

    /// The widget inside the drawer; it becomes the drawer's child.
    void setContent(QWidget *content);

    [[nodiscard]] bool isOpen() const { return m_isOpen; }

    /// Opens or closes; nothing happens when it is so already.
    void open();
    void close();
    void toggle();

    /// How much of the window's width is the open drawer's, handle excluded; 0 when it is closed.
    [[nodiscard]] int widthInWindow() const;

    /// The width of the open drawer, handle excluded, in points.
    [[nodiscard]] int contentWidth() const { return m_contentWidth; }
    void setContentWidth(int width);

Q_SIGNALS:
    void didOpen();
    void didClose();

private:
    class Handle;

    [[nodiscard]] int widthLeftOnScreen() const;
    /// Widens the window, and its smallest width; tells by how much it became wider.
    int widenWindow(int by, int smallestBy);
    void dragHandle(int by);

    QHBoxLayout *m_layout;
    Handle *m_handle;
    QWidget *m_content = nullptr;
    int m_contentWidth = standardWidth - handleWidth;
    int m_takenWidth = 0; ///< by how much opening has widened the window
    bool m_isOpen = false;
};
