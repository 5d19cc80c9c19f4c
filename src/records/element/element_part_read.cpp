// The reading of an element: its lines, then its layers or its outline and
// reinforcement records, each optional from 600 on.
#include "records/element/element_part.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"

#include <locale>
#include <sstream>

namespace ItUnitechnik {

bool ElementPart::ReadOptional(Archive& ar, Serializable& record) const
{
    if (version < 600) {
        record.Read(ar);
        return Healthy(ar);
    }
    ReadOrRewind(ar, record);
    return true;
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
        ReadElements(
            ar, count, [&] { return ConcreteLayer(version); }, concreteLayers);
        SkipLine(ar);
    }

    // Line C. The optional pair is there when the line goes on behind the
    // tenth value.
    ar >> extentX >> extentY >> valueC1 >> valueC2 >> valueC3 >> valueC4 >> valueC5 >> valueC6 >> valueC7 >> valueC8;
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
        ReadWhileThere(ar, layers);
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
    if (!ReadOrRewind(ar, reinforcement)) {
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
