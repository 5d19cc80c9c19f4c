#pragma once

#include "records/order/order.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// The record tree as the tools compare and point into it: each entry of a
// list (an order, an element, a contour, a bar, a point of a polygon) is one
// record, with the members of the records it holds singly (a position, a
// date, the element's list records) flattened into its own under dotted
// names. Built from the one table of record_fields.h.
namespace ItUnitechnik::Tree {

// A record object and a member's name as seen from it ("x" from a point,
// "position.x" from the bar that holds the point).
using Owner = std::pair<const void*, std::string>;

struct FlatField {
    std::string name; // from its record: "orderNumber", "date.day", "curve.start.x"
    // A number as a number; a text as a JSON string without the blanks that
    // fill its field (a text read from a file holds them, one from the
    // exports does not); a character as a JSON string; true or false.
    std::string value;
    // The record objects the member lies in, the innermost first, each with
    // the member's name from there: where the writer may name the member.
    std::vector<Owner> owners;
};

struct FlatList;

struct FlatRecord {
    std::string path;              // "orders[0].elementParts[0].cutoutData.cutouts[1]"
    const void* address = nullptr; // the record object
    std::vector<FlatField> fields;
    std::vector<FlatList> lists;
    // The records it holds singly, with the prefix of their members' names:
    // (&element.contourData, "contourData").
    std::vector<Owner> nested;
};

struct FlatList {
    std::string name; // from the record that holds it: "cutoutData.cutouts"
    std::vector<FlatRecord> records;
};

// The orders as the list "orders". The records are not copied: the
// addresses are those of the objects in `orders`.
FlatList Flatten(const std::vector<Order>& orders);

// Every record of the tree by its object, singly held ones included: the
// path of the list entry it lies in and the prefix of its members there.
class RecordIndex {
public:
    explicit RecordIndex(const FlatList& orders);

    struct Where {
        std::string path;   // of the list entry
        std::string prefix; // of the record's members in that entry ("" for the entry itself)
    };
    std::optional<Where> Find(const void* record) const;

private:
    void Add(const FlatList& list);
    std::vector<std::pair<const void*, Where>> entries_; // sorted by address
};

// The value of a member as Flatten shows it, found by the path of its record
// and its name there; a list shows its length. Nothing when there is no such
// record or member (yet).
std::optional<std::string> ValueAt(const std::vector<Order>& orders, const std::string& path, const std::string& name);

// A member's name from a record further out ("position.x" from "position"
// and "x"), or a record's path and a member of it; either alone when the
// other is empty.
std::string Joined(const std::string& prefix, const std::string& name);

// A member's value as Flatten shows it: a text without the blanks around it.
std::string ShownValue(const std::wstring& text);
std::string ShownValue(double value);

} // namespace ItUnitechnik::Tree
