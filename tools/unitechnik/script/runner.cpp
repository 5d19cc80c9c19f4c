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
        if (call.spec->pathKey != nullptr) {
            path = HostToUtf8(call.arguments.Text(call.spec->pathKey));
            writable = CanWriteFile(*path);
        }
        const Outcome outcome = call.spec->invoke(call.arguments);
        observer.Called(call, outcome);
        if (path) {
            if (!writable || !FileIsThere(*path)) {
                throw FileError("call " + std::to_string(call.index) + " (" + call.spec->name + "): cannot write \""
                                + *path + "\"");
            }
            observer.Wrote(*path);
        }
    }
}

} // namespace ItUnitechnik::Tool::Script
