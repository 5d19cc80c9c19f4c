#include "records/reinforcement/reinforcement.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

std::int16_t Reinforcement::appendSteelmat(const std::wstring& name, std::int32_t firstDimension,
                                           std::int32_t secondDimension, std::int32_t firstFlag,
                                           std::int32_t secondFlag, std::int32_t matKind,
                                           const std::int32_t position[3])
{
    Steelmat mat;
    mat.version = version;
    mat.rodstocks.version = version;
    mat.girders.version = version;
    mat.name = name;
    mat.firstDimension = firstDimension;
    mat.secondDimension = secondDimension;
    mat.firstFlag = firstFlag != 0;
    mat.secondFlag = secondFlag != 0;
    mat.matKind = matKind;
    mat.positionX = position[0];
    mat.positionY = position[1];
    mat.positionZ = position[2];
    mat.number = static_cast<std::int16_t>(mats.size() + 1);
    Add(mat);
    return mat.number;
}

bool Reinforcement::Read(Archive& ar)
{
    if (!ExpectToken(ar, L"REFORCEM")) {
        return false;
    }
    ar >> version;
    SkipLine(ar);

    GetText(ar, 10, firstText);
    SkipChar(ar);
    GetText(ar, 4, secondText);
    SkipChar(ar);
    GetText(ar, 8, thirdText);
    SkipChar(ar);
    ar >> matFlag;

    if (!ExpectToken(ar, L"END")) {
        return false;
    }
    SkipLine(ar);

    // The mats run up to the first thing that is no mat; that is no failure
    // of the block.
    ReadWhileThere(ar, mats);
    hasExternalIrons = ReadOrRewind(ar, externalIrons);

    // The same steps with or without irons. After a rewind the stream stands
    // at the closing line itself, which the skip then drops: a block without
    // irons reads only when a second closing line follows.
    SkipLine(ar);
    if (!ExpectLine(ar, L"END REFORCEM")) {
        return false;
    }
    present = true;
    return Healthy(ar);
}

} // namespace ItUnitechnik
