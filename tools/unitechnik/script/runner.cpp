#include "script/runner.h"

#include "files.h"
#include "sub_command.h"

#include <optional>

namespace ItUnitechnik::Tool::Script {

void RunCalls(const std::vector<Call>& calls, RunObserver& observer)
{
    for (const Call& call : calls) {
        std::optional<std::string> path;
        bool writable = true;
        if (call.callEntry->pathKey != nullptr) {
            path = HostToUtf8(call.arguments.Text(call.callEntry->pathKey));
            writable = CanWriteFile(*path);
        }
        const Outcome outcome = call.callEntry->invoke(call.arguments);
        observer.Called(call, outcome);
        if (path) {
            if (!writable || !FileIsThere(*path)) {
                throw FileError("call " + std::to_string(call.index) + " (" + call.callEntry->name +
                                "): cannot write \"" + *path + "\"");
            }
            observer.Wrote(*path);
        }
    }
}

} // namespace ItUnitechnik::Tool::Script
