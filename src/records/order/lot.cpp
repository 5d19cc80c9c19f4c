#include "records/order/lot.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Lot::Lot()
    : ItCollectionImpl<std::vector<Contour>>(
          [](auto& self) -> auto& { return static_cast<Lot&>(self).contourData.contours; }),
      ItCollectionImpl<std::vector<Cutout>>(
          [](auto& self) -> auto& { return static_cast<Lot&>(self).cutoutData.cutouts; })
{
}

bool Lot::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << Tag("LOT_____");
    ar << UInt(3, version, "version");
    ar << EndLine;

    ar << UInt(2, lotNumber, "lotNumber");
    ar << Blank;
    if (version < 600) {
        ar << Text(8, lotText, "lotText");
    } else {
        ar << Text(20, lotText, "lotText");
    }
    ar << Blank;
    ar << Real(1, 3, lotReal1, "lotReal1");
    ar << Blank;
    ar << Text(2, lotCode2, "lotCode2");
    ar << Blank;
    ar << Real(2, 3, lotReal2, "lotReal2");
    ar << Blank;
    ar << UInt(6, lotValue1, "lotValue1");
    ar << Blank;
    ar << UInt(6, lotValue2, "lotValue2");
    ar << Blank;
    ar << UInt(6, lotValue3, "lotValue3");
    ar << Blank;
    ar << UInt(3, lotValue4, "lotValue4");
    if (version >= 600) {
        ar << Blank;
        ar << Text(20, lotText20, "lotText20");
    }
    ar << EndLine;

    ar << Tag("END");
    contourData.Write(ar);
    cutoutData.Write(ar);
    ar << Tag("END LOT_____");
    return true;
}

bool Lot::Read(Archive& ar)
{
    if (!ExpectToken(ar, L"LOT_____")) {
        return false;
    }
    ar >> version;
    ar >> lotNumber;
    SkipChar(ar);
    GetText(ar, version < 600 ? 8 : 20, lotText);
    ar >> lotReal1;
    SkipChar(ar);
    GetText(ar, 2, lotCode2);
    SkipChar(ar);
    ar >> lotReal2;
    ar >> lotValue1 >> lotValue2 >> lotValue3 >> lotValue4;
    if (version >= 600) {
        // No skip before it: the blank in front is the text's first
        // character, and the field's last one stays in the stream.
        GetText(ar, 20, lotText20);
    }
    if (!ExpectToken(ar, L"END")) {
        return false;
    }
    contourData.Read(ar);
    if (!Healthy(ar)) {
        return false;
    }
    cutoutData.Read(ar);
    if (!Healthy(ar)) {
        return false;
    }
    SkipLine(ar);
    if (!ExpectLine(ar, L"END LOT_____")) {
        return false;
    }
    return true;
}

} // namespace ItUnitechnik
