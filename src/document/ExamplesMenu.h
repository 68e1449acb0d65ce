#pragma once

#include <QMenu>

class MyDocument;

/// The examples that are installed; one that is chosen opens as an untitled copy.
class ExamplesMenu : public QMenu
{
    Q_OBJECT

public:
    /// `document` outlives the menu.
    ExamplesMenu(MyDocument &document, QWidget *parent);

    /// Whether any example is there to choose.
    [[nodiscard]] bool hasExamples() const;

private:
    void fill();

    MyDocument &m_document;
};
