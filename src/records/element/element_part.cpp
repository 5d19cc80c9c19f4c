#include "records/element/element_part.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"

#include <locale>
#include <sstream>
#include <utility>

namespace ItUnitechnik {

ElementPart::ElementPart()
    : ItCollectionImpl<std::vector<ConcreteLayer>>([](auto& self) -> auto& { return static_cast<ElementPart&>(self).concreteLayers; }),
      ItCollectionImpl<std::vector<Contour>>([](auto& self) -> auto& { return static_cast<ElementPart&>(self).contourData.contours; }),
      ItCollectionImpl<std::vector<Cutout>>([](auto& self) -> auto& { return static_cast<ElementPart&>(self).cutoutData.cutouts; }),
      ItCollectionImpl<std::vector<MountingPart>>([](auto& self) -> auto& { return static_cast<ElementPart&>(self).mountingPartData.parts; }),
      ItCollectionImpl<std::vector<Rodstock>>([](auto& self) -> auto& { return static_cast<ElementPart&>(self).rodstockData.bars; }),
      ItCollectionImpl<std::vector<BracedGirder>>([](auto& self) -> auto& { return static_cast<ElementPart&>(self).bracedGirderData.girders; }),
      ItCollectionImpl<std::vector<ExternalIron>>([](auto& self) -> auto& { return static_cast<ElementPart&>(self).externalIronData.irons; }),
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

void ElementPart::Changed()
{
    updateExtents();
}

void ElementPart::SetExtents(const BoundingBox& box)
{
    extentX = static_cast<std::int32_t>(static_cast<std::uint32_t>(box.max.x)
                                        - static_cast<std::uint32_t>(box.min.x));
    extentY = static_cast<std::int32_t>(static_cast<std::uint32_t>(box.max.y)
                                        - static_cast<std::uint32_t>(box.min.y));
}

void ElementPart::recomputeExtents()
{
    contourBox_ = contourData.boundingBox();
    contourBoxCount_ = contourData.contours.size();
    SetExtents(contourBox_);
}

void ElementPart::updateExtents()
{
    if (contourBoxCount_ != contourData.contours.size()) {
        recomputeExtents();
        return;
    }
    SetExtents(contourBox_);
}

void ElementPart::ExpectContour(const Contour& contour)
{
    if (contourBoxCount_ == contourData.contours.size()) {
        contourBox_.widen(contour.boundingBox());
        ++contourBoxCount_;
    }
}

ItCollectionImpl<std::vector<Contour>>::iterator ElementPart::Insert(
    ItCollectionImpl<std::vector<Contour>>::iterator position, const Contour& contour)
{
    ExpectContour(contour);
    return ItCollectionImpl<std::vector<Contour>>::Insert(position, contour);
}

void ElementPart::Add(const Contour& contour)
{
    ExpectContour(contour);
    ItCollectionImpl<std::vector<Contour>>::Add(contour);
}

void ElementPart::appendContour(Contour contour)
{
    contour.version = contourData.version;
    contour.contourNumber = static_cast<std::int32_t>(contourData.contours.size()) + 1;
    ExpectContour(contour);
    contourData.contours.push_back(std::move(contour));
    updateExtents();
}

void ElementPart::appendRodstock(Rodstock rodstock)
{
    rodstockData.appendRodstock(rodstock);
    updateExtents();
}

void ElementPart::appendCutout(Cutout cutout)
{
    cutout.version = cutoutData.version;
    cutout.cutoutNumber = static_cast<std::int32_t>(cutoutData.cutouts.size()) + 1;
    cutoutData.cutouts.push_back(std::move(cutout));
    updateExtents();
}

bool ElementPart::HasLongLines() const
{
    return version > 500 || version == 5;
}

bool ElementPart::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << Tag("SLABDATE");

    ar << UInt(3, version, "version") << EndLine;

    // Line A. From 600 the number is a left-aligned text, and the left
    // adjustment it leaves puts the zeros of the next two codes behind them.
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

    // Line B.
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

    if (version == 502) {
        firstPlaster.Write(ar);
        ar << Blank;
        secondPlaster.Write(ar);
        ar << EndLine;
    }

    if (version >= 502) {
        ar << UInt(2, static_cast<std::uint32_t>(concreteLayers.size()), "concreteLayers") << EndLine;
        WriteElements(ar, concreteLayers);
    }

    // Line C.
    ar << UInt(5, extentX, "extentX");
    ar << Blank << UInt(5, extentY, "extentY");
    ar << Blank << SInt(4, valueC1, "valueC1");
    ar << Blank << SInt(4, valueC2, "valueC2");
    ar << Blank << SInt(4, valueC3, "valueC3");
    ar << Blank << SInt(4, valueC4, "valueC4");
    ar << Blank << UInt(1, valueC5, "valueC5");
    ar << Blank << UInt(5, valueC6, "valueC6");
    ar << Blank << UInt(1, valueC7, "valueC7");
    ar << Blank << UInt(5, valueC8, "valueC8");
    ar << Blank;
    elementVector.Write(ar);
    ar << Blank << SInt(2, valueC9, "valueC9");
    ar << Blank << SInt(2, valueC10, "valueC10");
    if (version < 600 && valueC11 != -1 && valueC12 != -1) {
        ar << Blank << UInt(3, valueC11, "valueC11");
        ar << Blank << UInt(3, valueC12, "valueC12");
    }
    ar << EndLine;

    if (version < 503) {
        firstEdge.Write(ar);
        ar << Blank;
        secondEdge.Write(ar);
        ar << EndLine;
    }

    // Line D.
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
    ar << RText(30, elementText30, "elementText30") << EndLine;

    // Line E.
    if (version < 600) {
        firstPoint.Write(ar);
        ar << Blank;
        secondPoint.Write(ar);
        ar << Blank;
        thirdPoint.Write(ar);
    } else {
        ar << SInt(6, firstPoint.x, "firstPoint.x") << Blank << SInt(6, firstPoint.y, "firstPoint.y") << Blank << SInt(6, firstPoint.z, "firstPoint.z");
        ar << Blank;
        ar << SInt(6, secondPoint.x, "secondPoint.x") << Blank << SInt(6, secondPoint.y, "secondPoint.y") << Blank << SInt(6, secondPoint.z, "secondPoint.z");
        ar << Blank;
        ar << SInt(6, thirdPoint.x, "thirdPoint.x") << Blank << SInt(6, thirdPoint.y, "thirdPoint.y") << Blank << SInt(6, thirdPoint.z, "thirdPoint.z");
    }
    ar << EndLine;

    if (version >= 600) {
        // Line F.
        ar << SInt(5, fourthPoint.x, "fourthPoint.x");
        ar << Blank;
        ar << SInt(5, fourthPoint.y, "fourthPoint.y");
        ar << Blank;
        ar << SInt(5, fourthPoint.z, "fourthPoint.z");
        ar << Blank;
        ar << UInt(3, valueF1, "valueF1") << EndLine;

        // Lines G.
        ar << RText(20, slabInfo1, "slabInfo1") << EndLine;
        ar << RText(20, slabInfo2, "slabInfo2") << EndLine;
        ar << RText(20, slabInfo3, "slabInfo3") << EndLine;
        ar << RText(20, slabInfo4, "slabInfo4") << EndLine;
    }

    ar << Tag("END");

    if (!layers.empty()) {
        // The layers stand alone: none of the element's own outline or
        // reinforcement records is written.
        for (Layer& layer : layers) {
            layer.Write(ar);
        }
        ar << Tag("END SLABDATE");
        return Healthy(ar);
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

    ar << Tag("END SLABDATE");
    return Healthy(ar);
}

bool ElementPart::ReadOptional(Archive& ar, Serializable& record) const
{
    const std::wistream::pos_type start = ar.tellg();
    record.Read(ar);
    if (Healthy(ar)) {
        return true;
    }
    if (version < 600) {
        return false;
    }
    Rewind(ar, start);
    return true;
}

void ElementPart::Rewind(Archive& ar, std::wistream::pos_type position)
{
    // The seek does nothing on a stream that failed by parsing; the state is
    // cleared all the same.
    ar.seekg(position);
    ar.valid = true;
    ar.clear();
}

bool ElementPart::Read(Archive& ar)
{
    // What is read lands straight in the vectors: the kept box no longer
    // stands for the contours.
    contourBoxCount_ = static_cast<std::size_t>(-1);
    if (!ExpectToken(ar, L"SLABDATE")) {
        return false;
    }
    ar >> version;

    // Line A.
    if (version < 600) {
        ar >> elementNumber;
    } else {
        elementNumberText = ReadToken(ar);
        elementNumber = static_cast<std::int16_t>(WideToInt(elementNumberText));
    }
    codeA1 = ReadToken(ar);
    codeA2 = ReadToken(ar);
    ar >> valueA1 >> valueA2;
    codeA3 = ReadToken(ar);
    ar >> valueA3 >> valueA4 >> valueA5;
    if (version >= 501 || version == 5) {
        ar >> valueA6 >> valueA7;
        if (version < 600) {
            codeA4 = ReadToken(ar);
        } else {
            SkipChar(ar);
            GetText(ar, 40, textA40);
        }
    }
    SkipLine(ar);

    // Line B.
    ar >> elementMeasure;
    codeB1 = ReadToken(ar);
    codeB2 = ReadToken(ar);
    SkipChar(ar);
    GetText(ar, 8, textB8);
    ar >> realB1 >> layerProductSum >> thickness >> doubleWallGap;
    codeB3 = ReadToken(ar);
    codeB4 = ReadToken(ar);
    ar >> valueB1 >> valueB2;
    if (HasLongLines()) {
        ar >> secondThickness;
    }
    SkipLine(ar);

    if (version == 502) {
        firstPlaster.Read(ar);
        secondPlaster.Read(ar);
    }

    if (version >= 502) {
        std::int32_t count = 0;
        ar >> count;
        ReadElements(ar, count, [&] { return ConcreteLayer(version); }, concreteLayers);
        SkipLine(ar);
    }

    // Line C. The optional pair is there when the line goes on behind the
    // tenth value.
    ar >> extentX >> extentY >> valueC1 >> valueC2 >> valueC3 >> valueC4 >> valueC5 >> valueC6
        >> valueC7 >> valueC8;
    elementVector.Read(ar);
    SkipChar(ar);
    {
        std::wistringstream rest(ReadLine(ar));
        rest.imbue(std::locale::classic());
        rest >> valueC9 >> valueC10;
        if (!rest.eof()) {
            rest >> valueC11 >> valueC12;
        }
    }

    if (version <= 502) {
        firstEdge.Read(ar);
        secondEdge.Read(ar);
        SkipLine(ar);
    }

    // Line D.
    GetText(ar, 8, textD8);
    SkipChar(ar);
    GetText(ar, 4, textD4);
    ar >> valueD1 >> valueD2 >> valueD3;
    SkipChar(ar);
    elementText30 = ReadLine(ar);

    // Line E, read by the points' own reader at every version.
    firstPoint.Read(ar);
    secondPoint.Read(ar);
    thirdPoint.Read(ar);
    SkipLine(ar);

    if (version >= 600) {
        fourthPoint.Read(ar);
        SkipChar(ar);
        std::wstring text;
        GetText(ar, 3, text);
        valueF1 = WideToInt(text);
        SkipLine(ar);
        slabInfo1 = ReadLine(ar);
        slabInfo2 = ReadLine(ar);
        slabInfo3 = ReadLine(ar);
        slabInfo4 = ReadLine(ar);
    }

    // A wrong end of the element's own lines leaves `valid` set: the order
    // goes on with its next element.
    if (!Matches(ReadToken(ar), L"END")) {
        return false;
    }
    SkipLine(ar);

    if (LayerFollows(ar)) {
        // The layers run up to the first record that is no layer, normally
        // the closing tag; that failure is no failure of the element.
        for (;;) {
            const std::wistream::pos_type start = ar.tellg();
            Layer layer;
            layer.Read(ar);
            if (!Healthy(ar)) {
                Rewind(ar, start);
                break;
            }
            layers.push_back(layer);
        }
    } else if (!ReadOutlineAndReinforcement(ar)) {
        return false;
    }

    if (!ExpectLine(ar, L"END SLABDATE")) {
        return false;
    }
    return Healthy(ar);
}

bool ElementPart::LayerFollows(Archive& ar)
{
    const std::wistream::pos_type start = ar.tellg();
    const bool found = Matches(ReadToken(ar), L"LAYER___");
    Rewind(ar, start);
    return found;
}

bool ElementPart::ReadOutlineAndReinforcement(Archive& ar)
{
    // The outline records. From 600 a missing list of openings or of parts
    // is passed over: seek back, make the stream whole again, go on.
    // Judged by the stream and `valid`, as every nested read is: a list of
    // contours whose closing token is wrong fails its own Read but leaves
    // both alone, and the element goes on.
    contourData.Read(ar);
    if (!Healthy(ar)) {
        return false;
    }
    if (!ReadOptional(ar, cutoutData) || !ReadOptional(ar, mountingPartData)) {
        return false;
    }

    // The reader looks for the mats first, unlike the writer.
    const std::wistream::pos_type beforeReinforcement = ar.tellg();
    reinforcement.Read(ar);
    if (!Healthy(ar)) {
        Rewind(ar, beforeReinforcement);
        if (!ReadOptional(ar, rodstockData) || !ReadOptional(ar, bracedGirderData)) {
            return false;
        }
        const std::wistream::pos_type beforeIrons = ar.tellg();
        externalIronData.Read(ar);
        if (Healthy(ar)) {
            SkipLine(ar);
            hasExternalIron = true;
        } else {
            // The skip comes before the stream is made whole, so it does
            // nothing after a failure by parsing.
            ar.seekg(beforeIrons);
            SkipLine(ar);
            ar.valid = true;
            ar.clear();
            hasExternalIron = false;
        }
    }
    return true;
}

} // namespace ItUnitechnik
