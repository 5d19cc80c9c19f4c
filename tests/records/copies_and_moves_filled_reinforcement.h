// The reinforcement records of the tests of copies and moves, each with its
// members off their defaults and two children in each of its collections.
#pragma once

#include "records/reinforcement/anchor_bar.h"
#include "records/reinforcement/bending_form_free.h"
#include "records/reinforcement/braced_girder.h"
#include "records/reinforcement/external_iron.h"
#include "records/reinforcement/reinforcement.h"
#include "records/reinforcement/rodstock.h"
#include "records/reinforcement/spacer.h"
#include "records/reinforcement/steelmat.h"
#include "records/reinforcement/welding_point.h"

#include <cstdint>

namespace ItUnitechnik::CopiesAndMovesTesting {

inline AnchorBarData FilledAnchorBars()
{
    AnchorBarData data;
    data.anchorCode = 7;
    AnchorBar bar;
    bar.firstType = 1;
    bar.secondType = 2;
    bar.firstLength = 300;
    bar.secondLength = 400;
    data.bars.push_back(bar);
    bar.firstLength = 500;
    data.bars.push_back(bar);
    return data;
}

inline SpacerData FilledSpacers()
{
    SpacerData data;
    data.spacerCode = 5;
    SpacerPosition position;
    position.value1 = 1;
    position.value2 = 2;
    position.value3 = 3;
    position.value4 = 4;
    position.value5 = 5;
    position.value6 = 6;
    position.value7 = 7;
    position.value8 = 8;
    position.value9 = 9;
    position.value10 = 10;
    data.positions.push_back(position);
    position.value10 = 11;
    data.positions.push_back(position);
    return data;
}

inline WeldingPointData FilledWeldingPoints()
{
    WeldingPointData data;
    data.weldValueA = 1;
    data.weldValueB = 2;
    data.weldValueC = 3;
    data.weldLetter = L'W';
    data.weldFlag = true;
    WeldingPoint point;
    point.intersections[0].offset = 120;
    point.intersections[0].weldCode = 4;
    point.intersections[7].offset = 980;
    data.points.push_back(point);
    point.intersections[1].weldCode = 9;
    data.points.push_back(point);
    return data;
}

inline BendingFormPart FilledFormPart(std::int32_t number)
{
    BendingFormPart part(number);
    part.segments.emplace_back(200, 90);
    part.segments.emplace_back(1000, -45);
    return part;
}

inline BendingFormFree FilledFreeForm()
{
    BendingFormFree form;
    form.formCode = L"042";
    form.parts.push_back(FilledFormPart(1));
    form.parts.push_back(FilledFormPart(2));
    return form;
}

inline ExternalIron FilledIron(std::int32_t number)
{
    ExternalIron iron;
    iron.ironNumber = number;
    iron.ironCode = 12;
    iron.ironCount = 4;
    iron.ironValue = 12.5;
    iron.ironText = L"Lifting anchor";
    return iron;
}

inline ExternalIronData FilledIrons()
{
    ExternalIronData data;
    data.version = 600;
    data.irons.push_back(FilledIron(1));
    data.irons.push_back(FilledIron(2));
    return data;
}

inline BracedGirder FilledGirder(std::int32_t number)
{
    BracedGirder girder;
    girder.number = number;
    girder.code = L"123";
    girder.typeNumber = 800;
    girder.designation = L"KT 800";
    girder.firstSize = 4500;
    girder.position = Point2d(100, 200);
    girder.positionZ = 30;
    girder.rotation = 90;
    girder.mountFlag = true;
    girder.firstCode = L"456";
    girder.secondCode = L"789";
    girder.auxNumber = 5;
    girder.scaledValue = 1.5;
    girder.shortNumber = 7;
    girder.thirdCode = L"ABC";
    girder.lastNumber = 12;
    girder.hasAnchorBars = true;
    girder.hasWeldingPoints = true;
    girder.weldingPoints = FilledWeldingPoints();
    girder.anchorBars = FilledAnchorBars();
    return girder;
}

inline BracedGirderData FilledGirders()
{
    BracedGirderData data;
    data.version = 600;
    data.girders.push_back(FilledGirder(1));
    data.girders.push_back(FilledGirder(2));
    return data;
}

inline Rodstock FilledBar(std::int32_t number)
{
    Rodstock bar(600);
    bar.number = number;
    bar.code = L"321";
    bar.rodKind = 2;
    bar.designation = L"B500B";
    bar.firstSize = 2300;
    bar.secondSize = 10;
    bar.thirdSize = 55;
    bar.position = Point2d(150, 200);
    bar.positionZ = 40;
    bar.rotation = -90;
    bar.extraDesignation = L"U1";
    bar.mountFlag = true;
    bar.auxFirst = 1;
    bar.auxSecond = 2;
    bar.auxThird = 3;
    bar.auxFourth = 4;
    bar.auxFifth = 5;
    bar.auxSixth = 6;
    bar.hasWeldingPoints = true;
    bar.hasSpacers = true;
    bar.bendingKind = L'2';
    bar.firstForm.formCode = L"011";
    bar.firstForm.formValueA = 1;
    bar.firstForm.formValueE = 5;
    bar.secondForm.formCode = L"022";
    bar.secondForm.formValueB = 2;
    bar.formAngle = 45;
    bar.freeForm = FilledFreeForm();
    bar.spacers = FilledSpacers();
    bar.weldingPoints = FilledWeldingPoints();
    return bar;
}

inline RodstockData FilledBars()
{
    RodstockData data;
    data.version = 600;
    data.bars.push_back(FilledBar(1));
    data.bars.push_back(FilledBar(2));
    return data;
}

inline Steelmat FilledMat(std::int16_t number)
{
    Steelmat mat;
    mat.version = 600;
    mat.number = number;
    mat.positionX = 100;
    mat.positionY = -50;
    mat.positionZ = 7;
    mat.firstFlag = true;
    mat.secondFlag = true;
    mat.name = L"Q188A";
    mat.firstDimension = 2350;
    mat.secondDimension = 5900;
    mat.matKind = 2;
    mat.extraTextA = L"upper";
    mat.extraTextB = L"layer";
    mat.rodstocks = FilledBars();
    mat.girders = FilledGirders();
    return mat;
}

inline Reinforcement FilledReinforcement()
{
    Reinforcement reinforcement;
    reinforcement.version = 600;
    reinforcement.firstText = L"FIRST";
    reinforcement.secondText = L"SEC";
    reinforcement.thirdText = L"THIRD";
    reinforcement.matFlag = 1;
    reinforcement.mats.push_back(FilledMat(1));
    reinforcement.mats.push_back(FilledMat(2));
    reinforcement.externalIrons = FilledIrons();
    reinforcement.hasExternalIrons = true;
    reinforcement.present = true;
    return reinforcement;
}

} // namespace ItUnitechnik::CopiesAndMovesTesting
