#pragma once

#include "framework/collection.h"
#include "framework/laid_out.h"
#include "framework/layout.h"
#include "records/reinforcement/external_iron.h"
#include "records/reinforcement/steelmat.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik {

// The reinforcement block of an element or layer, from "REFORCEM" to
// "END REFORCEM": its mats and, when a file carried them, external irons of
// its own.
class Reinforcement : public LaidOut<Reinforcement>, public ItCollectionImpl<std::vector<Steelmat>> {
public:
    Reinforcement() : ItCollectionImpl(Locate<&Reinforcement::mats>) {}

    bool Read(Archive& ar) override;

    // Makes a mat of this block's version (its bar and girder lists too),
    // fills it, numbers it as the next of the block and appends a copy. A
    // flag is set by any value but 0. Returns the mat's number.
    std::int16_t appendSteelmat(const std::wstring& name, std::int32_t firstDimension, std::int32_t secondDimension,
                                std::int32_t firstFlag, std::int32_t secondFlag, std::int32_t matKind,
                                const std::int32_t position[3]);

    std::int16_t version = 502;     // second line
    std::wstring firstText;         // third line, 10 places
    std::wstring secondText;        // 4 places
    std::wstring thirdText;         // 8 places
    std::int16_t matFlag = 0;       // last on the third line, one digit
    std::vector<Steelmat> mats;     // behind "END", each ended by this block
    ExternalIronData externalIrons; // behind the mats, when `hasExternalIrons`
    bool hasExternalIrons = false;  // set only by Read
    bool present = false;           // the block holds something
};

template <class IO>
void Layout(IO& io, Reinforcement& block)
{
    io.Tag("REFORCEM");
    io.UInt(3, block.version, "version");
    io.EndLine();

    io.Text(10, block.firstText, "firstText");
    io.Blank();
    io.Text(4, block.secondText, "secondText");
    io.Blank();
    io.Text(8, block.thirdText, "thirdText");
    io.Blank();
    io.UInt(1, block.matFlag, "matFlag");
    io.EndLine();

    io.Tag("END");
    io.TaggedLines("STEELMAT", block.mats);
    // Only a single-digit version of 5 or below leaves the irons out; a
    // reading takes them whatever the version.
    if (io.Present(block.hasExternalIrons, "EXTIRON_") && (IO::reading || block.version > 5)) {
        io.Record(block.externalIrons);
    }
    io.Tag("END REFORCEM");
}

} // namespace ItUnitechnik
