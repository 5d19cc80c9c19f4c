#include "geometry/curve.h"

#include "framework/archive.h"
#include "framework/layout_writer.h"

namespace ItUnitechnik {

Curve::Curve(std::int32_t formatVersion) : version(formatVersion) {}

Curve::~Curve() = default;

bool Curve::copyVersion(const Curve* other)
{
    if (other == nullptr) {
        return false;
    }
    version = other->version;
    return true;
}

void Curve::readHexadecimal(Archive& ar, std::int32_t& value)
{
    ar.setf(std::ios_base::hex, std::ios_base::basefield);
    ar >> value;
    ar.setf(std::ios_base::dec, std::ios_base::basefield);
}

} // namespace ItUnitechnik
