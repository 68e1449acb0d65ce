#pragma once

#include <QObject>

class MyDocument;
class QAbstractButton;

/// The palette of mouse tools beside the picture: every mouse mode that is worth choosing, for
/// those whose desktop keeps the modifier keys for itself. The first tool leaves the choice to
/// page and keys.
class ToolPalette : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of the document's window.
    explicit ToolPalette(MyDocument &document);

    /// Shows which tool is chosen and which ones can be.
    void refresh();

private:
    void add(QAbstractButton *button, int mode, int tag, void (MyDocument::*choose)());

    MyDocument &m_document;
};
