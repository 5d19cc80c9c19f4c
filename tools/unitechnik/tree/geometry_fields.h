#pragma once

#include "field_table.h"
#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/edge.h"
#include "geometry/geo_data.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "records/element/element_part.h"

// The members of the points and curves, and of the outlines, openings and
// mounted parts built of them (field_table.h).
namespace ItUnitechnik::Tree {

template <class V, class R>
For<R, Point2d> Fields(V& v, R& r)
{
    v.Field("x", r.x);
    v.Field("y", r.y);
}

template <class V, class R>
For<R, Vector2d> Fields(V& v, R& r)
{
    v.Field("x", r.x);
    v.Field("y", r.y);
}

template <class V, class R>
For<R, Point3d> Fields(V& v, R& r)
{
    v.Field("x", r.x);
    v.Field("y", r.y);
    v.Field("z", r.z);
}

template <class V, class R>
For<R, Edge> Fields(V& v, R& r)
{
    v.Record("first", r.first);
    v.Record("second", r.second);
}

template <class V, class R>
For<R, LineSegment> Fields(V& v, R& r)
{
    v.Field("version", r.version);
    v.Record("start", r.start);
    v.Record("end", r.end);
    v.Field("flags", r.flags);
}

template <class V, class R>
For<R, Circle> Fields(V& v, R& r)
{
    v.Field("version", r.version);
    v.Record("centre", r.centre);
    v.Field("radius", r.radius);
    v.Field("flags", r.flags);
}

template <class V, class R>
For<R, Arc> Fields(V& v, R& r)
{
    Fields(v, static_cast<Like<R, Circle>&>(r));
    v.Field("startAngle", r.startAngle);
    v.Field("endAngle", r.endAngle);
}

template <class V, class R>
For<R, Polygon> Fields(V& v, R& r)
{
    v.Field("version", r.version);
    v.Points("points", r.points);
    v.Numbers("segmentFlags", r.segmentFlags);
}

template <class V, class R>
For<R, GeoData> Fields(V& v, R& r)
{
    v.Field("version", r.version);
    v.Field("elementKind", r.elementKind);
    v.Curve("curve", r);
}

template <class V, class R>
For<R, Contour> Fields(V& v, R& r)
{
    v.Field("version", r.version);
    v.Field("contourNumber", r.contourNumber);
    v.Field("contourCode", r.contourCode);
    v.Records("geoData", r.geoData, [] { return GeoData(0); });
}

template <class V, class R>
For<R, ContourData> Fields(V& v, R& r)
{
    v.Field("version", r.version);
    v.Records("contours", r.contours, [] { return Contour(0); });
}

template <class V, class R>
For<R, Cutout> Fields(V& v, R& r)
{
    v.Field("version", r.version);
    v.Field("cutoutNumber", r.cutoutNumber);
    v.Field("cutoutValue", r.cutoutValue);
    v.Field("cutoutName", r.cutoutName);
    v.Records("geoData", r.geoData, [] { return GeoData(0); });
}

template <class V, class R>
For<R, CutoutData> Fields(V& v, R& r)
{
    v.Field("version", r.version);
    v.Records("cutouts", r.cutouts, [] { return Cutout(0); });
}

template <class V, class R>
For<R, MountingPart> Fields(V& v, R& r)
{
    v.Field("version", r.version);
    v.Field("partNumber", r.partNumber);
    v.Records("geoData", r.geoData, [] { return GeoData(0); });
    v.Field("partKind", r.partKind);
    v.Field("partSubCode", r.partSubCode);
    v.Field("partCode", r.partCode);
    v.Field("partName", r.partName);
    v.Field("partText1", r.partText1);
    v.Field("partText2", r.partText2);
    v.Field("partArea", r.partArea);
    v.Field("setValue1", r.setValue1);
    v.Field("setValue2", r.setValue2);
    v.Record("position", r.position);
    v.Field("partValue1", r.partValue1);
    v.Field("partValue2", r.partValue2);
    v.Field("partWidth", r.partWidth);
    v.Field("partHeight", r.partHeight);
}

template <class V, class R>
For<R, MountingPartData> Fields(V& v, R& r)
{
    v.Field("version", r.version);
    v.Records("parts", r.parts, [] { return MountingPart(0); });
}

} // namespace ItUnitechnik::Tree
