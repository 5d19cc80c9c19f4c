#include "build/runner.h"

#include "files/write_document.h"
#include "sub_command.h"
#include "text/unicode.h"

#include <optional>
#include <string>

namespace ItUnitechnik::Tool::Script {

void RunCalls(const std::vector<Call>& calls, RunObserver& observer)
{
    for (const Call& call : calls) {
        const char* pathKey = call.callEntry->pathKey;
        if (pathKey == nullptr) {
            observer.Called(call, call.callEntry->invoke(call.arguments));
            continue;
        }
        // The document goes to a temporary beside its file and takes the
        // file's place when it is whole.
        const std::string path = HostToUtf8(call.arguments.Text(pathKey));
        std::optional<Outcome> outcome;
        const bool wrote = WriteDocumentFile(path, [&](const std::string& file) {
            const std::optional<HostText> text = Utf8ToHost(file);
            if (!text) {
                return false;
            }
            Arguments arguments = call.arguments;
            arguments.Set(pathKey, *text);
            outcome = call.callEntry->invoke(arguments);
            // 0 is a stream that was unhealthy from the start; 1 says nothing,
            // so WriteDocumentFile looks for the file.
            return !(outcome->result && *outcome->result == 0);
        });
        if (outcome) {
            observer.Called(call, *outcome);
        }
        if (!wrote) {
            throw FileError("call " + std::to_string(call.index) + " (" + call.callEntry->name + "): cannot write \"" +
                            path + "\"");
        }
        observer.Wrote(path);
    }
}

} // namespace ItUnitechnik::Tool::Script
