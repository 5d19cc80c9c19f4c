#pragma once

#include "build/script.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace ItUnitechnik::Tool::Script {

// Reads the keys of one call against its entry in the call table.
class CallReader {
public:
    CallReader(std::size_t index, const CallSpec& callEntry, std::int64_t& paddingLeft);

    Arguments Read(const nlohmann::json& call);

    // The lists that Read padded behind a count the script gave.
    std::vector<Padding> TakePadded();

private:
    [[noreturn]] void FailCall(const std::string& reason) const;

    [[noreturn]] void Fail(const std::string& key, const std::string& reason) const;

    static const KeySpec* FindKey(const std::vector<KeySpec>& keys, const std::string& name);

    // The callEntry of a key path such as "block.pointCount".
    const KeySpec& SpecOf(const std::string& path) const;

    std::int64_t ReadInteger(const IntegerType& type, const nlohmann::json& value, const std::string& path) const;

    HostText ReadText(const nlohmann::json& value, const std::string& path) const;

    void ReadKey(const KeySpec& key, const nlohmann::json& value, const std::string& path, Arguments& arguments);

    // A missing key is zero, an empty text or false; a list of a fixed
    // length is that many zeros.
    static void SetDefault(const KeySpec& key, const std::string& path, Arguments& arguments);

    std::int64_t ListLength(const CountedList& counted, const Arguments& arguments) const;

    // A missing count is the length of its list; a list shorter than what
    // the export reads for the count is padded with zeros.
    void Count(const CountedList& counted, Arguments& arguments);

    std::size_t index_;
    const CallSpec& spec_;
    std::int64_t& paddingLeft_;
    std::set<std::string> given_;
    std::vector<Padding> padded_;
};

} // namespace ItUnitechnik::Tool::Script
