#include "records/element/element_part.h"

#include "framework/archive.h"
#include "framework/field_forms.h"

namespace ItUnitechnik {

ElementPart::ElementPart()
    : ItCollectionImpl<std::vector<ConcreteLayer>>(
          [](auto& self) -> auto& { return static_cast<ElementPart&>(self).concreteLayers; }),
      ItCollectionImpl<std::vector<Contour>>(
          [](auto& self) -> auto& { return static_cast<ElementPart&>(self).contourData.contours; }),
      ItCollectionImpl<std::vector<Cutout>>(
          [](auto& self) -> auto& { return static_cast<ElementPart&>(self).cutoutData.cutouts; }),
      ItCollectionImpl<std::vector<MountingPart>>(
          [](auto& self) -> auto& { return static_cast<ElementPart&>(self).mountingPartData.parts; }),
      ItCollectionImpl<std::vector<Rodstock>>(
          [](auto& self) -> auto& { return static_cast<ElementPart&>(self).rodstockData.bars; }),
      ItCollectionImpl<std::vector<BracedGirder>>(
          [](auto& self) -> auto& { return static_cast<ElementPart&>(self).bracedGirderData.girders; }),
      ItCollectionImpl<std::vector<ExternalIron>>(
          [](auto& self) -> auto& { return static_cast<ElementPart&>(self).externalIronData.irons; }),
      ItCollectionImpl<std::vector<Layer>>([](auto& self) -> auto& { return static_cast<ElementPart&>(self).layers; })
{
    codeA1 = L"0";
    codeA2 = L"00";
    codeA3 = L"000";
    codeA4 = L"0000";
    codeB1 = L"000";
    codeB2 = L"00";
    textB8 = L"        ";
}

void ElementPart::setVersion(std::int16_t newVersion)
{
    version = newVersion;
    contourData.version = newVersion;
    cutoutData.version = newVersion;
    mountingPartData.version = newVersion;
    rodstockData.version = newVersion;
    reinforcement.version = newVersion;
    reinforcement.externalIrons.version = newVersion;
    bracedGirderData.version = newVersion;
    externalIronData.version = newVersion;
}

bool ElementPart::HasLongLines() const
{
    return version > 500 || version == 5;
}

bool ElementPart::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << Tag("SLABDATE");
    ar << UInt(3, version, "version");
    ar << EndLine;
    WriteLineA(ar);
    WriteLineB(ar);
    if (version == 502) {
        WritePlasters(ar);
    }
    if (version >= 502) {
        WriteConcreteLayers(ar);
    }
    WriteLineC(ar);
    if (version < 503) {
        WriteEdges(ar);
    }
    WriteLineD(ar);
    WriteLineE(ar);
    if (version >= 600) {
        WriteLineF(ar);
        WriteLinesG(ar);
    }
    ar << Tag("END");
    WriteNestedRecords(ar);
    ar << Tag("END SLABDATE");
    return Healthy(ar);
}

void ElementPart::WriteLineA(Archive& ar)
{
    // From 600 the number is a left-aligned text, and the left adjustment
    // it leaves puts the zeros of the next two codes behind them.
    if (version < 600) {
        ar << UInt(3, elementNumber, "elementNumber");
    } else {
        ar << Text(15, elementNumberText, "elementNumberText");
    }
    ar << Blank;
    ar << ZText(1, codeA1, "codeA1");
    ar << Blank;
    ar << ZText(2, codeA2, "codeA2");
    ar << Blank;
    ar << UInt(2, valueA1, "valueA1");
    ar << Blank;
    ar << UInt(2, valueA2, "valueA2");
    ar << Blank;
    ar << ZText(3, codeA3, "codeA3");
    ar << Blank;
    if (version < 600) {
        ar << UInt(3, valueA3, "valueA3");
    } else {
        ar << UInt(5, valueA3, "valueA3");
    }
    ar << Blank;
    ar << UInt(3, valueA4, "valueA4");
    ar << Blank;
    ar << UInt(3, valueA5, "valueA5");
    if (HasLongLines()) {
        ar << Blank;
        ar << UInt(2, valueA6, "valueA6");
        ar << Blank;
        ar << UInt(2, valueA7, "valueA7");
        ar << Blank;
        if (version < 600) {
            ar << ZText(4, codeA4, "codeA4");
        } else {
            ar << RText(40, textA40, "textA40");
        }
    }
    ar << EndLine;
}

void ElementPart::WriteLineB(Archive& ar)
{
    ar << Real(2, 3, elementMeasure, "elementMeasure");
    ar << Blank;
    ar << ZText(3, codeB1, "codeB1");
    ar << Blank;
    ar << ZText(2, codeB2, "codeB2");
    ar << Blank;
    ar << RText(8, textB8, "textB8");
    ar << Blank;
    ar << Real(1, 3, realB1, "realB1");
    ar << Blank;
    ar << Real(5, 1, layerProductSum, "layerProductSum");
    ar << Blank;
    ar << UInt(4, thickness, "thickness");
    ar << Blank;
    ar << UInt(3, doubleWallGap, "doubleWallGap");
    ar << Blank;
    ar << ZText(3, codeB3, "codeB3");
    ar << Blank;
    ar << ZText(3, codeB4, "codeB4");
    ar << Blank;
    ar << UInt(3, valueB1, "valueB1");
    ar << Blank;
    ar << UInt(3, valueB2, "valueB2");
    if (HasLongLines()) {
        ar << Blank;
        ar << UInt(4, secondThickness, "secondThickness");
    }
    ar << EndLine;
}

void ElementPart::WritePlasters(Archive& ar)
{
    firstPlaster.Write(ar);
    ar << Blank;
    secondPlaster.Write(ar);
    ar << EndLine;
}

void ElementPart::WriteConcreteLayers(Archive& ar)
{
    ar << UInt(2, static_cast<std::uint32_t>(concreteLayers.size()), "concreteLayers");
    ar << EndLine;
    WriteElements(ar, concreteLayers);
}

void ElementPart::WriteLineC(Archive& ar)
{
    ar << UInt(5, extentX, "extentX");
    ar << Blank;
    ar << UInt(5, extentY, "extentY");
    ar << Blank;
    ar << SInt(4, valueC1, "valueC1");
    ar << Blank;
    ar << SInt(4, valueC2, "valueC2");
    ar << Blank;
    ar << SInt(4, valueC3, "valueC3");
    ar << Blank;
    ar << SInt(4, valueC4, "valueC4");
    ar << Blank;
    ar << UInt(1, valueC5, "valueC5");
    ar << Blank;
    ar << UInt(5, valueC6, "valueC6");
    ar << Blank;
    ar << UInt(1, valueC7, "valueC7");
    ar << Blank;
    ar << UInt(5, valueC8, "valueC8");
    ar << Blank;
    elementVector.Write(ar);
    ar << Blank;
    ar << SInt(2, valueC9, "valueC9");
    ar << Blank;
    ar << SInt(2, valueC10, "valueC10");
    if (version < 600 && valueC11 != -1 && valueC12 != -1) {
        ar << Blank;
        ar << UInt(3, valueC11, "valueC11");
        ar << Blank;
        ar << UInt(3, valueC12, "valueC12");
    }
    ar << EndLine;
}

void ElementPart::WriteEdges(Archive& ar)
{
    firstEdge.Write(ar);
    ar << Blank;
    secondEdge.Write(ar);
    ar << EndLine;
}

void ElementPart::WriteLineD(Archive& ar)
{
    ar << RText(8, textD8, "textD8");
    ar << Blank;
    ar << RText(4, textD4, "textD4");
    ar << Blank;
    ar << UInt(4, valueD1, "valueD1");
    ar << Blank;
    ar << UInt(4, valueD2, "valueD2");
    ar << Blank;
    ar << UInt(2, valueD3, "valueD3");
    ar << Blank;
    ar << RText(30, elementText30, "elementText30");
    ar << EndLine;
}

void ElementPart::WriteLineE(Archive& ar)
{
    if (version < 600) {
        firstPoint.Write(ar);
        ar << Blank;
        secondPoint.Write(ar);
        ar << Blank;
        thirdPoint.Write(ar);
    } else {
        ar << SInt(6, firstPoint.x, "firstPoint.x");
        ar << Blank;
        ar << SInt(6, firstPoint.y, "firstPoint.y");
        ar << Blank;
        ar << SInt(6, firstPoint.z, "firstPoint.z");
        ar << Blank;
        ar << SInt(6, secondPoint.x, "secondPoint.x");
        ar << Blank;
        ar << SInt(6, secondPoint.y, "secondPoint.y");
        ar << Blank;
        ar << SInt(6, secondPoint.z, "secondPoint.z");
        ar << Blank;
        ar << SInt(6, thirdPoint.x, "thirdPoint.x");
        ar << Blank;
        ar << SInt(6, thirdPoint.y, "thirdPoint.y");
        ar << Blank;
        ar << SInt(6, thirdPoint.z, "thirdPoint.z");
    }
    ar << EndLine;
}

void ElementPart::WriteLineF(Archive& ar)
{
    ar << SInt(5, fourthPoint.x, "fourthPoint.x");
    ar << Blank;
    ar << SInt(5, fourthPoint.y, "fourthPoint.y");
    ar << Blank;
    ar << SInt(5, fourthPoint.z, "fourthPoint.z");
    ar << Blank;
    ar << UInt(3, valueF1, "valueF1");
    ar << EndLine;
}

void ElementPart::WriteLinesG(Archive& ar)
{
    ar << RText(20, slabInfo1, "slabInfo1");
    ar << EndLine;
    ar << RText(20, slabInfo2, "slabInfo2");
    ar << EndLine;
    ar << RText(20, slabInfo3, "slabInfo3");
    ar << EndLine;
    ar << RText(20, slabInfo4, "slabInfo4");
    ar << EndLine;
}

void ElementPart::WriteNestedRecords(Archive& ar)
{
    if (!layers.empty()) {
        // The layers stand alone: none of the element's own outline or
        // reinforcement records is written.
        for (Layer& layer : layers) {
            layer.Write(ar);
        }
        return;
    }

    contourData.Write(ar);
    cutoutData.Write(ar);
    mountingPartData.Write(ar);

    // The reinforcement. From 600 each record is written only when it holds
    // something; below 600 a present reinforcement stands alone.
    if (version >= 600) {
        if (!rodstockData.bars.empty()) {
            rodstockData.Write(ar);
        }
        if (!bracedGirderData.girders.empty()) {
            bracedGirderData.Write(ar);
        }
        if (reinforcement.present) {
            reinforcement.Write(ar);
        }
        if (hasExternalIron) {
            externalIronData.Write(ar);
        }
    } else if (reinforcement.present) {
        reinforcement.Write(ar);
    } else {
        rodstockData.Write(ar);
        bracedGirderData.Write(ar);
        if (hasExternalIron) {
            externalIronData.Write(ar);
        }
    }
}

} // namespace ItUnitechnik
