#pragma once

#include "build/script.h"

#include <string>
#include <vector>

namespace ItUnitechnik::Tool::Script {

// What a run shows to the sub-command that started it.
class RunObserver {
public:
    virtual ~RunObserver() = default;
    // Right after each call, with what it gave back.
    virtual void Called(const Call& call, const Outcome& outcome) = 0;
    // After a call that wrote its file.
    virtual void Wrote(const std::string& path) = 0;
};

// Runs the calls through the library's exports, in order, in this process.
//
// A call that writes a file writes it whole or not at all (WriteWholeFile):
// the export is given a temporary beside the file, which is renamed into
// place. endDocument gives 1 even when its file cannot be made, so the tool
// looks itself: the temporary must be made (which fails for a missing folder
// or a file that may not be written, and the export is not called then), the
// export must not give 0, the file must be there, and the rename must go
// through (which fails for a folder in its place). When any of it fails,
// FileError names the call and the path, what stood at the path is as it
// was, and no later call runs.
void RunCalls(const std::vector<Call>& calls, RunObserver& observer);

} // namespace ItUnitechnik::Tool::Script
