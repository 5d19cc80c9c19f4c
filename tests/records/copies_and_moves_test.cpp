// Every record with collections of its own: a copy, a copy assignment, a move
// and a move assignment take every member, and the result works through its
// collections on its own members, never on those of the record it came from.
// A vector of records moves them when it grows.
#include "records/element/element_part.h"

#include "framework/archive.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "records/order/order.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

template <class T>
std::wstring Written(T& record)
{
    StringArchive s;
    record.Write(s.archive);
    return s.Text();
}

GeoData Piece(std::int32_t version, std::int32_t x0, std::int32_t y0, std::int32_t x1, std::int32_t y1)
{
    return GeoData(version, L'S', std::make_unique<LineSegment>(version, Point2d(x0, y0), Point2d(x1, y1)));
}

// What a test says about one kind of record: how to make a filled one and an
// empty one, how to add one child through each of its collections, the sizes
// of those collections, and the members that its Write does not show.
template <class T>
struct Kind {
    std::function<T()> filled;
    std::function<T()> empty;
    std::function<void(T&)> addThroughEachCollection;
    std::function<std::vector<std::size_t>(const T&)> sizes;
    std::function<void(T&, T&)> expectSameUnwritten = [](T&, T&) {};
};

template <class T>
void ExpectItsOwn(const Kind<T>& kind, T& result, T& original, const std::wstring& text, const char* how)
{
    SCOPED_TRACE(how);
    EXPECT_EQ(Written(result), text);
    kind.expectSameUnwritten(result, original);
    std::vector<std::size_t> grown = kind.sizes(original);
    for (std::size_t& size : grown) {
        ++size;
    }
    const std::vector<std::size_t> before = kind.sizes(original);
    kind.addThroughEachCollection(result);
    EXPECT_EQ(kind.sizes(result), grown);
    EXPECT_EQ(kind.sizes(original), before);
    EXPECT_EQ(Written(original), text);
}

template <class T>
void ExpectCopiesAndMovesOfItsOwn(const Kind<T>& kind)
{
    static_assert(std::is_nothrow_move_constructible<T>::value, "a vector must move it when it grows");
    static_assert(std::is_nothrow_move_assignable<T>::value, "a move assignment must not throw");

    T original = kind.filled();
    const std::wstring text = Written(original);
    T blank = kind.empty();
    ASSERT_NE(text, Written(blank)) << "the filled record must differ from an empty one";
    for (std::size_t size : kind.sizes(original)) {
        ASSERT_GT(size, 0u) << "every collection must hold something";
    }

    T copied(original);
    ExpectItsOwn(kind, copied, original, text, "copy");

    T assigned = kind.empty();
    assigned = original;
    ExpectItsOwn(kind, assigned, original, text, "copy assignment");

    T source = kind.filled();
    T moved(std::move(source));
    ExpectItsOwn(kind, moved, original, text, "move");

    T otherSource = kind.filled();
    T moveAssigned = kind.empty();
    moveAssigned = std::move(otherSource);
    ExpectItsOwn(kind, moveAssigned, original, text, "move assignment");

    // Each record of a grown vector works on its own members.
    std::vector<T> many;
    for (int i = 0; i < 9; ++i) {
        many.push_back(kind.filled());
    }
    for (T& each : many) {
        ExpectItsOwn(kind, each, original, text, "in a grown vector");
    }
}

AnchorBarData FilledAnchorBars()
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

SpacerData FilledSpacers()
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

WeldingPointData FilledWeldingPoints()
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

BendingFormPart FilledFormPart(std::int32_t number)
{
    BendingFormPart part(number);
    part.segments.emplace_back(200, 90);
    part.segments.emplace_back(1000, -45);
    return part;
}

BendingFormFree FilledFreeForm()
{
    BendingFormFree form;
    form.formCode = L"042";
    form.parts.push_back(FilledFormPart(1));
    form.parts.push_back(FilledFormPart(2));
    return form;
}

ExternalIron FilledIron(std::int32_t number)
{
    ExternalIron iron;
    iron.ironNumber = number;
    iron.ironCode = 12;
    iron.ironCount = 4;
    iron.ironValue = 12.5;
    iron.ironText = L"Lifting anchor";
    return iron;
}

ExternalIronData FilledIrons()
{
    ExternalIronData data;
    data.version = 600;
    data.irons.push_back(FilledIron(1));
    data.irons.push_back(FilledIron(2));
    return data;
}

BracedGirder FilledGirder(std::int32_t number)
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

BracedGirderData FilledGirders()
{
    BracedGirderData data;
    data.version = 600;
    data.girders.push_back(FilledGirder(1));
    data.girders.push_back(FilledGirder(2));
    return data;
}

Rodstock FilledBar(std::int32_t number)
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

RodstockData FilledBars()
{
    RodstockData data;
    data.version = 600;
    data.bars.push_back(FilledBar(1));
    data.bars.push_back(FilledBar(2));
    return data;
}

Steelmat FilledMat(std::int16_t number)
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

Reinforcement FilledReinforcement()
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

Contour FilledContour(std::int32_t number)
{
    Contour contour(600);
    contour.contourNumber = number;
    contour.contourCode = L"07";
    contour.geoData.push_back(Piece(600, 0, 0, 3000, 0));
    contour.geoData.push_back(Piece(600, 3000, 0, 3000, 1500));
    return contour;
}

ContourData FilledContours()
{
    ContourData data;
    data.version = 600;
    data.contours.push_back(FilledContour(1));
    data.contours.push_back(FilledContour(2));
    return data;
}

Cutout FilledCutout(std::int32_t number)
{
    Cutout cutout(600);
    cutout.cutoutNumber = number;
    cutout.cutoutValue = 0.25;
    cutout.cutoutName = L"Opening";
    cutout.geoData.push_back(Piece(600, 100, 100, 500, 100));
    cutout.geoData.push_back(Piece(600, 500, 100, 500, 300));
    return cutout;
}

CutoutData FilledCutouts()
{
    CutoutData data;
    data.version = 600;
    data.cutouts.push_back(FilledCutout(1));
    data.cutouts.push_back(FilledCutout(2));
    return data;
}

MountingPart FilledPart(std::int32_t number)
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

MountingPartData FilledParts()
{
    MountingPartData data;
    data.version = 600;
    data.parts.push_back(FilledPart(1));
    data.parts.push_back(FilledPart(2));
    return data;
}

Lot FilledLot(std::int32_t number)
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

Layer FilledLayer()
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

ConcreteLayer FilledConcreteLayer(std::int32_t number)
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

// Every member of the element off its default; the layers stay empty, since
// an element writes either them or its own outline and reinforcement.
ElementPart FilledElement()
{
    ElementPart e;
    e.version = 600;
    e.elementNumber = 77;
    e.elementNumberText = L"77";
    e.codeA1 = L"1";
    e.codeA2 = L"2";
    e.valueA1 = 3;
    e.valueA2 = 4;
    e.codeA3 = L"5";
    e.valueA3 = 6;
    e.valueA4 = 7;
    e.valueA5 = 8;
    e.valueA6 = 9;
    e.valueA7 = 10;
    e.codeA4 = L"11";
    e.textA40 = L"text A";
    e.elementMeasure = 1.25;
    e.codeB1 = L"12";
    e.codeB2 = L"13";
    e.textB8 = L"text B";
    e.realB1 = 0.5;
    e.layerProductSum = 1.2;
    e.thickness = 200;
    e.doubleWallGap = 20;
    e.codeB3 = L"14";
    e.codeB4 = L"15";
    e.valueB1 = 16;
    e.valueB2 = 17;
    e.secondThickness = 180;
    e.firstPlaster.plasterNumber = 1;
    e.firstPlaster.plasterName = L"Plaster";
    e.firstPlaster.firstValue = 1.5;
    e.firstPlaster.secondValue = 2.5;
    e.secondPlaster = e.firstPlaster;
    e.secondPlaster.plasterNumber = 2;
    e.concreteLayers.push_back(FilledConcreteLayer(1));
    e.concreteLayers.push_back(FilledConcreteLayer(2));
    e.extentX = 3000;
    e.extentY = 1500;
    e.valueC1 = 1;
    e.valueC2 = 2;
    e.valueC3 = 3;
    e.valueC4 = 4;
    e.valueC5 = 5;
    e.valueC6 = 6;
    e.valueC7 = 7;
    e.valueC8 = 8;
    e.elementVector = Vector2d(9, 10);
    e.valueC9 = 11;
    e.valueC10 = 12;
    e.valueC11 = 13;
    e.valueC12 = 14;
    e.firstEdge = Edge(Point2d(1, 2), Point2d(3, 4));
    e.secondEdge = Edge(Point2d(5, 6), Point2d(7, 8));
    e.textD8 = L"text D8";
    e.textD4 = L"D4";
    e.valueD1 = 15;
    e.valueD2 = 16;
    e.valueD3 = 17;
    e.elementText30 = L"Floor slab";
    e.firstPoint = Point3d(1, 2, 3);
    e.secondPoint = Point3d(4, 5, 6);
    e.thirdPoint = Point3d(7, 8, 9);
    e.fourthPoint = Point3d(10, 11, 12);
    e.valueF1 = 13;
    e.slabInfo1 = L"info 1";
    e.slabInfo2 = L"info 2";
    e.slabInfo3 = L"info 3";
    e.slabInfo4 = L"info 4";
    e.contourData = FilledContours();
    e.cutoutData = FilledCutouts();
    e.mountingPartData = FilledParts();
    e.rodstockData = FilledBars();
    e.reinforcement = FilledReinforcement();
    e.bracedGirderData = FilledGirders();
    e.externalIronData = FilledIrons();
    e.hasExternalIron = true;
    return e;
}

TEST(CopiesAndMoves, AnchorBarData)
{
    ExpectCopiesAndMovesOfItsOwn<AnchorBarData>({
        FilledAnchorBars,
        [] { return AnchorBarData(); },
        [](AnchorBarData& d) { d.Add(AnchorBar()); },
        [](const AnchorBarData& d) { return std::vector<std::size_t>{d.bars.size()}; },
    });
}

TEST(CopiesAndMoves, SpacerData)
{
    ExpectCopiesAndMovesOfItsOwn<SpacerData>({
        FilledSpacers,
        [] { return SpacerData(); },
        [](SpacerData& d) { d.Add(SpacerPosition()); },
        [](const SpacerData& d) { return std::vector<std::size_t>{d.positions.size()}; },
    });
}

TEST(CopiesAndMoves, WeldingPointData)
{
    ExpectCopiesAndMovesOfItsOwn<WeldingPointData>({
        FilledWeldingPoints,
        [] { return WeldingPointData(); },
        [](WeldingPointData& d) { d.Add(WeldingPoint()); },
        [](const WeldingPointData& d) { return std::vector<std::size_t>{d.points.size()}; },
    });
}

TEST(CopiesAndMoves, BendingFormPart)
{
    ExpectCopiesAndMovesOfItsOwn<BendingFormPart>({
        [] { return FilledFormPart(3); },
        [] { return BendingFormPart(); },
        [](BendingFormPart& d) { d.Add(BendingFormSegment(5, 5)); },
        [](const BendingFormPart& d) { return std::vector<std::size_t>{d.segments.size()}; },
    });
}

TEST(CopiesAndMoves, BendingFormFree)
{
    ExpectCopiesAndMovesOfItsOwn<BendingFormFree>({
        FilledFreeForm,
        [] { return BendingFormFree(); },
        [](BendingFormFree& d) { d.Add(FilledFormPart(3)); },
        [](const BendingFormFree& d) { return std::vector<std::size_t>{d.parts.size()}; },
    });
}

TEST(CopiesAndMoves, ExternalIronData)
{
    ExpectCopiesAndMovesOfItsOwn<ExternalIronData>({
        FilledIrons,
        [] { return ExternalIronData(); },
        [](ExternalIronData& d) { d.Add(FilledIron(3)); },
        [](const ExternalIronData& d) { return std::vector<std::size_t>{d.irons.size()}; },
    });
}

TEST(CopiesAndMoves, BracedGirder)
{
    ExpectCopiesAndMovesOfItsOwn<BracedGirder>({
        [] { return FilledGirder(4); },
        [] { return BracedGirder(); },
        [](BracedGirder& g) {
            g.ItCollectionImpl<WeldingPointData>::Add(WeldingPoint());
            g.ItCollectionImpl<AnchorBarData>::Add(AnchorBar());
        },
        [](const BracedGirder& g) {
            return std::vector<std::size_t>{g.weldingPoints.points.size(), g.anchorBars.bars.size()};
        },
    });
}

TEST(CopiesAndMoves, BracedGirderData)
{
    ExpectCopiesAndMovesOfItsOwn<BracedGirderData>({
        FilledGirders,
        [] { return BracedGirderData(); },
        [](BracedGirderData& d) { d.Add(FilledGirder(3)); },
        [](const BracedGirderData& d) { return std::vector<std::size_t>{d.girders.size()}; },
    });
}

TEST(CopiesAndMoves, Rodstock)
{
    Kind<Rodstock> kind{
        [] { return FilledBar(4); },
        [] { return Rodstock(600); },
        [](Rodstock& b) {
            b.ItCollectionImpl<SpacerData>::Add(SpacerPosition());
            b.ItCollectionImpl<WeldingPointData>::Add(WeldingPoint());
        },
        [](const Rodstock& b) {
            return std::vector<std::size_t>{b.spacers.positions.size(), b.weldingPoints.points.size()};
        },
    };
    // The coded forms and the version stand in no line of a free-form bar.
    kind.expectSameUnwritten = [](Rodstock& result, Rodstock& original) {
        EXPECT_EQ(result.version, original.version);
        EXPECT_EQ(result.formAngle, original.formAngle);
        EXPECT_EQ(Written(result.firstForm), Written(original.firstForm));
        EXPECT_EQ(Written(result.secondForm), Written(original.secondForm));
    };
    ExpectCopiesAndMovesOfItsOwn(kind);
}

TEST(CopiesAndMoves, RodstockData)
{
    ExpectCopiesAndMovesOfItsOwn<RodstockData>({
        FilledBars,
        [] { return RodstockData(); },
        [](RodstockData& d) { d.Add(FilledBar(3)); },
        [](const RodstockData& d) { return std::vector<std::size_t>{d.bars.size()}; },
    });
}

TEST(CopiesAndMoves, Steelmat)
{
    ExpectCopiesAndMovesOfItsOwn<Steelmat>({
        [] { return FilledMat(3); },
        [] { return Steelmat(); },
        [](Steelmat& m) {
            m.ItCollectionImpl<RodstockData>::Add(FilledBar(3));
            m.ItCollectionImpl<BracedGirderData>::Add(FilledGirder(3));
        },
        [](const Steelmat& m) {
            return std::vector<std::size_t>{m.rodstocks.bars.size(), m.girders.girders.size()};
        },
    });
}

TEST(CopiesAndMoves, Reinforcement)
{
    Kind<Reinforcement> kind{
        FilledReinforcement,
        [] { return Reinforcement(); },
        [](Reinforcement& r) { r.Add(FilledMat(3)); },
        [](const Reinforcement& r) { return std::vector<std::size_t>{r.mats.size()}; },
    };
    kind.expectSameUnwritten = [](Reinforcement& result, Reinforcement& original) {
        EXPECT_EQ(result.hasExternalIrons, original.hasExternalIrons);
        EXPECT_EQ(result.present, original.present);
    };
    ExpectCopiesAndMovesOfItsOwn(kind);
}

TEST(CopiesAndMoves, Contour)
{
    Kind<Contour> kind{
        [] { return FilledContour(3); },
        [] { return Contour(502); },
        [](Contour& c) { c.Add(Piece(600, 1, 2, 3, 4)); },
        [](const Contour& c) { return std::vector<std::size_t>{c.geoData.size()}; },
    };
    kind.expectSameUnwritten = [](Contour& result, Contour& original) { EXPECT_EQ(result.version, original.version); };
    ExpectCopiesAndMovesOfItsOwn(kind);
}

TEST(CopiesAndMoves, ContourData)
{
    ExpectCopiesAndMovesOfItsOwn<ContourData>({
        FilledContours,
        [] { return ContourData(); },
        [](ContourData& d) { d.Add(FilledContour(3)); },
        [](const ContourData& d) { return std::vector<std::size_t>{d.contours.size()}; },
    });
}

TEST(CopiesAndMoves, Cutout)
{
    Kind<Cutout> kind{
        [] { return FilledCutout(3); },
        [] { return Cutout(502); },
        [](Cutout& c) { c.Add(Piece(600, 1, 2, 3, 4)); },
        [](const Cutout& c) { return std::vector<std::size_t>{c.geoData.size()}; },
    };
    kind.expectSameUnwritten = [](Cutout& result, Cutout& original) {
        EXPECT_EQ(result.version, original.version);
        EXPECT_EQ(result.cutoutValue, original.cutoutValue);
    };
    ExpectCopiesAndMovesOfItsOwn(kind);
}

TEST(CopiesAndMoves, CutoutData)
{
    ExpectCopiesAndMovesOfItsOwn<CutoutData>({
        FilledCutouts,
        [] { return CutoutData(); },
        [](CutoutData& d) { d.Add(FilledCutout(3)); },
        [](const CutoutData& d) { return std::vector<std::size_t>{d.cutouts.size()}; },
    });
}

TEST(CopiesAndMoves, MountingPart)
{
    Kind<MountingPart> kind{
        [] { return FilledPart(3); },
        [] { return MountingPart(502); },
        [](MountingPart& p) { p.Add(Piece(600, 1, 2, 3, 4)); },
        [](const MountingPart& p) { return std::vector<std::size_t>{p.geoData.size()}; },
    };
    kind.expectSameUnwritten = [](MountingPart& result, MountingPart& original) {
        EXPECT_EQ(result.version, original.version);
        EXPECT_EQ(result.partValue1, original.partValue1);
        EXPECT_EQ(result.partValue2, original.partValue2);
    };
    ExpectCopiesAndMovesOfItsOwn(kind);
}

TEST(CopiesAndMoves, MountingPartData)
{
    ExpectCopiesAndMovesOfItsOwn<MountingPartData>({
        FilledParts,
        [] { return MountingPartData(); },
        [](MountingPartData& d) { d.Add(FilledPart(3)); },
        [](const MountingPartData& d) { return std::vector<std::size_t>{d.parts.size()}; },
    });
}

TEST(CopiesAndMoves, Lot)
{
    ExpectCopiesAndMovesOfItsOwn<Lot>({
        [] { return FilledLot(3); },
        [] { return Lot(); },
        [](Lot& l) {
            l.Add(FilledContour(3));
            l.Add(FilledCutout(3));
        },
        [](const Lot& l) {
            return std::vector<std::size_t>{l.contourData.contours.size(), l.cutoutData.cutouts.size()};
        },
    });
}

TEST(CopiesAndMoves, Layer)
{
    ExpectCopiesAndMovesOfItsOwn<Layer>({
        FilledLayer,
        [] { return Layer(); },
        [](Layer& l) {
            l.Add(FilledLot(3));
            l.Add(FilledPart(3));
        },
        [](const Layer& l) {
            return std::vector<std::size_t>{l.lots.size(), l.mountingPartData.parts.size()};
        },
    });
}

std::vector<std::size_t> ElementSizes(const ElementPart& e)
{
    return {e.concreteLayers.size(),         e.contourData.contours.size(), e.cutoutData.cutouts.size(),
            e.mountingPartData.parts.size(), e.rodstockData.bars.size(),    e.bracedGirderData.girders.size(),
            e.externalIronData.irons.size()};
}

void AddToEachOutlineAndReinforcementList(ElementPart& e)
{
    e.Add(FilledConcreteLayer(3));
    e.Add(FilledContour(3));
    e.Add(FilledCutout(3));
    e.Add(FilledPart(3));
    e.Add(FilledBar(3));
    e.Add(FilledGirder(3));
    e.Add(FilledIron(3));
}

// The lines that only the older versions write, and the rest, at 502.
void ExpectTheSameAt502(ElementPart& result, ElementPart& original)
{
    result.version = 502;
    original.version = 502;
    EXPECT_EQ(Written(result), Written(original));
    result.version = 600;
    original.version = 600;
}

TEST(CopiesAndMoves, ElementPart)
{
    Kind<ElementPart> kind{
        FilledElement,
        [] { return ElementPart(); },
        AddToEachOutlineAndReinforcementList,
        ElementSizes,
    };
    kind.expectSameUnwritten = ExpectTheSameAt502;
    ExpectCopiesAndMovesOfItsOwn(kind);
}

TEST(CopiesAndMoves, ElementPartWithLayers)
{
    Kind<ElementPart> kind{
        [] {
            ElementPart e = FilledElement();
            e.layers.push_back(FilledLayer());
            return e;
        },
        [] { return ElementPart(); },
        [](ElementPart& e) {
            AddToEachOutlineAndReinforcementList(e);
            e.Add(FilledLayer());
        },
        [](const ElementPart& e) {
            std::vector<std::size_t> sizes = ElementSizes(e);
            sizes.push_back(e.layers.size());
            return sizes;
        },
    };
    kind.expectSameUnwritten = ExpectTheSameAt502;
    ExpectCopiesAndMovesOfItsOwn(kind);
}

Order FilledOrder()
{
    Order order;
    order.version = 600;
    order.date.version = 600;
    order.orderNumber = L"12345678";
    order.orderText5 = L"TXT05";
    order.orderText4 = L"TX04";
    order.orderText8 = L"TEXT0008";
    order.orderValue2 = 4;
    order.legacyText2 = L"LT";
    order.legacyText40 = L"legacy text";
    order.orderText2 = L"T2";
    order.project.projectText1 = L"project 1";
    order.project.projectText2 = L"project 2";
    order.project.projectText3 = L"project 3";
    order.project.projectText4 = L"project 4";
    order.firstAddress.addressText1 = L"address 1";
    order.firstAddress.addressText2 = L"address 2";
    order.firstAddress.addressText3 = L"addr 3";
    order.firstAddress.addressText4 = L"address 4";
    order.secondAddress = order.firstAddress;
    order.secondAddress.addressText1 = L"second address";
    order.date.day = 24;
    order.date.month = 12;
    order.date.year = 2024;
    order.orderText40 = L"order text 40";
    order.elementParts.push_back(FilledElement());
    return order;
}

TEST(CopiesAndMoves, Order)
{
    Kind<Order> kind{
        FilledOrder,
        [] { return Order(); },
        [](Order& o) { o.Add(ElementPart()); },
        [](const Order& o) { return std::vector<std::size_t>{o.elementParts.size()}; },
    };
    // The legacy texts stand in the file up to 502 only.
    kind.expectSameUnwritten = [](Order& result, Order& original) {
        EXPECT_EQ(result.legacyText2, original.legacyText2);
        EXPECT_EQ(result.legacyText40, original.legacyText40);
        EXPECT_EQ(result.date.version, original.date.version);
    };
    ExpectCopiesAndMovesOfItsOwn(kind);
}

TEST(CopiesAndMoves, AnOrderStoresItsVersionIntoTheDateWhenCopiedOrMoved)
{
    Order order = FilledOrder();
    order.date.version = 499;
    Order copied(order);
    EXPECT_EQ(copied.date.version, 600);
    Order moved(std::move(copied));
    EXPECT_EQ(moved.date.version, 600);
    Order assigned;
    assigned.version = 501;
    order.date.version = 499;
    assigned = order;
    EXPECT_EQ(assigned.date.version, 600);
    order.date.version = 499;
    Order moveAssigned;
    moveAssigned = std::move(order);
    EXPECT_EQ(moveAssigned.date.version, 600);
}

TEST(CopiesAndMoves, Polygon)
{
    Kind<Polygon> kind{
        [] {
            Polygon polygon(600);
            polygon.points = {Point2d(0, 0), Point2d(100, 0), Point2d(100, 50)};
            polygon.segmentFlags = {1, 2};
            return polygon;
        },
        [] { return Polygon(502); },
        [](Polygon& p) {
            p.PointCollection::Add(Point2d(7, 7));
            p.FlagCollection::Add(3);
        },
        [](const Polygon& p) {
            return std::vector<std::size_t>{p.points.size(), p.segmentFlags.size()};
        },
    };
    kind.expectSameUnwritten = [](Polygon& result, Polygon& original) { EXPECT_EQ(result.version, original.version); };
    ExpectCopiesAndMovesOfItsOwn(kind);
}

TEST(CopiesAndMoves, AGeoDataMoveHandsItsCurveOver)
{
    static_assert(std::is_nothrow_move_constructible<GeoData>::value, "a vector must move it when it grows");
    GeoData piece = Piece(600, 1, 2, 3, 4);
    const Curve* curve = piece.curve.get();
    GeoData moved(std::move(piece));
    EXPECT_EQ(moved.curve.get(), curve);
    EXPECT_EQ(piece.curve, nullptr);
    EXPECT_EQ(moved.elementKind, L'S');
    EXPECT_EQ(moved.version, 600);
    GeoData assigned(600);
    assigned = std::move(moved);
    EXPECT_EQ(assigned.curve.get(), curve);
    EXPECT_EQ(moved.curve, nullptr);
    GeoData& same = assigned;
    assigned = std::move(same);
    EXPECT_EQ(assigned.curve.get(), curve);
}

} // namespace
} // namespace ItUnitechnik
