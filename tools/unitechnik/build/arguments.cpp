#include "build/arguments.h"

#include <stdexcept>
#include <utility>

namespace ItUnitechnik::Tool::Script {

void Arguments::Set(const std::string& key, Value value)
{
    values_[key] = std::move(value);
}

template <class T>
const T& Arguments::Get(const std::string& key) const
{
    const auto found = values_.find(key);
    if (found == values_.end() || !std::holds_alternative<T>(found->second)) {
        throw std::logic_error("the call table asks for \"" + key + "\", which the call does not hold so");
    }
    return std::get<T>(found->second);
}

std::int64_t Arguments::Integer(const std::string& key) const
{
    return Get<std::int64_t>(key);
}

double Arguments::Real(const std::string& key) const
{
    return Get<double>(key);
}

bool Arguments::Boolean(const std::string& key) const
{
    return Get<bool>(key);
}

const HostText& Arguments::Text(const std::string& key) const
{
    return Get<HostText>(key);
}

const std::vector<HostText>& Arguments::Texts(const std::string& key) const
{
    return Get<std::vector<HostText>>(key);
}

const std::vector<std::int32_t>& Arguments::Integers(const std::string& key) const
{
    return Get<std::vector<std::int32_t>>(key);
}

const std::vector<double>& Arguments::Reals(const std::string& key) const
{
    return Get<std::vector<double>>(key);
}

const Records& Arguments::Blocks(const std::string& key) const
{
    return Get<Records>(key);
}

std::vector<std::int32_t>& Arguments::Integers(const std::string& key)
{
    return const_cast<std::vector<std::int32_t>&>(Get<std::vector<std::int32_t>>(key));
}

Records& Arguments::Blocks(const std::string& key)
{
    return const_cast<Records&>(Get<Records>(key));
}

} // namespace ItUnitechnik::Tool::Script
