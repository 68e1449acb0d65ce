#pragma once

#include "archiving/ArchiveTree.h"
#include "archiving/ArchivedCopy.h"
#include "conversion/ZKConvCoordinateAffine.h"
#include "conversion/ZKConvCoordinateKeystone.h"
#include "conversion/ZKConvCoordinatePolar.h"
#include "document/DocumentKeys.h"
#include "geometry/ZKVector.h"
#include "imageview/ArchivedPicture.h"

#include <QImage>

#include <memory>

/// Root dictionaries as documents have them, made without a window.
namespace sampleroots {

enum class Kind { Parallel, Quadrangle, Polar };

inline std::shared_ptr<const ZKConvCoordinate> converter(Kind kind)
{
    switch (kind) {
    case Kind::Quadrangle:
        return ZKConvCoordinateKeystone::convCoordWithPointLB(
            {10, 10}, {110, 20}, {15, 95}, {100, 90}, 0, 10, false, 1, 1000, true);
    case Kind::Polar:
        return ZKConvCoordinatePolar::convCoordWithCenter({50, 50}, {90, 60}, 0, 5, false, 0, true);
    case Kind::Parallel:
        break;
    }
    return ZKConvCoordinateAffine::convCoordWithX0Point({10, 10}, {110, 10}, 0, 10, false, {10, 10},
                                                        {10, 90}, 0, 8, false);
}

inline std::shared_ptr<const Archivable> picture(QSize size = {40, 30})
{
    QImage pixels(size, QImage::Format_RGB32);
    pixels.fill(Qt::white);
    for (int i = 0; i < size.height(); ++i)
        pixels.setPixelColor(i % size.width(), i, QColor(i % 256, 10, 200));
    const FloatSize points{static_cast<float>(size.width()), static_cast<float>(size.height())};
    return ArchivedPicture::archived(*Picture::fromPixels(pixels, points));
}

inline ArchiveValue integer(int number) { return {std::int64_t{number}}; }

inline ArchiveDictionary series(const std::shared_ptr<const ZKConvCoordinate> &converter,
                                int points)
{
    ArchiveArray list;
    for (int i = 0; i < points; ++i) {
        const ZKVector point = ZKVector::vectorWithX(i / 7.0, i * 1e-3);
        list.push_back(
            {std::shared_ptr<const Archivable>(std::make_shared<ArchivedCopy<ZKVector>>(point))});
    }
    ArchiveArray lists{{list}};
    ArchiveArray converters{{std::shared_ptr<const Archivable>(converter)}};
    ArchiveArray markers{integer(1)};
    for (int i = 1; i < 10; ++i) {
        lists.push_back({ArchiveArray()});
        converters.push_back(
            {std::shared_ptr<const Archivable>(std::make_shared<ZKConvCoordinate>())});
        markers.push_back(integer(0));
    }
    ArchiveDictionary data;
    data.set("Current Series", integer(0));
    data.set("Data Series", {lists});
    data.set("Converter Series", {converters});
    data.set("Marker Series", {markers});
    data.set("Auto Sort", {true});
    return data;
}

inline ArchiveDictionary root(Kind kind, int points = 5)
{
    const auto used = converter(kind);
    ArchiveDictionary view;
    view.set("Scrolled Position", {std::string("{3, 4}")});
    view.set("Image Scale", {0.5F});
    view.set("Rotation Angle", {90.0F});
    view.set("Original Image", {picture()});
    ArchiveDictionary table;
    table.set("Column Widths", {ArchiveArray{integer(97), integer(120)}});
    ArchiveDictionary axes;
    axes.set("Anchor Position 1", {std::string("{10, 10}")});
    axes.set("Anchor Position 2", {std::string("{110, 10}")});
    axes.set("Anchor Position 3", {std::string("{110, 90}")});
    axes.set("Anchor Position 4", {std::string("{10, 90}")});
    axes.set("Axis Type", integer(static_cast<int>(kind)));
    axes.set("Min X Value", {0.5});
    axes.set("Max X Value", {10.0});
    axes.set("Min Y Value", {1.0});
    axes.set("Max Y Value", {1000.0});
    axes.set("Log X Axis", {false});
    axes.set("Log Y Axis", {true});
    axes.set("Theta Range", integer(0));
    axes.set("CCW Direction", {true});
    ArchiveDictionary guide;
    guide.set("Auto X Value Mode", integer(1));
    guide.set("Lock X Value", {true});
    guide.set("Lock Y Value", {false});
    guide.set("Initial X Value", {0.25});
    guide.set("Step X Value", {0.5});
    guide.set("Current X Value", {0.75});
    guide.set("Current Y Value", {2.0});
    guide.set("Current Converter", {std::shared_ptr<const Archivable>(used)});
    ArchiveDictionary root;
    root.set(documentkeys::mainWindowFrame, {std::string("{{100, 200}, {760, 620}}")});
    root.set(documentkeys::dataTableSize, {std::string("{230, 500}")});
    root.set(documentkeys::dataTableViewState, integer(1));
    root.set(documentkeys::actionTabSelection, integer(1));
    root.set(documentkeys::graphImageViewData, {view});
    root.set(documentkeys::dataTableViewData, {table});
    root.set(documentkeys::currentAxesData, {axes});
    root.set(documentkeys::cursorGuideData, {guide});
    root.set(documentkeys::dataSeriesData, {series(used, points)});
    return root;
}

} // namespace sampleroots
