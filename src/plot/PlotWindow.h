#pragma once

#include <QKeySequence>
#include <QList>
#include <QWidget>

#include <functional>

class FilePanels;
class HelpViewer;
class PlotChoices;
class PlotModule;
class PlotView;
class QLabel;
class QPushButton;
class Sheets;
struct PlotContent;

/// The window that shows what was captured on axes of its own, to be held beside the original.
class PlotWindow : public QWidget
{
    Q_OBJECT

public:
    /// Both outlive the window.
    PlotWindow(PlotModule &module, PlotChoices &choices);

    /// What the window asks its user with; needed before the window is used.
    void setDialogs(Sheets &sheets, FilePanels &panels);
    /// What shows the help about the plot; outlives the window.
    void setHelpViewer(HelpViewer &help);

    void showContent(const PlotContent &content);

    /// Where the points are drawn; null while the module is missing.
    [[nodiscard]] PlotView *view() const { return m_view; }

    [[nodiscard]] QSize sizeHint() const override;
    void setVisible(bool visible) override;

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void makeView();
    void makeBar();
    void addCommand(const char *name, const QList<QKeySequence> &keys,
                    const std::function<void()> &command);
    void save();
    void write(const QString &path, std::size_t format);

    PlotModule &m_module;
    PlotChoices &m_choices;
    Sheets *m_sheets = nullptr;
    FilePanels *m_panels = nullptr;
    PlotView *m_view = nullptr; // child
    QLabel *m_note;
    QPushButton *m_saveButton;
    QString m_title;         ///< of what is shown
    bool m_isPlaced = false; ///< it was shown once, and stands where the user left it
};
