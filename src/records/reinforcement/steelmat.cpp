#include "records/reinforcement/steelmat.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Steelmat::Steelmat()
    : ItCollectionImpl<RodstockData>(Locate<&Steelmat::rodstocks>), ItCollectionImpl<BracedGirderData>(
                                                                        Locate<&Steelmat::girders>)
{
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
    if (!ReadInTurn(ar, rodstocks, girders)) {
        return false;
    }
    SkipLine(ar);
    if (!ExpectLine(ar, L"END STEELMAT")) {
        return false;
    }
    return Healthy(ar);
}

} // namespace ItUnitechnik
