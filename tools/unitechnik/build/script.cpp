#include "build/script.h"

#include "build/call_reader.h"
#include "build/script_messages.h"
#include "sub_command.h"
#include "text/quoted.h"

#include <string>
#include <utility>

namespace ItUnitechnik::Tool::Script {

using nlohmann::json;

std::vector<Call> ReadCalls(const json& script)
{
    if (!script.is_object()) {
        throw BadInput("expected an object with \"calls\", found " + Found(script));
    }
    for (const auto& [key, value] : script.items()) {
        if (key != "calls") {
            throw BadInput("unknown key " + Quoted(key) + " (a call script holds \"calls\" only)");
        }
    }
    const auto found = script.find("calls");
    if (found == script.end()) {
        throw BadInput("the key \"calls\" is missing");
    }
    if (!found->is_array()) {
        throw BadInput("key \"calls\": expected an array, found " + Found(*found));
    }

    std::vector<Call> calls;
    std::int64_t paddingLeft = kMostPadding;
    for (std::size_t index = 0; index < found->size(); ++index) {
        const json& call = (*found)[index];
        const std::string place = "call " + std::to_string(index);
        if (!call.is_object()) {
            throw BadInput(place + ": expected an object, found " + Found(call));
        }
        const auto name = call.find("call");
        if (name == call.end()) {
            throw BadInput(place + ": the key \"call\" is missing");
        }
        if (!name->is_string()) {
            throw BadInput(place + ", key \"call\": expected a string, found " + Found(*name));
        }
        const std::string& callName = name->get_ref<const std::string&>();
        if (callName == kFreeCall) {
            std::string message = place + ": ";
            message += callName;
            message += " is no call of a script: the tool gives every result of getFullReinforcementString back "
                       "through it itself";
            throw BadInput(message);
        }
        const CallSpec* callEntry = FindCall(callName);
        if (callEntry == nullptr) {
            throw BadInput(place + ": unknown call " + Quoted(callName));
        }
        CallReader reader(index, *callEntry, paddingLeft);
        Arguments arguments = reader.Read(call);
        calls.push_back(Call{index, callEntry, std::move(arguments), reader.TakePadded()});
    }
    return calls;
}

void RedirectLastDocument(std::vector<Call>& calls, const std::string& path)
{
    const std::optional<HostText> text = Utf8ToHost(path);
    if (!text || text->empty()) {
        throw BadInput("-o: \"" + path + "\" is no file name");
    }
    for (auto call = calls.rbegin(); call != calls.rend(); ++call) {
        if (call->callEntry->pathKey != nullptr) {
            call->arguments.Set(call->callEntry->pathKey, *text);
            return;
        }
    }
    const CallSpec* end = FindCall("endDocument");
    Arguments arguments;
    arguments.Set(end->pathKey, *text);
    calls.push_back(Call{calls.size(), end, std::move(arguments), {}});
}

void CheckPaths(const std::vector<Call>& calls)
{
    for (const Call& call : calls) {
        if (call.callEntry->pathKey != nullptr && call.arguments.Text(call.callEntry->pathKey).empty()) {
            throw BadInput(KeyPlace(call.index, call.callEntry->name, call.callEntry->pathKey) +
                           ": no file name (give one, or -o FILE for the last endDocument)");
        }
    }
}

} // namespace ItUnitechnik::Tool::Script
