#pragma once

#include "framework/field_sink.h"
#include "records/order/order.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

// A document written in memory through an Archive with a field sink: what
// the fields did, and where each record and named field stands. Nothing is
// written to a file; the lines and columns are those the file would have.
namespace ItUnitechnik::Tool::Check {

struct Place {
    std::size_t line = 0;
    std::size_t column = 0;
};

bool operator<(const Place& a, const Place& b);

// A field event, its texts copied, with the records being written when it
// happened, the outermost first.
struct WrittenEvent {
    FieldProblem problem;
    std::string tag;
    std::string member;
    Place place;
    int width = 0;
    std::wstring value;
    std::wstring written;
    std::vector<const void*> records;
};

struct WrittenDocument {
    std::vector<WrittenEvent> events;
    // Where each record begins and where it ends (behind its last character).
    std::unordered_map<const void*, std::pair<Place, Place>> records;
    // Where each named field begins, by its record and name.
    std::map<std::pair<const void*, std::string>, Place> fields;

    std::optional<Place> RecordStart(const void* record) const;
    std::optional<Place> RecordEnd(const void* record) const;
    std::optional<Place> Field(const void* record, const std::string& member) const;
};

// Writes the orders as a document file holds them, in memory. With
// `places` false only the events are kept.
WrittenDocument WriteInMemory(std::vector<Order>& orders, bool places);

} // namespace ItUnitechnik::Tool::Check
