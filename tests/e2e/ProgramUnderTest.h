#pragma once

#include <QByteArray>
#include <QImage>
#include <QPoint>
#include <QPointF>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <optional>
#include <vector>

/// The program in a process of its own, seen as a user sees it: by what is on the screen, and
/// driven by the mouse and the keyboard of the X server.
class ProgramUnderTest
{
public:
    /// Starts the program on a picture; it gets a configuration folder of its own.
    explicit ProgramUnderTest(const QString &picturePath);
    ~ProgramUnderTest();

    /// Waits until the whole picture is on the screen at actual size; false after a while.
    [[nodiscard]] bool waitForPicture();

    /// Points are in picture coordinates: pixels from the bottom left.
    void click(QPointF point);
    void drag(QPointF from, QPointF to);

    /// Switches the check box after the field that was entered last.
    void toggleNextCheckBox();

    /// Presses a key combination such as "ctrl+2".
    void key(const QString &combination);
    /// Types into whatever has the focus.
    void type(const QString &text);
    /// Focuses the field behind an Alt mnemonic, replaces its text and presses Return.
    void enter(const QString &mnemonic, const QString &text);

    /// What the screen shows of the program's window, without the frame around it.
    [[nodiscard]] static QImage windowImage();
    /// What the screen shows of the picture.
    [[nodiscard]] QImage pictureImage() const;
    /// Puts the pointer at a point without pressing.
    void hover(QPointF point);

    /// The id of the window that has the focus, as text.
    [[nodiscard]] static QByteArray activeWindow();
    /// Waits until the window has the focus; false after a while.
    [[nodiscard]] static bool waitForActiveWindow(const QByteArray &window);
    /// The id of the visible window whose title begins so.
    [[nodiscard]] static QByteArray windowNamed(const QString &beginning);
    /// Makes a new document and returns the id of its window, which has the focus.
    [[nodiscard]] QByteArray newWindow();
    static void moveWindow(const QByteArray &window, QPoint screenPosition);
    /// Where a point of the picture is on the screen.
    [[nodiscard]] QPoint onScreen(QPointF point) const;
    /// What the screen shows at a point of the picture and around it, be it of which window it may.
    [[nodiscard]] QImage screenAround(QPointF point) const;

    /// The rows of numbers that the save command writes; empty if no file came.
    [[nodiscard]] std::vector<std::vector<double>> savedData();

private:
    [[nodiscard]] std::optional<QPoint> findPictureOnScreen() const;
    /// Replaces the text of the field that a panel begins with; false if it does not take it.
    [[nodiscard]] bool fillPanel(const QString &text);
    static void move(QPoint screenPosition);
    static void xdotool(const QStringList &arguments);
    [[nodiscard]] static QByteArray answerOfXdotool(const QStringList &arguments);

    QString m_picturePath;
    QTemporaryDir m_folder;
    QProcess m_process;
    QPoint m_pictureTopLeft;
    int m_pictureHeight = 0;
};
