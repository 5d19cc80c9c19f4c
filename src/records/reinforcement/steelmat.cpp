#include "records/reinforcement/steelmat.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Steelmat::Steelmat()
    : ItCollectionImpl<RodstockData>([](auto& self) -> auto& { return static_cast<Steelmat&>(self).rodstocks; }),
      ItCollectionImpl<BracedGirderData>([](auto& self) -> auto& { return static_cast<Steelmat&>(self).girders; })
{
}

bool Steelmat::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << Tag("STEELMAT");
    ar << UInt(3, version, "version");
    ar << EndLine;

    ar << UInt(2, number, "number");
    ar << Blank;
    ar << SInt(5, positionX, "positionX");
    ar << Blank;
    ar << SInt(5, positionY, "positionY");
    ar << Blank;
    ar << SInt(5, positionZ, "positionZ");
    ar << Blank;
    ar << UInt(1, static_cast<int>(firstFlag), "firstFlag");
    ar << Blank;
    ar << UInt(1, static_cast<int>(secondFlag), "secondFlag");
    ar << Blank;
    // The digit before it leaves the stream right-aligned: a short name stands
    // at the right end of its places.
    ar << RText(20, name, "name");
    ar << Blank;
    ar << UInt(5, firstDimension, "firstDimension");
    ar << Blank;
    ar << UInt(5, secondDimension, "secondDimension");
    ar << Blank;
    ar << UInt(1, static_cast<std::int16_t>(matKind), "matKind");
    ar << EndLine;

    if (version >= 600) {
        ar << Text(20, extraTextA, "extraTextA");
        ar << EndLine;
        ar << Text(20, extraTextB, "extraTextB");
        ar << EndLine;
    }
    ar << Tag("END");

    rodstocks.Write(ar);
    girders.Write(ar);
    // The enclosing block ends this line.
    ar << Literal("END STEELMAT");
    return Healthy(ar);
}

bool Steelmat::Read(Archive& ar)
{
    if (!ExpectToken(ar, L"STEELMAT")) {
        return false;
    }
    ar >> version >> number >> positionX >> positionY >> positionZ >> firstFlag >> secondFlag;
    SkipChar(ar);
    GetText(ar, 20, name);
    ar >> firstDimension >> secondDimension >> matKind;
    // The version just read decides, not the block's.
    if (version >= 600) {
        SkipLine(ar);
        GetText(ar, 20, extraTextA);
        SkipLine(ar);
        GetText(ar, 20, extraTextB);
    }
    if (!ExpectToken(ar, L"END")) {
        return false;
    }
    rodstocks.Read(ar);
    if (!Healthy(ar)) {
        return false;
    }
    girders.Read(ar);
    if (!Healthy(ar)) {
        return false;
    }
    SkipLine(ar);
    if (!ExpectLine(ar, L"END STEELMAT")) {
        return false;
    }
    return Healthy(ar);
}

} // namespace ItUnitechnik
