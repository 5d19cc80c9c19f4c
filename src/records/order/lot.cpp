#include "records/order/lot.h"

#include "framework/archive.h"
#include "framework/layout_writer.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Lot::Lot()
    : ItCollectionImpl<std::vector<Contour>>(Locate<&Lot::contourData, &ContourData::contours>),
      ItCollectionImpl<std::vector<Cutout>>(Locate<&Lot::cutoutData, &CutoutData::cutouts>)
{
}

bool Lot::Write(Archive& ar)
{
    // A lot reports success whatever the stream says.
    WriteLayout(ar, *this);
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
    if (!ReadInTurn(ar, contourData, cutoutData)) {
        return false;
    }
    SkipLine(ar);
    return ExpectLine(ar, L"END LOT_____");
}

} // namespace ItUnitechnik
