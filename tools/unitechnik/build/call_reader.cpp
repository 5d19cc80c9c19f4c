#include "build/call_reader.h"

#include "build/script_messages.h"
#include "sub_command.h"
#include "text/quoted.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <stdexcept>
#include <utility>

namespace ItUnitechnik::Tool::Script {

using nlohmann::json;

CallReader::CallReader(std::size_t index, const CallSpec& callEntry, std::int64_t& paddingLeft)
    : index_(index), spec_(callEntry), paddingLeft_(paddingLeft)
{
}

Arguments CallReader::Read(const json& call)
{
    Arguments arguments;
    for (const auto& [key, value] : call.items()) {
        if (key != "call" && FindKey(spec_.keys, key) == nullptr) {
            FailCall("unknown key " + Quoted(key));
        }
    }
    for (const KeySpec& key : spec_.keys) {
        const auto found = call.find(key.name);
        if (found != call.end()) {
            ReadKey(key, *found, key.name, arguments);
        } else {
            SetDefault(key, key.name, arguments);
        }
    }
    for (const CountedList& counted : spec_.counted) {
        Count(counted, arguments);
    }
    if (spec_.check != nullptr) {
        if (const std::optional<Refusal> refusal = spec_.check(arguments)) {
            Fail(refusal->key, refusal->reason);
        }
    }
    return arguments;
}

std::vector<Padding> CallReader::TakePadded()
{
    return std::move(padded_);
}

void CallReader::FailCall(const std::string& reason) const
{
    throw BadInput(CallPlace(index_, spec_.name) + ": " + reason);
}

void CallReader::Fail(const std::string& key, const std::string& reason) const
{
    throw BadInput(KeyPlace(index_, spec_.name, key) + ": " + reason);
}

const KeySpec* CallReader::FindKey(const std::vector<KeySpec>& keys, const std::string& name)
{
    for (const KeySpec& key : keys) {
        if (key.name == name) {
            return &key;
        }
    }
    return nullptr;
}

const KeySpec& CallReader::SpecOf(const std::string& path) const
{
    const std::size_t dot = path.find('.');
    const KeySpec* key = FindKey(spec_.keys, path.substr(0, dot));
    if (key != nullptr && dot != std::string::npos) {
        key = FindKey(key->fields, path.substr(dot + 1));
    }
    if (key == nullptr) {
        throw std::logic_error("the call table names no key " + path + " in " + spec_.name);
    }
    return *key;
}

std::int64_t CallReader::ReadInteger(const IntegerType& type, const json& value, const std::string& path) const
{
    if (!value.is_number()) {
        Fail(path, "expected an integer, found " + Found(value));
    }
    if (value.is_number_float()) {
        // A number with a fraction is no integer; one without (1e3) is,
        // if it fits.
        const double number = value.get<double>();
        if (std::trunc(number) != number) {
            Fail(path, value.dump() + " is not an integer");
        }
        if (number < static_cast<double>(type.least) || number > static_cast<double>(type.most)) {
            Fail(path, value.dump() + " is out of range for " + Range(type));
        }
        return static_cast<std::int64_t>(number);
    }
    if (value.is_number_unsigned() && value.get<std::uint64_t>() > static_cast<std::uint64_t>(type.most)) {
        Fail(path, value.dump() + " is out of range for " + Range(type));
    }
    const std::int64_t number =
        value.is_number_unsigned() ? static_cast<std::int64_t>(value.get<std::uint64_t>()) : value.get<std::int64_t>();
    if (number < type.least || number > type.most) {
        Fail(path, value.dump() + " is out of range for " + Range(type));
    }
    return number;
}

HostText CallReader::ReadText(const json& value, const std::string& path) const
{
    if (!value.is_string()) {
        Fail(path, "expected a string, found " + Found(value));
    }
    const std::optional<HostText> text = Utf8ToHost(value.get_ref<const std::string&>());
    if (!text) {
        Fail(path, "the string is no UTF-8");
    }
    if (text->find(it_char16(0)) != HostText::npos) {
        Fail(path, "U+0000 cannot stand in a text: the export would end the text there");
    }
    return *text;
}

void CallReader::ReadKey(const KeySpec& key, const json& value, const std::string& path, Arguments& arguments)
{
    given_.insert(path);
    if (!KindFits(key.kind, value)) {
        Fail(path, "expected " + Expected(key.kind) + ", found " + Found(value));
    }
    switch (key.kind) {
    case ValueKind::Integer:
        arguments.Set(path, ReadInteger(*key.type, value, path));
        break;
    case ValueKind::Real:
        arguments.Set(path, value.get<double>());
        break;
    case ValueKind::Boolean:
        arguments.Set(path, value.get<bool>());
        break;
    case ValueKind::Text:
        arguments.Set(path, ReadText(value, path));
        break;
    case ValueKind::Texts: {
        if (value.size() > key.length) {
            Fail(path, "holds " + std::to_string(value.size()) + " texts; " + spec_.name + " takes at most " +
                           std::to_string(key.length));
        }
        std::vector<HostText> texts;
        for (std::size_t i = 0; i < value.size(); ++i) {
            texts.push_back(ReadText(value[i], path + "[" + std::to_string(i) + "]"));
        }
        texts.resize(key.length);
        arguments.Set(path, std::move(texts));
        break;
    }
    case ValueKind::Integers: {
        if (key.length != 0 && value.size() > key.length) {
            Fail(path, "holds " + std::to_string(value.size()) + " integers; " + spec_.name + " reads " +
                           std::to_string(key.length));
        }
        std::vector<std::int32_t> integers;
        for (std::size_t i = 0; i < value.size(); ++i) {
            integers.push_back(
                static_cast<std::int32_t>(ReadInteger(*key.type, value[i], path + "[" + std::to_string(i) + "]")));
        }
        integers.resize(std::max(integers.size(), key.length), 0);
        arguments.Set(path, std::move(integers));
        break;
    }
    case ValueKind::Reals: {
        if (value.size() > key.length) {
            Fail(path, "holds " + std::to_string(value.size()) + " numbers; " + spec_.name + " reads " +
                           std::to_string(key.length));
        }
        std::vector<double> reals;
        for (std::size_t i = 0; i < value.size(); ++i) {
            const std::string entry = path + "[" + std::to_string(i) + "]";
            if (!value[i].is_number()) {
                Fail(entry, "expected a number, found " + Found(value[i]));
            }
            reals.push_back(value[i].get<double>());
        }
        reals.resize(key.length, 0.0);
        arguments.Set(path, std::move(reals));
        break;
    }
    case ValueKind::Block:
        for (const auto& [name, field] : value.items()) {
            if (FindKey(key.fields, name) == nullptr) {
                FailCall(UnknownKey(path, name));
            }
        }
        for (const KeySpec& field : key.fields) {
            const auto found = value.find(field.name);
            if (found != value.end()) {
                ReadKey(field, *found, path + "." + field.name, arguments);
            } else {
                SetDefault(field, path + "." + field.name, arguments);
            }
        }
        break;
    case ValueKind::Blocks: {
        Records records;
        for (std::size_t i = 0; i < value.size(); ++i) {
            const std::string entry = path + "[" + std::to_string(i) + "]";
            const json& block = value[i];
            if (!block.is_object()) {
                Fail(entry, "expected an object, found " + Found(block));
            }
            for (const auto& [name, field] : block.items()) {
                if (FindKey(key.fields, name) == nullptr) {
                    FailCall(UnknownKey(entry, name));
                }
            }
            std::vector<std::int64_t> fields;
            for (const KeySpec& field : key.fields) {
                const auto found = block.find(field.name);
                fields.push_back(found == block.end() ? 0 : ReadInteger(*field.type, *found, entry + "." + field.name));
            }
            records.push_back(std::move(fields));
        }
        arguments.Set(path, std::move(records));
        break;
    }
    }
}

void CallReader::SetDefault(const KeySpec& key, const std::string& path, Arguments& arguments)
{
    switch (key.kind) {
    case ValueKind::Integer:
        arguments.Set(path, std::int64_t{0});
        break;
    case ValueKind::Real:
        arguments.Set(path, 0.0);
        break;
    case ValueKind::Boolean:
        arguments.Set(path, false);
        break;
    case ValueKind::Text:
        arguments.Set(path, HostText());
        break;
    case ValueKind::Texts:
        arguments.Set(path, std::vector<HostText>(key.length));
        break;
    case ValueKind::Integers:
        arguments.Set(path, std::vector<std::int32_t>(key.length, 0));
        break;
    case ValueKind::Reals:
        arguments.Set(path, std::vector<double>(key.length, 0.0));
        break;
    case ValueKind::Block:
        for (const KeySpec& field : key.fields) {
            SetDefault(field, path + "." + field.name, arguments);
        }
        break;
    case ValueKind::Blocks:
        arguments.Set(path, Records());
        break;
    }
}

std::int64_t CallReader::ListLength(const CountedList& counted, const Arguments& arguments) const
{
    if (SpecOf(counted.list).kind == ValueKind::Blocks) {
        return static_cast<std::int64_t>(arguments.Blocks(counted.list).size());
    }
    return static_cast<std::int64_t>(arguments.Integers(counted.list).size());
}

void CallReader::Count(const CountedList& counted, Arguments& arguments)
{
    const std::int64_t length = ListLength(counted, arguments);
    if (given_.count(counted.count) == 0) {
        if (length % counted.entriesPerUnit != 0) {
            Fail(counted.list, std::to_string(length) + " " + counted.entryName + " are no whole number of " +
                                   counted.unitName + " (" + std::to_string(counted.entriesPerUnit) +
                                   " each), so no count follows from them");
        }
        const std::int64_t count = length / counted.entriesPerUnit;
        const IntegerType& type = *SpecOf(counted.count).type;
        if (count > type.most) {
            Fail(counted.count, "the " + std::to_string(count) + " " + counted.unitName + " of " +
                                    Quoted(counted.list) + " are more than " + Range(type) + " holds");
        }
        arguments.Set(counted.count, count);
    }
    const std::int64_t reads = counted.reads(arguments);
    if (reads <= length) {
        return;
    }
    if (given_.count(counted.count) > 0) {
        padded_.push_back(Padding{&counted, arguments.Integer(counted.count), length, reads});
    }
    if (reads - length > paddingLeft_) {
        Fail(counted.count, std::to_string(arguments.Integer(counted.count)) + " " + counted.unitName + " make " +
                                spec_.name + " read " + std::to_string(reads) + " " + counted.entryName + " of " +
                                Quoted(counted.list) + ", which holds " + std::to_string(length) +
                                ": padding passes the " + std::to_string(kMostPadding) +
                                " zeros a script may be padded with");
    }
    paddingLeft_ -= reads - length;
    const auto size = static_cast<std::size_t>(reads);
    if (SpecOf(counted.list).kind == ValueKind::Blocks) {
        const std::size_t fields = SpecOf(counted.list).fields.size();
        arguments.Blocks(counted.list).resize(size, std::vector<std::int64_t>(fields, 0));
    } else {
        arguments.Integers(counted.list).resize(size, 0);
    }
}

} // namespace ItUnitechnik::Tool::Script
