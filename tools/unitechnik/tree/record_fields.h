#pragma once

#include "field_table.h"
#include "geometry_fields.h"
#include "records/element/element_part.h"
#include "records/order/order.h"
#include "reinforcement_fields.h"

// The members of the orders, their elements, layers and lots; with the two
// headers above, the table of every record (field_table.h says how a visitor
// walks it).
namespace ItUnitechnik::Tree {

template <class V, class R>
For<R, Lot> Fields(V& v, R& r)
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

template <class V, class R>
For<R, Layer> Fields(V& v, R& r)
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

template <class V, class R>
For<R, ConcreteLayer> Fields(V& v, R& r)
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

template <class V, class R>
For<R, Plaster> Fields(V& v, R& r)
{
    v.Field("plasterNumber", r.plasterNumber);
    v.Field("plasterName", r.plasterName);
    v.Field("firstValue", r.firstValue);
    v.Field("secondValue", r.secondValue);
}

template <class V, class R>
For<R, ElementPart> Fields(V& v, R& r)
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

template <class V, class R>
For<R, Project> Fields(V& v, R& r)
{
    v.Field("projectText1", r.projectText1);
    v.Field("projectText2", r.projectText2);
    v.Field("projectText3", r.projectText3);
    v.Field("projectText4", r.projectText4);
}

template <class V, class R>
For<R, Address> Fields(V& v, R& r)
{
    v.Field("addressText1", r.addressText1);
    v.Field("addressText2", r.addressText2);
    v.Field("addressText3", r.addressText3);
    v.Field("addressText4", r.addressText4);
}

template <class V, class R>
For<R, Date> Fields(V& v, R& r)
{
    v.Field("version", r.version);
    v.Field("day", r.day);
    v.Field("month", r.month);
    v.Field("year", r.year);
}

template <class V, class R>
For<R, Order> Fields(V& v, R& r)
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
