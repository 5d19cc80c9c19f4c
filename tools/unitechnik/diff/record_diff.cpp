#include "diff/record_diff.h"

#include <algorithm>
#include <functional>
#include <set>
#include <utility>

namespace ItUnitechnik::Tool::Diff {
namespace {

using Check::WrittenDocument;
using Tree::FlatField;
using Tree::FlatList;
using Tree::FlatRecord;

// The members that number a record in its list: a record taken out renumbers
// those behind it, which are still the same records.
bool IsRunningNumber(const std::string& name)
{
    static const std::set<std::string> names{"number",     "contourNumber", "cutoutNumber", "partNumber",
                                             "ironNumber", "layerNumber",   "lotNumber"};
    return names.count(name) > 0;
}

void Content(const FlatRecord& record, bool ownNumber, std::string& out)
{
    for (const FlatField& field : record.fields) {
        if (!ownNumber && IsRunningNumber(field.name)) {
            continue;
        }
        out += field.name;
        out += '=';
        out += field.value;
        out += ';';
    }
    for (const FlatList& list : record.lists) {
        out += list.name;
        out += '[';
        for (const FlatRecord& entry : list.records) {
            Content(entry, true, out);
            out += '|';
        }
        out += ']';
    }
}

// What a record holds, its own running number aside.
std::size_t Fingerprint(const FlatRecord& record)
{
    std::string content;
    Content(record, false, content);
    return std::hash<std::string>()(content);
}

// The entries of two lists that are the same records, in order: pairs of
// indices of a longest common run of equal fingerprints.
std::vector<std::pair<std::size_t, std::size_t>> Matches(const std::vector<std::size_t>& a,
                                                         const std::vector<std::size_t>& b)
{
    std::vector<std::pair<std::size_t, std::size_t>> matches;
    std::size_t head = 0;
    while (head < a.size() && head < b.size() && a[head] == b[head]) {
        matches.emplace_back(head, head);
        ++head;
    }
    std::size_t tail = 0;
    while (tail < a.size() - head && tail < b.size() - head && a[a.size() - 1 - tail] == b[b.size() - 1 - tail]) {
        ++tail;
    }
    const std::size_t n = a.size() - head - tail;
    const std::size_t m = b.size() - head - tail;
    // Beyond a few million cells the middle is paired by place instead.
    if (n > 0 && m > 0 && n * m <= 4000000) {
        std::vector<std::uint32_t> table((n + 1) * (m + 1), 0);
        const auto cell = [m](std::size_t i, std::size_t j) { return i * (m + 1) + j; };
        for (std::size_t i = n; i-- > 0;) {
            for (std::size_t j = m; j-- > 0;) {
                table[cell(i, j)] = a[head + i] == b[head + j] ? table[cell(i + 1, j + 1)] + 1
                                                               : std::max(table[cell(i + 1, j)], table[cell(i, j + 1)]);
            }
        }
        std::size_t i = 0;
        std::size_t j = 0;
        while (i < n && j < m) {
            if (a[head + i] == b[head + j]) {
                matches.emplace_back(head + i, head + j);
                ++i;
                ++j;
            } else if (table[cell(i + 1, j)] >= table[cell(i, j + 1)]) {
                ++i;
            } else {
                ++j;
            }
        }
    }
    for (std::size_t k = tail; k > 0; --k) {
        matches.emplace_back(a.size() - k, b.size() - k);
    }
    return matches;
}

class Comparison {
public:
    Comparison(const Side& a, const Side& b, std::vector<Change>& out) : a_(a), b_(b), out_(out) {}

    void Lists(const FlatList& a, const FlatList& b, std::size_t parentLineA, std::size_t parentLineB)
    {
        std::vector<std::size_t> printsA;
        std::vector<std::size_t> printsB;
        for (const FlatRecord& record : a.records) {
            printsA.push_back(Fingerprint(record));
        }
        for (const FlatRecord& record : b.records) {
            printsB.push_back(Fingerprint(record));
        }
        std::vector<std::pair<std::size_t, std::size_t>> matches = Matches(printsA, printsB);
        // A sentinel behind both lists closes the last gap.
        matches.emplace_back(a.records.size(), b.records.size());

        std::size_t i = 0;
        std::size_t j = 0;
        for (const auto& [nextA, nextB] : matches) {
            // Between two matches: pair what was taken out with what came in,
            // in order, as changed records; the rest is removed or added.
            while (i < nextA && j < nextB) {
                Records(a.records[i++], b.records[j++], parentLineA, parentLineB);
            }
            while (i < nextA) {
                const FlatRecord& record = a.records[i++];
                Change change;
                change.kind = Change::Kind::removed;
                change.pathA = record.path;
                change.lineA = RecordLine(a_.written, record, parentLineA);
                out_.push_back(std::move(change));
            }
            while (j < nextB) {
                const FlatRecord& record = b.records[j++];
                Change change;
                change.kind = Change::Kind::added;
                change.pathB = record.path;
                change.lineB = RecordLine(b_.written, record, parentLineB);
                out_.push_back(std::move(change));
            }
            if (nextA < a.records.size() && nextB < b.records.size()) {
                Records(a.records[i++], b.records[j++], parentLineA, parentLineB);
            }
        }
    }

private:
    void Records(const FlatRecord& a, const FlatRecord& b, std::size_t parentLineA, std::size_t parentLineB)
    {
        const std::size_t lineA = RecordLine(a_.written, a, parentLineA);
        const std::size_t lineB = RecordLine(b_.written, b, parentLineB);

        for (const FlatField& field : a.fields) {
            const FlatField* other = Find(b.fields, field.name);
            if (other == nullptr || other->value != field.value) {
                Changed(a, b, field.name, field.value, other != nullptr ? other->value : "(none)",
                        FieldLine(a_.written, field, lineA),
                        other != nullptr ? FieldLine(b_.written, *other, lineB) : lineB);
            }
        }
        for (const FlatField& field : b.fields) {
            if (Find(a.fields, field.name) == nullptr) {
                Changed(a, b, field.name, "(none)", field.value, lineA, FieldLine(b_.written, field, lineB));
            }
        }

        static const FlatList none;
        for (const FlatList& list : a.lists) {
            const FlatList* other = FindList(b.lists, list.name);
            Lists(list, other != nullptr ? *other : none, lineA, lineB);
        }
        for (const FlatList& list : b.lists) {
            if (FindList(a.lists, list.name) == nullptr) {
                Lists(none, list, lineA, lineB);
            }
        }
    }

    void Changed(const FlatRecord& a, const FlatRecord& b, const std::string& member, const std::string& oldValue,
                 const std::string& newValue, std::size_t lineA, std::size_t lineB)
    {
        Change change;
        change.kind = Change::Kind::changed;
        change.pathA = a.path;
        change.pathB = b.path;
        change.member = member;
        change.oldValue = oldValue;
        change.newValue = newValue;
        change.lineA = lineA;
        change.lineB = lineB;
        out_.push_back(std::move(change));
    }

    static const FlatField* Find(const std::vector<FlatField>& fields, const std::string& name)
    {
        for (const FlatField& field : fields) {
            if (field.name == name) {
                return &field;
            }
        }
        return nullptr;
    }

    static const FlatList* FindList(const std::vector<FlatList>& lists, const std::string& name)
    {
        for (const FlatList& list : lists) {
            if (list.name == name) {
                return &list;
            }
        }
        return nullptr;
    }

    // Where a record begins; one its list never wrote stands where its holder does.
    static std::size_t RecordLine(const WrittenDocument& written, const FlatRecord& record, std::size_t parentLine)
    {
        if (const auto place = written.RecordStart(record.address)) {
            return place->line;
        }
        return parentLine;
    }

    // Where the member is written; one the version does not write stands
    // where the innermost record holding it begins.
    static std::size_t FieldLine(const WrittenDocument& written, const FlatField& field, std::size_t recordLine)
    {
        for (const Tree::Owner& owner : field.owners) {
            if (const auto place = written.Field(owner.first, owner.second)) {
                return place->line;
            }
        }
        for (const Tree::Owner& owner : field.owners) {
            if (const auto place = written.RecordStart(owner.first)) {
                return place->line;
            }
        }
        return recordLine;
    }

    const Side& a_;
    const Side& b_;
    std::vector<Change>& out_;
};

} // namespace

std::vector<Change> Compare(const Side& a, const Side& b)
{
    std::vector<Change> changes;
    Comparison(a, b, changes).Lists(a.orders, b.orders, 1, 1);
    return changes;
}

std::string ChangeLine(const Change& change, const std::string& fileA, const std::string& fileB)
{
    const std::string placeA = fileA + ":" + std::to_string(change.lineA) + ": ";
    const std::string placeB = fileB + ":" + std::to_string(change.lineB) + ": ";
    switch (change.kind) {
    case Change::Kind::added:
        return placeB + "added " + change.pathB;
    case Change::Kind::removed:
        return placeA + "removed " + change.pathA;
    case Change::Kind::changed:
        break;
    }
    std::string line = placeA + placeB + "changed " + Tree::Joined(change.pathA, change.member) + ": " +
                       change.oldValue + " -> " + change.newValue;
    if (change.pathB != change.pathA) {
        line += " (" + Tree::Joined(change.pathB, change.member) + " in " + fileB + ")";
    }
    return line;
}

nlohmann::ordered_json ChangesJson(const std::vector<Change>& changes, const std::string& fileA,
                                   const std::string& fileB)
{
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const Change& change : changes) {
        nlohmann::ordered_json entry;
        switch (change.kind) {
        case Change::Kind::added:
            entry["change"] = "added";
            entry["path"] = change.pathB;
            entry["file"] = fileB;
            entry["line"] = change.lineB;
            break;
        case Change::Kind::removed:
            entry["change"] = "removed";
            entry["path"] = change.pathA;
            entry["file"] = fileA;
            entry["line"] = change.lineA;
            break;
        case Change::Kind::changed:
            entry["change"] = "changed";
            entry["path"] = change.pathA;
            if (change.pathB != change.pathA) {
                entry["pathB"] = change.pathB;
            }
            entry["member"] = change.member;
            // The values as the tree shows them are JSON themselves, but for
            // a double that is no number.
            for (const auto& [key, value] :
                 {std::make_pair("old", &change.oldValue), std::make_pair("new", &change.newValue)}) {
                const nlohmann::ordered_json parsed = nlohmann::ordered_json::parse(*value, nullptr, false);
                entry[key] = parsed.is_discarded() ? nlohmann::ordered_json(*value) : parsed;
            }
            entry["fileA"] = fileA;
            entry["lineA"] = change.lineA;
            entry["fileB"] = fileB;
            entry["lineB"] = change.lineB;
            break;
        }
        list.push_back(std::move(entry));
    }
    return list;
}

} // namespace ItUnitechnik::Tool::Diff
