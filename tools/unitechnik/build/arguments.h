#pragma once

#include "text/unicode.h"

#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace ItUnitechnik::Tool::Script {

// The entries of a list of blocks (the segments of a free-form bar): the
// integer fields of each block in the order of its struct.
using Records = std::vector<std::vector<std::int64_t>>;

using Value = std::variant<std::int64_t, double, bool, HostText, std::vector<HostText>, std::vector<std::int32_t>,
                           std::vector<double>, Records>;

// The values of one call by key, the field of a block as "block.field". Once
// a call is read, every key of its entry in the call table has a value, given
// in the script or by default, with its lists padded to what the export
// reads. Asking for a key that has none, or with another kind, is an error of
// the tool and throws std::logic_error.
class Arguments {
public:
    void Set(const std::string& key, Value value);

    std::int64_t Integer(const std::string& key) const;
    double Real(const std::string& key) const;
    bool Boolean(const std::string& key) const;
    const HostText& Text(const std::string& key) const;
    const std::vector<HostText>& Texts(const std::string& key) const;
    const std::vector<std::int32_t>& Integers(const std::string& key) const;
    const std::vector<double>& Reals(const std::string& key) const;
    const Records& Blocks(const std::string& key) const;

    std::vector<std::int32_t>& Integers(const std::string& key);
    Records& Blocks(const std::string& key);

private:
    template <class T>
    const T& Get(const std::string& key) const;

    std::map<std::string, Value> values_;
};

} // namespace ItUnitechnik::Tool::Script
