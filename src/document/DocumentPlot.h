#pragma once

#include "document/DocumentServices.h"
#include "plot/PlotWindow.h"

#include <QObject>
#include <QTimer>

#include <memory>

class MyDocument;
struct PlotContent;

/// The plot of one document, in a window that goes with the document's own. It follows what is
/// captured and set, several times a second at the most.
class DocumentPlot : public QObject
{
    Q_OBJECT

public:
    /// Both outlive the plot.
    DocumentPlot(MyDocument &document, DocumentServices &services);
    ~DocumentPlot() override;

    void show();
    /// Something that the plot may show has changed.
    void documentChanged();

    [[nodiscard]] PlotWindow &window() { return m_window; }

private:
    void refresh();

    MyDocument &m_document;
    PlotWindow m_window;
    WindowDialogs m_dialogs;
    std::unique_ptr<const PlotContent> m_shown; ///< null before anything was
    QTimer m_refreshing;
};
