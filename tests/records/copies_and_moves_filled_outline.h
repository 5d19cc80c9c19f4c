// The outline records, the lots and the layers of the tests of copies and
// moves, each with its members off their defaults and two children in each
// of its collections.
#pragma once

#include "records/copies_and_moves_filled_reinforcement.h"
#include "records/copies_and_moves_test_support.h"
#include "records/element/concrete_layer.h"
#include "records/element/layer.h"
#include "records/order/lot.h"
#include "records/outline/contour.h"
#include "records/outline/cutout.h"
#include "records/outline/mounting_part.h"

#include <cstdint>

namespace ItUnitechnik::CopiesAndMovesTesting {

inline Contour FilledContour(std::int32_t number)
{
    Contour contour(600);
    contour.contourNumber = number;
    contour.contourCode = L"07";
    contour.geoData.push_back(Piece(600, 0, 0, 3000, 0));
    contour.geoData.push_back(Piece(600, 3000, 0, 3000, 1500));
    return contour;
}

inline ContourData FilledContours()
{
    ContourData data;
    data.version = 600;
    data.contours.push_back(FilledContour(1));
    data.contours.push_back(FilledContour(2));
    return data;
}

inline Cutout FilledCutout(std::int32_t number)
{
    Cutout cutout(600);
    cutout.cutoutNumber = number;
    cutout.cutoutValue = 0.25;
    cutout.cutoutName = L"Opening";
    cutout.geoData.push_back(Piece(600, 100, 100, 500, 100));
    cutout.geoData.push_back(Piece(600, 500, 100, 500, 300));
    return cutout;
}

inline CutoutData FilledCutouts()
{
    CutoutData data;
    data.version = 600;
    data.cutouts.push_back(FilledCutout(1));
    data.cutouts.push_back(FilledCutout(2));
    return data;
}

inline MountingPart FilledPart(std::int32_t number)
{
    MountingPart part(600);
    part.partNumber = number;
    part.geoData.push_back(Piece(600, 200, 200, 320, 200));
    part.geoData.push_back(Piece(600, 320, 200, 320, 320));
    part.partKind = L'K';
    part.partSubCode = 12;
    part.partCode = L"CODE";
    part.partName = L"Socket box";
    part.partText1 = L"first text";
    part.partText2 = L"second text";
    part.partArea = 0.0144;
    part.setValue1 = 3;
    part.setValue2 = -7;
    part.position = Point2d(260, 260);
    part.partValue1 = 11;
    part.partValue2 = 22;
    part.partWidth = 120;
    part.partHeight = 121;
    return part;
}

inline MountingPartData FilledParts()
{
    MountingPartData data;
    data.version = 600;
    data.parts.push_back(FilledPart(1));
    data.parts.push_back(FilledPart(2));
    return data;
}

inline Lot FilledLot(std::int32_t number)
{
    Lot lot;
    lot.version = 600;
    lot.lotNumber = number;
    lot.lotText = L"Lot text";
    lot.lotReal1 = 1.25;
    lot.lotCode2 = L"AB";
    lot.lotReal2 = 2.5;
    lot.lotValue1 = 1;
    lot.lotValue2 = 2;
    lot.lotValue3 = 3;
    lot.lotValue4 = 4;
    lot.lotText20 = L"twenty";
    lot.contourData = FilledContours();
    lot.cutoutData = FilledCutouts();
    return lot;
}

inline Layer FilledLayer()
{
    Layer layer;
    layer.version = 600;
    layer.layerValue1 = 1;
    layer.layerValue2 = 2;
    layer.layerValue3 = 3;
    layer.layerValue4 = 4;
    layer.lotCount = 2;
    layer.lots.push_back(FilledLot(1));
    layer.lots.push_back(FilledLot(2));
    layer.mountingPartData = FilledParts();
    layer.reinforcement = FilledReinforcement();
    return layer;
}

inline ConcreteLayer FilledConcreteLayer(std::int32_t number)
{
    ConcreteLayer layer(600);
    layer.layerNumber = number;
    layer.layerKind = 2;
    layer.layerThickness = 60;
    layer.layerName = L"C30/37";
    layer.firstFactor = 2.4;
    layer.secondFactor = 0.5;
    layer.layerText20 = L"layer text";
    return layer;
}

} // namespace ItUnitechnik::CopiesAndMovesTesting
