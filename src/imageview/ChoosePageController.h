#pragma once

#include "imageview/PictureReader.h"

#include <QDialog>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <memory>

class PageSource;
class QImage;

namespace Ui {
class ChoosePagePanel;
}

/// The application-modal panel in which the user picks the page of a file with several. Turning
/// pages never waits for their pictures: those follow when they are painted.
class ChoosePageController : public QObject
{
    Q_OBJECT

public:
    using Handler = std::function<void(const PictureReading &)>;

    ChoosePageController();
    ~ChoosePageController() override;

    /// `chooseAPageOf:withScale:onWindow:` opens the panel at page 1 and returns. `finished` is
    /// called later with the chosen page at the scale, or with the problem Cancelled. The panel is
    /// not a sheet: the window only tells the desktop where it belongs.
    void chooseAPageOf(PageSource &document, float withScale, QWidget *onWindow, Handler finished);

    /// Whether the panel is open.
    [[nodiscard]] bool isChoosing() const;
    /// 0 before the first page is shown.
    [[nodiscard]] int currentPage() const { return m_currentPage; }
    [[nodiscard]] QDialog *choosePagePanel() const { return m_panel; }

    /// Shows a page; ignores pages that there are not, and the present one.
    void setPageImage(int page);
    /// Goes on by `step` pages, or back, up to the first or last one.
    void pageScrollBy(int step);

    void choosePage();
    void cancelOpeing();
    void gotoPage();
    void nextPage();
    void prevPage();
    void sliderChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makePanel(QWidget *window);
    void connectPanel();
    void ended(int result);
    void keepWidthOfPageNumbers();
    [[nodiscard]] QString pageOfTotal(int page) const;
    void showPreview(int page, const QImage &preview);
    [[nodiscard]] bool turnPageByKey(int key, bool inField);

    std::unique_ptr<Ui::ChoosePagePanel> m_ui;
    QPointer<QDialog> m_panel; ///< goes with its window
    PageSource *m_myDocument = nullptr;
    int m_currentPage = 0;
    float m_scale = 1;
    Handler m_finished;
    QTimer m_slowPreview;
};
