#pragma once

#include "platform/TableDrag.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>

/// Notes the tables that were dragged away.
class FakeTableDrag final : public TableDrag
{
public:
    void drag(QWidget &from, const QString &text) override
    {
        source = &from;
        texts << text;
    }

    QPointer<QWidget> source;
    QStringList texts;
};
