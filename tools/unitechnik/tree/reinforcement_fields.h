#pragma once

#include "field_table.h"
#include "geometry_fields.h"
#include "records/element/element_part.h"

// The members of the reinforcement: bars with their bending forms, spacers
// and welding points, girders, external irons and mats (field_table.h).
namespace ItUnitechnik::Tree {

template <class V, class R>
For<R, BendingForm> Fields(V& v, R& r)
{
    v.Field("formCode", r.formCode);
    v.Field("formValueA", r.formValueA);
    v.Field("formValueB", r.formValueB);
    v.Field("formValueC", r.formValueC);
    v.Field("formValueD", r.formValueD);
    v.Field("formValueE", r.formValueE);
}

template <class V, class R>
For<R, BendingFormSegment> Fields(V& v, R& r)
{
    v.Field("length", r.length);
    v.Field("angle", r.angle);
}

template <class V, class R>
For<R, BendingFormPart> Fields(V& v, R& r)
{
    v.Field("partNumber", r.partNumber);
    v.Records("segments", r.segments, [] { return BendingFormSegment(); });
}

template <class V, class R>
For<R, BendingFormFree> Fields(V& v, R& r)
{
    v.Field("formCode", r.formCode);
    v.Records("parts", r.parts, [] { return BendingFormPart(0); });
}

template <class V, class R>
For<R, SpacerPosition> Fields(V& v, R& r)
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

template <class V, class R>
For<R, SpacerData> Fields(V& v, R& r)
{
    v.Field("spacerCode", r.spacerCode);
    v.Records("positions", r.positions, [] { return SpacerPosition(); });
}

template <class V, class R>
For<R, WeldingIntersection> Fields(V& v, R& r)
{
    v.Field("offset", r.offset);
    v.Field("weldCode", r.weldCode);
}

template <class V, class R>
For<R, WeldingPoint> Fields(V& v, R& r)
{
    v.FixedRecords("intersections", r.intersections);
}

template <class V, class R>
For<R, WeldingPointData> Fields(V& v, R& r)
{
    v.Field("weldValueA", r.weldValueA);
    v.Field("weldValueB", r.weldValueB);
    v.Field("weldValueC", r.weldValueC);
    v.Field("weldLetter", r.weldLetter);
    v.Field("weldFlag", r.weldFlag);
    v.Records("points", r.points, [] { return WeldingPoint(); });
}

template <class V, class R>
For<R, AnchorBar> Fields(V& v, R& r)
{
    v.Field("firstType", r.firstType);
    v.Field("secondType", r.secondType);
    v.Field("firstLength", r.firstLength);
    v.Field("secondLength", r.secondLength);
}

template <class V, class R>
For<R, AnchorBarData> Fields(V& v, R& r)
{
    v.Field("anchorCode", r.anchorCode);
    v.Records("bars", r.bars, [] { return AnchorBar(); });
}

template <class V, class R>
For<R, Rodstock> Fields(V& v, R& r)
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

template <class V, class R>
For<R, RodstockData> Fields(V& v, R& r)
{
    v.Field("version", r.version);
    v.Records("bars", r.bars, [] { return Rodstock(0); });
}

template <class V, class R>
For<R, BracedGirder> Fields(V& v, R& r)
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

template <class V, class R>
For<R, BracedGirderData> Fields(V& v, R& r)
{
    v.Field("version", r.version);
    v.Records("girders", r.girders, [] { return BracedGirder(); });
}

template <class V, class R>
For<R, ExternalIron> Fields(V& v, R& r)
{
    v.Field("ironNumber", r.ironNumber);
    v.Field("ironCode", r.ironCode);
    v.Field("ironCount", r.ironCount);
    v.Field("ironValue", r.ironValue);
    v.Field("ironText", r.ironText);
}

template <class V, class R>
For<R, ExternalIronData> Fields(V& v, R& r)
{
    v.Field("version", r.version);
    v.Records("irons", r.irons, [] { return ExternalIron(); });
}

template <class V, class R>
For<R, Steelmat> Fields(V& v, R& r)
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

template <class V, class R>
For<R, Reinforcement> Fields(V& v, R& r)
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

} // namespace ItUnitechnik::Tree
