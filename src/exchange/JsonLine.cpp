#include "exchange/JsonLine.h"

#include "conversion/ZKConvCoordinateAffine.h"
#include "conversion/ZKConvCoordinateKeystone.h"
#include "conversion/ZKConvCoordinatePolar.h"
#include "exchange/ExchangeTitles.h"
#include "exchange/JsonWriter.h"

namespace {

/// What the kinds of axes and of converters are called.
const char *kindName(int type)
{
    switch (type) {
    case convertertype::affine:
        return "parallel";
    case convertertype::keystone:
        return "quadrangle";
    case convertertype::polar:
        return "polar";
    default:
        return "none";
    }
}

void write(JsonWriter &json, FloatPoint point)
{
    json.beginArray();
    json.number(point.x);
    json.number(point.y);
    json.endArray();
}

void write(JsonWriter &json, const ZKVector &vector, std::optional<int> digits = {})
{
    json.beginArray();
    json.number(vector.X(), digits);
    json.number(vector.Y(), digits);
    json.endArray();
}

void write(JsonWriter &json, const char *key, const std::optional<ZKVector> &vector)
{
    json.key(key);
    if (vector)
        write(json, *vector);
    else
        json.null();
}

void write(JsonWriter &json, const char *key, bool value)
{
    json.key(key);
    json.boolean(value);
}

void write(JsonWriter &json, const char *key, const ExchangeAxis &axis)
{
    json.key(key);
    json.beginObject();
    json.key("minimum");
    json.number(axis.minimum);
    json.key("maximum");
    json.number(axis.maximum);
    write(json, "logarithmic", axis.isLogarithmic);
    json.endObject();
}

void writePolarAxes(JsonWriter &json, const ExchangeAxes &axes)
{
    json.key("centre");
    write(json, axes.anchors[0]);
    json.key("radiusEnd");
    write(json, axes.anchors[1]);
    write(json, "radius", axes.y);
    json.key("angle");
    json.beginObject();
    json.key("unit");
    json.string(axes.isInDegrees ? "degree" : "radian");
    write(json, "signed", axes.isSigned);
    write(json, "counterClockwise", axes.isCounterClockwise);
    json.endObject();
}

void writeCornerAxes(JsonWriter &json, const ExchangeAxes &axes)
{
    json.key("anchors");
    json.beginArray();
    for (const FloatPoint anchor : axes.anchors)
        write(json, anchor);
    json.endArray();
    write(json, "x", axes.x);
    write(json, "y", axes.y);
}

void writeAxes(JsonWriter &json, const std::optional<ExchangeAxes> &axes)
{
    json.key("axes");
    if (!axes) {
        json.null();
        return;
    }
    json.beginObject();
    json.key("kind");
    json.string(kindName(axes->type));
    if (axes->type == convertertype::polar)
        writePolarAxes(json, *axes);
    else
        writeCornerAxes(json, *axes);
    json.endObject();
}

void writePicture(JsonWriter &json, const std::optional<FloatSize> &picture)
{
    json.key("picture");
    if (!picture) {
        json.null();
        return;
    }
    json.beginObject();
    json.key("width");
    json.number(picture->width);
    json.key("height");
    json.number(picture->height);
    json.endObject();
}

void writeLogarithmic(JsonWriter &json, const ZKConvCoordinate &converter)
{
    const auto flags = converter.logConversion();
    json.key("logarithmic");
    json.beginArray();
    for (std::size_t i = 0; i < 2; ++i)
        json.boolean(i < flags.size() && flags[i] != 0);
    json.endArray();
}

void writeParameters(JsonWriter &json, const ZKConvCoordinateAffine &converter)
{
    write(json, "origin", converter.origin());
    const auto &matrix = converter.xferMatrixToCartesian();
    write(json, "unitX", matrix ? matrix->getColumnVectorAt(0) : std::nullopt);
    write(json, "unitY", matrix ? matrix->getColumnVectorAt(1) : std::nullopt);
}

void writeParameters(JsonWriter &json, const ZKConvCoordinateKeystone &converter)
{
    write(json, "origin", converter.origin());
    write(json, "originValue", converter.originValue());
    write(json, "unitX", converter.unitX());
    write(json, "unitY", converter.unitY());
    write(json, "crossX", converter.crossX());
    write(json, "crossY", converter.crossY());
}

void writeParameters(JsonWriter &json, const ZKConvCoordinatePolar &converter)
{
    write(json, "centre", converter.center());
    write(json, "originValue", converter.originValue());
    write(json, "unitR", converter.unitR());
    write(json, "counterClockwise", converter.ccwTheta());
    write(json, "degrees", converter.degreeMode());
}

void writeConverter(JsonWriter &json, const ZKConvCoordinate *converter)
{
    json.key("converter");
    if (converter == nullptr || converter->converterType() == convertertype::base) {
        json.null();
        return;
    }
    json.beginObject();
    json.key("kind");
    json.string(kindName(converter->converterType()));
    writeLogarithmic(json, *converter);
    if (const auto *affine = dynamic_cast<const ZKConvCoordinateAffine *>(converter))
        writeParameters(json, *affine);
    else if (const auto *keystone = dynamic_cast<const ZKConvCoordinateKeystone *>(converter))
        writeParameters(json, *keystone);
    else if (const auto *polar = dynamic_cast<const ZKConvCoordinatePolar *>(converter))
        writeParameters(json, *polar);
    json.endObject();
}

void writeSeries(JsonWriter &json, const ExchangeSeries &series, std::optional<int> digits)
{
    json.beginObject();
    json.key("number");
    json.integer(series.number);
    json.key("name");
    json.string(exchangetitles::nameOf(series));
    json.key("quantities");
    json.beginArray();
    for (const std::string &quantity : exchangetitles::quantitiesOf(series))
        json.string(quantity);
    json.endArray();
    writeConverter(json, series.converter.get());
    json.key("points");
    json.beginArray();
    for (const ZKVector &point : series.points)
        write(json, point, digits);
    json.endArray();
    json.endObject();
}

} // namespace

namespace jsonline {

std::string object(const ExchangeFacts &facts, std::optional<int> digits)
{
    JsonWriter json;
    json.beginObject();
    json.key("document");
    json.string(facts.document);
    writePicture(json, facts.picture);
    writeAxes(json, facts.axes);
    json.key("series");
    json.beginArray();
    for (const ExchangeSeries &series : facts.series)
        writeSeries(json, series, digits);
    json.endArray();
    json.endObject();
    return json.text() + '\n';
}

} // namespace jsonline
