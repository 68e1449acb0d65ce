#include "axes/AnchorMeasures.h"

#include "geometry/ZKVector.h"

namespace {

ZKVector vectorBetween(FloatPoint from, FloatPoint to)
{
    return ZKVector::vectorWithNSPoint(to).subVector(ZKVector::vectorWithNSPoint(from));
}

} // namespace

namespace anchormeasures {

double bottomLength(const Anchors &anchors)
{
    return vectorBetween(anchors.anchor1, anchors.anchor2).length();
}

double leftLength(const Anchors &anchors)
{
    return vectorBetween(anchors.anchor1, anchors.anchor4).length();
}

double inclination(const Anchors &anchors)
{
    return ZKVector::vectorWithX(1, 0).angleDeg(vectorBetween(anchors.anchor1, anchors.anchor2));
}

} // namespace anchormeasures
