#include "reference/doc_tables.h"

#include "build/call_table.h"
#include "findings/findings.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ItUnitechnik::Tool::Reference {
namespace {

using Script::KeySpec;
using Script::ValueKind;

// A name as Markdown code.
std::string InBackticks(const std::string& name)
{
    return "`" + name + "`";
}

// "uint16_t" is written uint16.
std::string TypeName(const Script::IntegerType& type)
{
    std::string name = type.name;
    if (name.size() > 2 && name.compare(name.size() - 2, 2, "_t") == 0) {
        name.resize(name.size() - 2);
    }
    return name;
}

std::string Keys(const std::vector<KeySpec>& keys, const char* separator);

// What a key holds, after its name: "int32", "9 numbers", "{...}".
std::string KindText(const KeySpec& key)
{
    switch (key.kind) {
    case ValueKind::Integer:
        return TypeName(*key.type);
    case ValueKind::Real:
        return "number";
    case ValueKind::Boolean:
        return "true/false";
    case ValueKind::Text:
        return "text";
    case ValueKind::Texts:
        return "up to " + std::to_string(key.length) + " texts";
    case ValueKind::Integers:
        return key.length > 0 ? std::to_string(key.length) + " integers" : "integers";
    case ValueKind::Reals:
        return key.length > 0 ? std::to_string(key.length) + " numbers" : "numbers";
    case ValueKind::Block:
        return "{" + Keys(key.fields, "; ") + "}";
    case ValueKind::Blocks:
        return "[{" + Keys(key.fields, "; ") + "}, ...]";
    }
    return "";
}

// The keys in their order, those of one kind next to each other named
// together: "`thickness`, `secondThickness` int32".
std::string Keys(const std::vector<KeySpec>& keys, const char* separator)
{
    std::string text;
    std::size_t i = 0;
    while (i < keys.size()) {
        const std::string kind = KindText(keys[i]);
        const bool groups = keys[i].kind != ValueKind::Block && keys[i].kind != ValueKind::Blocks;
        std::string names = InBackticks(keys[i].name);
        std::size_t next = i + 1;
        while (groups && next < keys.size() && KindText(keys[next]) == kind) {
            names += ", " + InBackticks(keys[next].name);
            ++next;
        }
        text += text.empty() ? "" : separator;
        text += names;
        text += " ";
        text += kind;
        i = next;
    }
    return text.empty() ? "none" : text;
}

std::string Notes(const Script::CallSpec& call)
{
    std::vector<std::string> notes;
    for (const Script::CountedList& counted : call.counted) {
        std::string note = InBackticks(counted.count) + " counts " + InBackticks(counted.list);
        if (counted.entriesPerUnit > 1) {
            // "points" counted, "2 integers a point".
            std::string unit = counted.unitName;
            if (!unit.empty() && unit.back() == 's') {
                unit.pop_back();
            }
            note += ", " + std::to_string(counted.entriesPerUnit) + " " + counted.entryName + " a " + unit;
        }
        notes.push_back(note);
    }
    if (call.pathKey != nullptr) {
        notes.push_back(InBackticks(call.pathKey) + " names the file it writes");
    }
    if (call.check != nullptr) {
        notes.emplace_back("checked before the first call runs");
    }
    std::string text;
    for (const std::string& note : notes) {
        text += (text.empty() ? "" : "; ") + note;
    }
    return text;
}

} // namespace

std::string CallsTable()
{
    std::string table = "| Call | Keys and their types | Counts, files, checks |\n|---|---|---|\n";
    for (const Script::CallSpec& call : Script::CallTable()) {
        const std::string notes = Notes(call);
        table += "| " + InBackticks(call.name) + " | " + Keys(call.keys, ", ") + " |" +
                 (notes.empty() ? "" : " " + notes) + " |\n";
    }
    return table;
}

std::string CodeList()
{
    // KnownCodes lists them as "UT101 text-cut, UT102 number-too-wide, ...".
    const std::string known = Check::KnownCodes();
    std::string list;
    std::size_t start = 0;
    while (start < known.size()) {
        std::size_t end = known.find(", ", start);
        if (end == std::string::npos) {
            end = known.size();
        }
        list += known.substr(start, end - start) + "\n";
        start = end + 2;
    }
    return list;
}

} // namespace ItUnitechnik::Tool::Reference
