#pragma once

#include "platform/TableDrag.h"

#include <QStringList>

/// Notes the tables that were dragged away.
class FakeTableDrag final : public TableDrag
{
public:
    void drag(const QString &text) override { texts << text; }

    QStringList texts;
};
