#pragma once

#include "platform/DefaultLineStyle.h"

/// While it lives, lines are drawn as at the start of the program, whatever tests drew before.
class StartingLineStyle
{
public:
    StartingLineStyle()
    {
        defaultlinestyle::setCapStyle(Qt::FlatCap);
        defaultlinestyle::setJoinStyle(Qt::MiterJoin);
    }
};
