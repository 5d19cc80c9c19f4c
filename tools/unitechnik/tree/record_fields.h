#pragma once

#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/edge.h"
#include "geometry/geo_data.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "records/element/element_part.h"
#include "records/order/order.h"

// Every member of every record, under the member's own name, in the order of
// the record class. One table serves every view of the record tree: JSON both
// ways, the differences of two files, the fields shown on a drawing. A visitor
// has these operations:
//   Field(name, member)        a number, boolean, text or character
//   Record(name, member)       a nested record, whose Fields follow
//   Records(name, vector, make) a list of records; make() gives a fresh element
//   Points(name, vector)       a list of points, each a record
//   Numbers(name, vector)      a list of integers
//   FixedRecords(name, array)  a row of records of a fixed length
//   Curve(name, geoData)       the curve a piece of outline owns, of its class
namespace ItUnitechnik::Tree {

template <class V>
void Fields(V& v, Point2d& r)
{
    v.Field("x", r.x);
    v.Field("y", r.y);
}

template <class V>
void Fields(V& v, Vector2d& r)
{
    v.Field("x", r.x);
    v.Field("y", r.y);
}

template <class V>
void Fields(V& v, Point3d& r)
{
    v.Field("x", r.x);
    v.Field("y", r.y);
    v.Field("z", r.z);
}

template <class V>
void Fields(V& v, Edge& r)
{
    v.Record("first", r.first);
    v.Record("second", r.second);
}

template <class V>
void Fields(V& v, LineSegment& r)
{
    v.Field("version", r.version);
    v.Record("start", r.start);
    v.Record("end", r.end);
    v.Field("flags", r.flags);
}

template <class V>
void Fields(V& v, Circle& r)
{
    v.Field("version", r.version);
    v.Record("centre", r.centre);
    v.Field("radius", r.radius);
    v.Field("flags", r.flags);
}

template <class V>
void Fields(V& v, Arc& r)
{
    Fields(v, static_cast<Circle&>(r));
    v.Field("startAngle", r.startAngle);
    v.Field("endAngle", r.endAngle);
}

template <class V>
void Fields(V& v, Polygon& r)
{
    v.Field("version", r.version);
    v.Points("points", r.points);
    v.Numbers("segmentFlags", r.segmentFlags);
}

template <class V>
void Fields(V& v, GeoData& r)
{
    v.Field("version", r.version);
    v.Field("elementKind", r.elementKind);
    v.Curve("curve", r);
}

template <class V>
void Fields(V& v, Contour& r)
{
    v.Field("version", r.version);
    v.Field("contourNumber", r.contourNumber);
    v.Field("contourCode", r.contourCode);
    v.Records("geoData", r.geoData, [] { return GeoData(0); });
}

template <class V>
void Fields(V& v, ContourData& r)
{
    v.Field("version", r.version);
    v.Records("contours", r.contours, [] { return Contour(0); });
}

template <class V>
void Fields(V& v, Cutout& r)
{
    v.Field("version", r.version);
    v.Field("cutoutNumber", r.cutoutNumber);
    v.Field("cutoutValue", r.cutoutValue);
    v.Field("cutoutName", r.cutoutName);
    v.Records("geoData", r.geoData, [] { return GeoData(0); });
}

template <class V>
void Fields(V& v, CutoutData& r)
{
    v.Field("version", r.version);
    v.Records("cutouts", r.cutouts, [] { return Cutout(0); });
}

template <class V>
void Fields(V& v, MountingPart& r)
{
    v.Field("version", r.version);
    v.Field("partNumber", r.partNumber);
    v.Records("geoData", r.geoData, [] { return GeoData(0); });
    v.Field("partKind", r.partKind);
    v.Field("partSubCode", r.partSubCode);
    v.Field("partCode", r.partCode);
    v.Field("partName", r.partName);
    v.Field("partText1", r.partText1);
    v.Field("partText2", r.partText2);
    v.Field("partArea", r.partArea);
    v.Field("setValue1", r.setValue1);
    v.Field("setValue2", r.setValue2);
    v.Record("position", r.position);
    v.Field("partValue1", r.partValue1);
    v.Field("partValue2", r.partValue2);
    v.Field("partWidth", r.partWidth);
    v.Field("partHeight", r.partHeight);
}

template <class V>
void Fields(V& v, MountingPartData& r)
{
    v.Field("version", r.version);
    v.Records("parts", r.parts, [] { return MountingPart(0); });
}

template <class V>
void Fields(V& v, BendingForm& r)
{
    v.Field("formCode", r.formCode);
    v.Field("formValueA", r.formValueA);
    v.Field("formValueB", r.formValueB);
    v.Field("formValueC", r.formValueC);
    v.Field("formValueD", r.formValueD);
    v.Field("formValueE", r.formValueE);
}

template <class V>
void Fields(V& v, BendingFormSegment& r)
{
    v.Field("length", r.length);
    v.Field("angle", r.angle);
}

template <class V>
void Fields(V& v, BendingFormPart& r)
{
    v.Field("partNumber", r.partNumber);
    v.Records("segments", r.segments, [] { return BendingFormSegment(); });
}

template <class V>
void Fields(V& v, BendingFormFree& r)
{
    v.Field("formCode", r.formCode);
    v.Records("parts", r.parts, [] { return BendingFormPart(0); });
}

template <class V>
void Fields(V& v, SpacerPosition& r)
{
    v.Field("value1", r.value1);
    v.Field("value2", r.value2);
    v.Field("value3", r.value3);
    v.Field("value4", r.value4);
    v.Field("value5", r.value5);
    v.Field("value6", r.value6);
    v.Field("value7", r.value7);
    v.Field("value8", r.value8);
    v.Field("value9", r.value9);
    v.Field("value10", r.value10);
}

template <class V>
void Fields(V& v, SpacerData& r)
{
    v.Field("spacerCode", r.spacerCode);
    v.Records("positions", r.positions, [] { return SpacerPosition(); });
}

template <class V>
void Fields(V& v, WeldingIntersection& r)
{
    v.Field("offset", r.offset);
    v.Field("weldCode", r.weldCode);
}

template <class V>
void Fields(V& v, WeldingPoint& r)
{
    v.FixedRecords("intersections", r.intersections);
}

template <class V>
void Fields(V& v, WeldingPointData& r)
{
    v.Field("weldValueA", r.weldValueA);
    v.Field("weldValueB", r.weldValueB);
    v.Field("weldValueC", r.weldValueC);
    v.Field("weldLetter", r.weldLetter);
    v.Field("weldFlag", r.weldFlag);
    v.Records("points", r.points, [] { return WeldingPoint(); });
}

template <class V>
void Fields(V& v, AnchorBar& r)
{
    v.Field("firstType", r.firstType);
    v.Field("secondType", r.secondType);
    v.Field("firstLength", r.firstLength);
    v.Field("secondLength", r.secondLength);
}

template <class V>
void Fields(V& v, AnchorBarData& r)
{
    v.Field("anchorCode", r.anchorCode);
    v.Records("bars", r.bars, [] { return AnchorBar(); });
}

template <class V>
void Fields(V& v, Rodstock& r)
{
    v.Field("version", r.version);
    v.Field("number", r.number);
    v.Field("code", r.code);
    v.Field("rodKind", r.rodKind);
    v.Field("designation", r.designation);
    v.Field("firstSize", r.firstSize);
    v.Field("secondSize", r.secondSize);
    v.Field("thirdSize", r.thirdSize);
    v.Record("position", r.position);
    v.Field("positionZ", r.positionZ);
    v.Field("rotation", r.rotation);
    v.Field("extraDesignation", r.extraDesignation);
    v.Field("mountFlag", r.mountFlag);
    v.Field("auxFirst", r.auxFirst);
    v.Field("auxSecond", r.auxSecond);
    v.Field("auxThird", r.auxThird);
    v.Field("auxFourth", r.auxFourth);
    v.Field("auxFifth", r.auxFifth);
    v.Field("auxSixth", r.auxSixth);
    v.Field("hasWeldingPoints", r.hasWeldingPoints);
    v.Field("hasSpacers", r.hasSpacers);
    v.Field("bendingKind", r.bendingKind);
    v.Record("firstForm", r.firstForm);
    v.Record("secondForm", r.secondForm);
    v.Field("formAngle", r.formAngle);
    v.Record("freeForm", r.freeForm);
    v.Record("spacers", r.spacers);
    v.Record("weldingPoints", r.weldingPoints);
}

template <class V>
void Fields(V& v, RodstockData& r)
{
    v.Field("version", r.version);
    v.Records("bars", r.bars, [] { return Rodstock(0); });
}

template <class V>
void Fields(V& v, BracedGirder& r)
{
    v.Field("number", r.number);
    v.Field("code", r.code);
    v.Field("typeNumber", r.typeNumber);
    v.Field("designation", r.designation);
    v.Field("firstSize", r.firstSize);
    v.Record("position", r.position);
    v.Field("positionZ", r.positionZ);
    v.Field("rotation", r.rotation);
    v.Field("mountFlag", r.mountFlag);
    v.Field("firstCode", r.firstCode);
    v.Field("secondCode", r.secondCode);
    v.Field("auxNumber", r.auxNumber);
    v.Field("scaledValue", r.scaledValue);
    v.Field("shortNumber", r.shortNumber);
    v.Field("thirdCode", r.thirdCode);
    v.Field("lastNumber", r.lastNumber);
    v.Field("hasAnchorBars", r.hasAnchorBars);
    v.Field("hasWeldingPoints", r.hasWeldingPoints);
    v.Record("weldingPoints", r.weldingPoints);
    v.Record("anchorBars", r.anchorBars);
}

template <class V>
void Fields(V& v, BracedGirderData& r)
{
    v.Field("version", r.version);
    v.Records("girders", r.girders, [] { return BracedGirder(); });
}

template <class V>
void Fields(V& v, ExternalIron& r)
{
    v.Field("ironNumber", r.ironNumber);
    v.Field("ironCode", r.ironCode);
    v.Field("ironCount", r.ironCount);
    v.Field("ironValue", r.ironValue);
    v.Field("ironText", r.ironText);
}

template <class V>
void Fields(V& v, ExternalIronData& r)
{
    v.Field("version", r.version);
    v.Records("irons", r.irons, [] { return ExternalIron(); });
}

template <class V>
void Fields(V& v, Steelmat& r)
{
    v.Field("version", r.version);
    v.Field("number", r.number);
    v.Field("positionX", r.positionX);
    v.Field("positionY", r.positionY);
    v.Field("positionZ", r.positionZ);
    v.Field("firstFlag", r.firstFlag);
    v.Field("secondFlag", r.secondFlag);
    v.Field("name", r.name);
    v.Field("firstDimension", r.firstDimension);
    v.Field("secondDimension", r.secondDimension);
    v.Field("matKind", r.matKind);
    v.Field("extraTextA", r.extraTextA);
    v.Field("extraTextB", r.extraTextB);
    v.Record("rodstocks", r.rodstocks);
    v.Record("girders", r.girders);
}

template <class V>
void Fields(V& v, Reinforcement& r)
{
    v.Field("version", r.version);
    v.Field("firstText", r.firstText);
    v.Field("secondText", r.secondText);
    v.Field("thirdText", r.thirdText);
    v.Field("matFlag", r.matFlag);
    v.Records("mats", r.mats, [] { return Steelmat(); });
    v.Record("externalIrons", r.externalIrons);
    v.Field("hasExternalIrons", r.hasExternalIrons);
    v.Field("present", r.present);
}

template <class V>
void Fields(V& v, Lot& r)
{
    v.Field("version", r.version);
    v.Field("lotNumber", r.lotNumber);
    v.Field("lotText", r.lotText);
    v.Field("lotReal1", r.lotReal1);
    v.Field("lotCode2", r.lotCode2);
    v.Field("lotReal2", r.lotReal2);
    v.Field("lotValue1", r.lotValue1);
    v.Field("lotValue2", r.lotValue2);
    v.Field("lotValue3", r.lotValue3);
    v.Field("lotValue4", r.lotValue4);
    v.Field("lotText20", r.lotText20);
    v.Record("contourData", r.contourData);
    v.Record("cutoutData", r.cutoutData);
}

template <class V>
void Fields(V& v, Layer& r)
{
    v.Field("version", r.version);
    v.Field("layerValue1", r.layerValue1);
    v.Field("layerValue2", r.layerValue2);
    v.Field("layerValue3", r.layerValue3);
    v.Field("layerValue4", r.layerValue4);
    v.Field("lotCount", r.lotCount);
    v.Records("lots", r.lots, [] { return Lot(); });
    v.Record("mountingPartData", r.mountingPartData);
    v.Record("reinforcement", r.reinforcement);
}

template <class V>
void Fields(V& v, ConcreteLayer& r)
{
    v.Field("version", r.version);
    v.Field("layerNumber", r.layerNumber);
    v.Field("layerKind", r.layerKind);
    v.Field("layerThickness", r.layerThickness);
    v.Field("layerName", r.layerName);
    v.Field("firstFactor", r.firstFactor);
    v.Field("secondFactor", r.secondFactor);
    v.Field("layerText20", r.layerText20);
}

template <class V>
void Fields(V& v, Plaster& r)
{
    v.Field("plasterNumber", r.plasterNumber);
    v.Field("plasterName", r.plasterName);
    v.Field("firstValue", r.firstValue);
    v.Field("secondValue", r.secondValue);
}

template <class V>
void Fields(V& v, ElementPart& r)
{
    v.Field("version", r.version);
    v.Field("elementNumber", r.elementNumber);
    v.Field("elementNumberText", r.elementNumberText);
    v.Field("codeA1", r.codeA1);
    v.Field("codeA2", r.codeA2);
    v.Field("valueA1", r.valueA1);
    v.Field("valueA2", r.valueA2);
    v.Field("codeA3", r.codeA3);
    v.Field("valueA3", r.valueA3);
    v.Field("valueA4", r.valueA4);
    v.Field("valueA5", r.valueA5);
    v.Field("valueA6", r.valueA6);
    v.Field("valueA7", r.valueA7);
    v.Field("codeA4", r.codeA4);
    v.Field("textA40", r.textA40);
    v.Field("elementMeasure", r.elementMeasure);
    v.Field("codeB1", r.codeB1);
    v.Field("codeB2", r.codeB2);
    v.Field("textB8", r.textB8);
    v.Field("realB1", r.realB1);
    v.Field("layerProductSum", r.layerProductSum);
    v.Field("thickness", r.thickness);
    v.Field("doubleWallGap", r.doubleWallGap);
    v.Field("codeB3", r.codeB3);
    v.Field("codeB4", r.codeB4);
    v.Field("valueB1", r.valueB1);
    v.Field("valueB2", r.valueB2);
    v.Field("secondThickness", r.secondThickness);
    v.Record("firstPlaster", r.firstPlaster);
    v.Record("secondPlaster", r.secondPlaster);
    v.Records("concreteLayers", r.concreteLayers, [&r] { return ConcreteLayer(r.version); });
    v.Field("extentX", r.extentX);
    v.Field("extentY", r.extentY);
    v.Field("valueC1", r.valueC1);
    v.Field("valueC2", r.valueC2);
    v.Field("valueC3", r.valueC3);
    v.Field("valueC4", r.valueC4);
    v.Field("valueC5", r.valueC5);
    v.Field("valueC6", r.valueC6);
    v.Field("valueC7", r.valueC7);
    v.Field("valueC8", r.valueC8);
    v.Record("elementVector", r.elementVector);
    v.Field("valueC9", r.valueC9);
    v.Field("valueC10", r.valueC10);
    v.Field("valueC11", r.valueC11);
    v.Field("valueC12", r.valueC12);
    v.Record("firstEdge", r.firstEdge);
    v.Record("secondEdge", r.secondEdge);
    v.Field("textD8", r.textD8);
    v.Field("textD4", r.textD4);
    v.Field("valueD1", r.valueD1);
    v.Field("valueD2", r.valueD2);
    v.Field("valueD3", r.valueD3);
    v.Field("elementText30", r.elementText30);
    v.Record("firstPoint", r.firstPoint);
    v.Record("secondPoint", r.secondPoint);
    v.Record("thirdPoint", r.thirdPoint);
    v.Record("fourthPoint", r.fourthPoint);
    v.Field("valueF1", r.valueF1);
    v.Field("slabInfo1", r.slabInfo1);
    v.Field("slabInfo2", r.slabInfo2);
    v.Field("slabInfo3", r.slabInfo3);
    v.Field("slabInfo4", r.slabInfo4);
    v.Record("contourData", r.contourData);
    v.Record("cutoutData", r.cutoutData);
    v.Record("mountingPartData", r.mountingPartData);
    v.Record("rodstockData", r.rodstockData);
    v.Record("reinforcement", r.reinforcement);
    v.Record("bracedGirderData", r.bracedGirderData);
    v.Record("externalIronData", r.externalIronData);
    v.Field("hasExternalIron", r.hasExternalIron);
    v.Records("layers", r.layers, [] { return Layer(); });
}

template <class V>
void Fields(V& v, Project& r)
{
    v.Field("projectText1", r.projectText1);
    v.Field("projectText2", r.projectText2);
    v.Field("projectText3", r.projectText3);
    v.Field("projectText4", r.projectText4);
}

template <class V>
void Fields(V& v, Address& r)
{
    v.Field("addressText1", r.addressText1);
    v.Field("addressText2", r.addressText2);
    v.Field("addressText3", r.addressText3);
    v.Field("addressText4", r.addressText4);
}

template <class V>
void Fields(V& v, Date& r)
{
    v.Field("version", r.version);
    v.Field("day", r.day);
    v.Field("month", r.month);
    v.Field("year", r.year);
}

template <class V>
void Fields(V& v, Order& r)
{
    v.Field("version", r.version);
    v.Field("orderNumber", r.orderNumber);
    v.Field("orderText5", r.orderText5);
    v.Field("orderText4", r.orderText4);
    v.Field("orderText8", r.orderText8);
    v.Field("orderValue2", r.orderValue2);
    v.Field("legacyText2", r.legacyText2);
    v.Field("legacyText40", r.legacyText40);
    v.Field("orderText2", r.orderText2);
    v.Record("project", r.project);
    v.Record("firstAddress", r.firstAddress);
    v.Record("secondAddress", r.secondAddress);
    v.Record("date", r.date);
    v.Field("orderText40", r.orderText40);
    v.Records("elementParts", r.elementParts, [] { return ElementPart(); });
}

} // namespace ItUnitechnik::Tree
