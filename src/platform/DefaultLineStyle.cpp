#include "platform/DefaultLineStyle.h"

namespace defaultlinestyle {

namespace {
Qt::PenCapStyle currentCap = Qt::FlatCap;
Qt::PenJoinStyle currentJoin = Qt::MiterJoin;
} // namespace

Qt::PenCapStyle capStyle() { return currentCap; }

Qt::PenJoinStyle joinStyle() { return currentJoin; }

void setCapStyle(Qt::PenCapStyle style) { currentCap = style; }

void setJoinStyle(Qt::PenJoinStyle style) { currentJoin = style; }

} // namespace defaultlinestyle
