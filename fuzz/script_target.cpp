// The tool's call scripts on the fuzzer's bytes as the bytes of a script file:
// parsed and checked as `unitechnik build` does, then run through the
// exports, every file a call would write going to /dev/null. A script the
// tool refuses is refused with BadInput; any other exception is a finding,
// since the tool would then end without telling the user what is wrong.
#include "build/call_table.h"
#include "build/script.h"
#include "exports/document.h"
#include "input/json_input.h"
#include "sub_command.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ItUnitechnik::Tool;
    std::vector<Script::Call> calls;
    try {
        calls = Script::ReadCalls(ParseJsonText(std::string(reinterpret_cast<const char*>(data), size)));
        Script::RedirectLastDocument(calls, "/dev/null");
        Script::CheckPaths(calls);
    } catch (const BadInput&) {
        return 0;
    }
    const HostText nowhere = *Utf8ToHost("/dev/null");
    ItUnitechnik::theDocument.orders.clear();
    for (Script::Call& call : calls) {
        if (call.callEntry->pathKey != nullptr) {
            call.arguments.Set(call.callEntry->pathKey, nowhere);
        }
        call.callEntry->invoke(call.arguments);
    }
    Script::TakeFullReinforcementString();
    ItUnitechnik::theDocument.orders.clear();
    return 0;
}
