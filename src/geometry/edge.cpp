#include "geometry/edge.h"

#include "framework/archive.h"
#include "framework/layout_writer.h"

namespace ItUnitechnik {

bool Edge::Read(Archive& ar)
{
    first.Read(ar);
    second.Read(ar);
    return Healthy(ar);
}

bool Edge::Write(Archive& ar)
{
    return WriteLayout(ar, *this);
}

bool operator==(const Edge& a, const Edge& b)
{
    return a.first == b.first && a.second == b.second;
}

bool operator!=(const Edge& a, const Edge& b)
{
    return !(a == b);
}

} // namespace ItUnitechnik
