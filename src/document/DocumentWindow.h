#pragma once

#include <QMainWindow>
#include <QPointer>

#include <memory>

namespace Ui {
class MyDocument;
}

class EmptyPictureHint;
class MyDocument;
class QMenu;
class StatusLine;

/// The window of one document: the picture with its bar of controls, the action tab, the status
/// line, and the drawer with the table.
class DocumentWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `document` outlives the window.
    explicit DocumentWindow(MyDocument &document);
    ~DocumentWindow() override;

    [[nodiscard]] Ui::MyDocument &ui() const { return *m_ui; }
    [[nodiscard]] StatusLine &status() const { return *m_status; }

    /// Shows or hides the words in the empty picture area that say what to do next.
    void showEmptyHint(bool shown);
    /// They make room for the panels that show how far a reading has come; once, when these are
    /// made.
    void keepHintClearOfProgress();
    /// Offers `examples` there, a menu of the window.
    void offerExamples(QMenu &examples);

    /// The magnification beside the slider; empty text without a picture.
    void showScale(const QString &text);

    /// Takes the menus and controls away while the document is not what it will be, and gives them
    /// back. The window does not show it before showBlocked().
    void setBlocked(bool blocked);
    void showBlocked();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void applyIcons();
    void tintChosenButtons();
    void keepDrawerAtTheRight();
    void keepRoomForPolarTexts();
    void keepPlacesOfBoxes();
    void keepSizeWithoutPicture();

    MyDocument &m_document;
    const std::unique_ptr<Ui::MyDocument> m_ui;
    StatusLine *m_status;
    EmptyPictureHint *m_emptyHint;
    bool m_isEmpty = false;
    bool m_showsProgress = false;
    QPointer<QWidget> m_focusBeforeBlocking;
};
