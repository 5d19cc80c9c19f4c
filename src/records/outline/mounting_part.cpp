#include "records/outline/mounting_part.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/list_record.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

MountingPart::MountingPart(std::int16_t formatVersion)
    : ItCollectionImpl([](auto& self) -> auto& { return static_cast<MountingPart&>(self).geoData; }),
      version(formatVersion)
{
}

bool MountingPart::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    // Line 1.
    ar << UInt(version < 502 ? 2 : 3, partNumber, "partNumber");
    ar << Blank;
    ar << Char(partKind, "partKind");
    ar << UInt(2, partSubCode, "partSubCode");
    ar << Blank;
    ar << Literal("000");
    ar << Blank;
    ar << Text(10, partCode, "partCode");
    ar << Blank;
    ar << Text(40, partName, "partName");
    ar << EndLine;
    // Lines 2 and 3 stand at the right end of their places.
    if (version >= 600) {
        ar << RText(20, partText1, Adjust::right, "partText1");
        ar << EndLine;
        ar << RText(20, partText2, Adjust::right, "partText2");
        ar << EndLine;
    }
    // Last line.
    ar << Real(2, 3, partArea, "partArea");
    ar << Blank;
    ar << UInt(3, setValue1, "setValue1");
    ar << Blank;
    if (version >= 600) {
        ar << SInt(5, position.x, "position.x");
        ar << Blank;
        ar << SInt(5, position.y, "position.y");
        ar << Blank;
        ar << SInt(5, setValue2, "setValue2");
    } else {
        ar << UInt(3, setValue2, "setValue2");
    }
    ar << Blank;
    ar << UInt(4, partValue1, "partValue1");
    ar << Blank;
    ar << UInt(3, partValue2, "partValue2");
    ar << Blank;
    ar << UInt(5, partWidth, "partWidth");
    ar << Blank;
    ar << UInt(5, partHeight, "partHeight");
    ar << Blank;
    WritePieces(ar, geoData);
    return Healthy(ar);
}

bool MountingPart::Read(Archive& ar)
{
    ar >> partNumber;
    ar >> partKind;
    ar >> partSubCode;
    std::wstring filler;
    SkipChar(ar);
    GetText(ar, 3, filler);
    SkipChar(ar);
    GetText(ar, 10, partCode);
    SkipChar(ar);
    partName = ReadLine(ar);
    if (version >= 600) {
        partText1 = ReadLine(ar);
        partText2 = ReadLine(ar);
    }
    ar >> partArea >> setValue1;
    if (version >= 600) {
        ar >> position.x >> position.y;
    }
    ar >> setValue2 >> partValue1 >> partValue2 >> partWidth >> partHeight;
    std::int32_t count = 0;
    ar >> count;
    ReadElements(
        ar, count, [&] { return GeoData(version); }, geoData);
    // Without elements this takes the rest of the count's line. Behind a line
    // or polygon element it drops the following line whole.
    SkipLine(ar);
    return Healthy(ar);
}

MountingPartData::MountingPartData()
    : ItCollectionImpl([](auto& self) -> auto& { return static_cast<MountingPartData&>(self).parts; })
{
}

bool MountingPartData::Write(Archive& ar)
{
    return WriteList(ar, this, version, {"MOUNPART", version < 502 ? 2 : 3, "parts"}, parts);
}

bool MountingPartData::Read(Archive& ar)
{
    return ReadList(
        ar, L"MOUNPART", version, [&] { return MountingPart(version); }, parts);
}

} // namespace ItUnitechnik
