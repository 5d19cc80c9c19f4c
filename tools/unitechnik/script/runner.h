#pragma once

#include "script/script.h"

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
// endDocument gives 1 even when its file cannot be made, so the tool looks
// itself: before the call it opens the file to append (which fails for a
// missing folder, a read-only file or a folder in its place, and leaves
// what is there as it is), and after the call the file must be there. When
// either fails, FileError names the call and the path, and no later call
// runs.
void RunCalls(const std::vector<Call>& calls, RunObserver& observer);

} // namespace ItUnitechnik::Tool::Script
