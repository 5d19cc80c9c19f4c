#include "check/script_check.h"

#include "build/script.h"
#include "check/call_places.h"
#include "exports/document.h"
#include "findings/record_findings.h"
#include "input/json_input.h"
#include "sub_command.h"
#include "text/quoted.h"
#include "tree/flat_records.h"
#include "tree/written_places.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <utility>

namespace ItUnitechnik::Tool::Check {
namespace {

using Script::Call;

// The key of a call whose value is the member's, as the tree shows both; the
// first in the order of the call's keys.
class KeyFinder {
public:
    explicit KeyFinder(const std::string& shown) : shown_(shown) {}

    std::optional<std::string> In(const Call& call)
    {
        for (const Script::KeySpec& key : call.callEntry->keys) {
            Key(call.arguments, key, key.name);
            if (found_) {
                break;
            }
        }
        return found_;
    }

private:
    void Key(const Script::Arguments& arguments, const Script::KeySpec& key, const std::string& path)
    {
        using Script::ValueKind;
        switch (key.kind) {
        case ValueKind::Integer:
            Try(std::to_string(arguments.Integer(path)), path);
            break;
        case ValueKind::Real:
            Try(Tree::ShownValue(arguments.Real(path)), path);
            break;
        case ValueKind::Text:
            Try(Tree::ShownValue(Wide(arguments.Text(path))), path);
            break;
        case ValueKind::Texts: {
            const std::vector<HostText>& texts = arguments.Texts(path);
            for (std::size_t i = 0; i < texts.size() && !found_; ++i) {
                Try(Tree::ShownValue(Wide(texts[i])), path + "[" + std::to_string(i) + "]");
            }
            break;
        }
        case ValueKind::Integers: {
            const std::vector<std::int32_t>& integers = arguments.Integers(path);
            for (std::size_t i = 0; i < integers.size() && !found_; ++i) {
                Try(std::to_string(integers[i]), path + "[" + std::to_string(i) + "]");
            }
            break;
        }
        case ValueKind::Reals: {
            const std::vector<double>& reals = arguments.Reals(path);
            for (std::size_t i = 0; i < reals.size() && !found_; ++i) {
                Try(Tree::ShownValue(reals[i]), path + "[" + std::to_string(i) + "]");
            }
            break;
        }
        case ValueKind::Boolean:
            break;
        case ValueKind::Block:
            for (const Script::KeySpec& field : key.fields) {
                if (!found_) {
                    Key(arguments, field, path + "." + field.name);
                }
            }
            break;
        case ValueKind::Blocks: {
            const Script::Records& blocks = arguments.Blocks(path);
            for (std::size_t i = 0; i < blocks.size() && !found_; ++i) {
                for (std::size_t f = 0; f < blocks[i].size() && f < key.fields.size() && !found_; ++f) {
                    Try(std::to_string(blocks[i][f]), path + "[" + std::to_string(i) + "]." + key.fields[f].name);
                }
            }
            break;
        }
        }
    }

    void Try(const std::string& value, const std::string& path)
    {
        if (!found_ && value == shown_) {
            found_ = path;
        }
    }

    const std::string& shown_;
    std::optional<std::string> found_;
};

std::string CallPlace(const Call& call)
{
    return "call " + std::to_string(call.index) + " (" + call.callEntry->name + ")";
}

// A finding of a document written at a checkpoint (an endDocument, or the
// script's end), still to be given its call.
struct Pending {
    std::size_t checkpoint;
    RecordFinding finding;
};

using Watched = std::pair<std::string, std::string>; // the path of a record, a member's name

class ScriptCheck {
public:
    ScriptCheck(const std::string& path, const std::string& text) : path_(path)
    {
        try {
            const nlohmann::json input = ParseJsonText(text);
            if (input.is_object() && input.contains("document")) {
                throw BadInput("a dumped document is no call script: check the file it was dumped from");
            }
            calls_ = Script::ReadCalls(input);
        } catch (const BadInput& e) {
            throw BadInput(path + ": " + e.what());
        }
        places_ = CallPlaces(text);
    }

    std::vector<Finding> Run()
    {
        Counts();
        FirstRun();
        if (!pending_.empty()) {
            SecondRun();
        }
        theDocument.orders.clear();
        std::stable_sort(findings_.begin(), findings_.end(), [](const Finding& a, const Finding& b) {
            return std::tie(a.line, a.column) < std::tie(b.line, b.column);
        });
        return std::move(findings_);
    }

private:
    static bool WritesFile(const Call& call) { return call.callEntry->pathKey != nullptr; }

    Place PlaceOfCall(std::size_t index) const { return index < places_.size() ? places_[index] : Place{1, 1}; }

    void Add(const Call& call, Code code, const std::string& message, nlohmann::ordered_json details)
    {
        const Place place = PlaceOfCall(call.index);
        if (!told_.insert(std::make_tuple(call.index, code, message)).second) {
            return; // the same at a later endDocument
        }
        Finding finding;
        finding.path = path_;
        finding.line = place.line;
        finding.column = place.column;
        finding.code = code;
        finding.message = message;
        finding.details["call"] = call.index;
        finding.details["function"] = call.callEntry->name;
        for (auto& [key, value] : details.items()) {
            finding.details[key] = std::move(value);
        }
        findings_.push_back(std::move(finding));
    }

    // UT105: known from the script alone.
    void Counts()
    {
        for (const Call& call : calls_) {
            for (const Script::Padding& padding : call.padded) {
                const Script::CountedList& counted = *padding.counted;
                const std::int64_t zeros = padding.reads - padding.length;
                nlohmann::ordered_json details;
                details["key"] = counted.count;
                Add(call, Code::countBeyondData,
                    CallPlace(call) + ", key " + Quoted(counted.count) + ": " + std::to_string(padding.count) + " " +
                        counted.unitName + " make " + call.callEntry->name + " read " + std::to_string(padding.reads) +
                        " " + counted.entryName + " of " + Quoted(counted.list) + ", which holds " +
                        std::to_string(padding.length) + ": the library reads " + std::to_string(zeros) +
                        (zeros == 1 ? " zero" : " zeros") + " behind them",
                    std::move(details));
            }
        }
    }

    // The calls run; at each checkpoint the document is written in memory
    // and what it shows is kept.
    void FirstRun()
    {
        theDocument.orders.clear();
        bool wrote = false;
        for (const Call& call : calls_) {
            if (WritesFile(call)) {
                Checkpoint(call.index);
                wrote = true;
            } else {
                call.callEntry->invoke(call.arguments);
            }
        }
        if (!wrote && !calls_.empty()) {
            // As build -o adds an endDocument behind the last call.
            Checkpoint(calls_.back().index);
        }
    }

    void Checkpoint(std::size_t index)
    {
        checkpoints_.insert(index);
        const WrittenDocument written = WriteInMemory(theDocument.orders, true);
        const Tree::FlatList flat = Tree::Flatten(theDocument.orders);
        const Tree::RecordIndex records(flat);
        for (RecordFinding& finding : FieldFindings(written, records)) {
            pending_.push_back(Pending{index, std::move(finding)});
        }
        for (RecordFinding& finding : TreeFindings(theDocument.orders, records)) {
            finding.written = PlaceOf(finding, written);
            pending_.push_back(Pending{index, std::move(finding)});
        }
    }

    // The calls run again, and after each the members of the findings are
    // looked at: a finding is told at the last call that changed its member
    // before its checkpoint.
    void SecondRun()
    {
        std::map<Watched, std::pair<std::optional<std::string>, std::optional<std::size_t>>> watched;
        for (const Pending& pending : pending_) {
            if (!pending.finding.path.empty()) {
                watched[{pending.finding.path, pending.finding.name}];
            }
        }
        theDocument.orders.clear();
        for (const Call& call : calls_) {
            if (!WritesFile(call)) {
                call.callEntry->invoke(call.arguments);
            }
            for (auto& [key, seen] : watched) {
                std::optional<std::string> value = Tree::ValueAt(theDocument.orders, key.first, key.second);
                if (value != seen.first) {
                    seen.first = std::move(value);
                    seen.second = call.index;
                }
            }
            if (checkpoints_.count(call.index) > 0) {
                for (const Pending& pending : pending_) {
                    if (pending.checkpoint == call.index) {
                        Tell(pending.finding, watched, call);
                    }
                }
            }
        }
    }

    template <class Watch>
    void Tell(const RecordFinding& finding, const Watch& watched, const Call& checkpoint)
    {
        const Call* call = &checkpoint;
        std::optional<std::string> value;
        const auto seen = watched.find(Watched{finding.path, finding.name});
        if (seen != watched.end()) {
            value = seen->second.first;
            if (seen->second.second) {
                call = &calls_[*seen->second.second];
            }
        }
        std::optional<std::string> key;
        if (value && !finding.list && finding.keyed) {
            key = KeyFinder(*value).In(*call);
        }
        std::string message = CallPlace(*call);
        nlohmann::ordered_json details;
        if (key) {
            message += ", key " + Quoted(*key);
            details["key"] = *key;
        }
        message += ": " + finding.message;
        if (finding.written) {
            message += " (line " + std::to_string(finding.written->line) + ", column " +
                       std::to_string(finding.written->column) + " of the file)";
            details["fileLine"] = finding.written->line;
            details["fileColumn"] = finding.written->column;
        }
        details["record"] = finding.path;
        if (!finding.whole) {
            details["member"] = finding.name;
        }
        Add(*call, finding.code, message, std::move(details));
    }

    std::string path_;
    std::vector<Call> calls_;
    std::vector<Place> places_;
    std::set<std::size_t> checkpoints_;
    std::vector<Pending> pending_;
    std::set<std::tuple<std::size_t, Code, std::string>> told_;
    std::vector<Finding> findings_;
};

} // namespace

std::vector<Finding> CheckScript(const std::string& path, const std::string& text)
{
    return ScriptCheck(path, text).Run();
}

} // namespace ItUnitechnik::Tool::Check
