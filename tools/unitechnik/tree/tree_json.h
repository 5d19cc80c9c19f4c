#pragma once

#include "records/order/order.h"

#include <nlohmann/json.hpp>

#include <stdexcept>
#include <string>
#include <vector>

// The record tree as JSON and back: every member of every record under its
// own name (the table of record_fields.h), so that a document dumped and built
// again writes the same bytes.
namespace ItUnitechnik::Tree {

// A document's JSON that does not fit the records: the path of the value
// ("orders[0].elementParts[0].thickness") and what is wrong with it.
class TreeError : public std::runtime_error {
public:
    TreeError(const std::string& path, const std::string& message);
    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

// {"orders": [...]}: each order with every member; texts as UTF-8, characters
// as strings of one character, a double that is no number as "nan", "-nan",
// "inf" or "-inf".
nlohmann::ordered_json ToJson(const std::vector<Order>& orders);

// The orders of such a document. A member that is missing keeps the record's
// default; an unknown member, a value of the wrong type or out of its
// member's range is a TreeError.
std::vector<Order> FromJson(const nlohmann::json& document);

} // namespace ItUnitechnik::Tree
