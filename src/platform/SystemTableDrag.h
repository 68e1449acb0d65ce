#pragma once

#include "platform/TableDrag.h"

/// The desktop's drag and drop. Tables are copied, never moved.
class SystemTableDrag final : public TableDrag
{
public:
    void drag(const QString &text) override;
};
