#include "build/script_messages.h"

#include "text/quoted.h"

namespace ItUnitechnik::Tool::Script {

using nlohmann::json;

std::string CallPlace(std::size_t index, const std::string& name)
{
    return "call " + std::to_string(index) + " (" + name + ")";
}

std::string KeyPlace(std::size_t index, const std::string& name, const std::string& key)
{
    return CallPlace(index, name) + ", key " + Quoted(key);
}

std::string UnknownKey(const std::string& path, const std::string& name)
{
    std::string key = path;
    key += '.';
    key += name;
    return "unknown key " + Quoted(key);
}

std::string Found(const json& value)
{
    switch (value.type()) {
    case json::value_t::null:
        return "null";
    case json::value_t::boolean:
        return "a boolean";
    case json::value_t::number_integer:
    case json::value_t::number_unsigned:
    case json::value_t::number_float:
        return "a number";
    case json::value_t::string:
        return "a string";
    case json::value_t::array:
        return "an array";
    case json::value_t::object:
        return "an object";
    default:
        return "a value of no JSON kind";
    }
}

std::string Expected(ValueKind kind)
{
    switch (kind) {
    case ValueKind::Integer:
        return "an integer";
    case ValueKind::Real:
        return "a number";
    case ValueKind::Boolean:
        return "true or false";
    case ValueKind::Text:
        return "a string";
    case ValueKind::Texts:
        return "an array of strings";
    case ValueKind::Integers:
        return "an array of integers";
    case ValueKind::Reals:
        return "an array of numbers";
    case ValueKind::Block:
        return "an object";
    case ValueKind::Blocks:
        return "an array of objects";
    }
    return "a value";
}

bool KindFits(ValueKind kind, const json& value)
{
    switch (kind) {
    case ValueKind::Integer:
    case ValueKind::Real:
        return value.is_number();
    case ValueKind::Boolean:
        return value.is_boolean();
    case ValueKind::Text:
        return value.is_string();
    case ValueKind::Texts:
    case ValueKind::Integers:
    case ValueKind::Reals:
    case ValueKind::Blocks:
        return value.is_array();
    case ValueKind::Block:
        return value.is_object();
    }
    return false;
}

std::string Range(const IntegerType& type)
{
    return std::string(type.name) + " (" + std::to_string(type.least) + " to " + std::to_string(type.most) + ")";
}

} // namespace ItUnitechnik::Tool::Script
