#include "plant_json.h"

#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "plant/plant_meanings.h"
#include "plant/plant_text.h"
#include "plant/plant_view.h"
#include "tree/element_places.h"

namespace ItUnitechnik::Reading {

namespace {

using nlohmann::ordered_json;
using namespace Plant;

ordered_json Pair(std::int32_t x, std::int32_t y)
{
    return ordered_json::array({x, y});
}

// One piece of an outline by its kind: a line, an arc, a circle or a polygon.
ordered_json PieceJson(const GeoData& piece)
{
    ordered_json out = ordered_json::object();
    if (const auto* arc = dynamic_cast<const Arc*>(piece.curve.get())) {
        out["kind"] = "arc";
        out["centre"] = Pair(arc->centre.x, arc->centre.y);
        out["radius"] = arc->radius;
        out[kArc.start.row.name] = kArc.start(*arc);
        out[kArc.end.row.name] = kArc.end(*arc);
    } else if (const auto* circle = dynamic_cast<const Circle*>(piece.curve.get())) {
        out["kind"] = "circle";
        out["centre"] = Pair(circle->centre.x, circle->centre.y);
        out["radius"] = circle->radius;
    } else if (const auto* line = dynamic_cast<const LineSegment*>(piece.curve.get())) {
        out["kind"] = "line";
        out["from"] = Pair(line->start.x, line->start.y);
        out["to"] = Pair(line->end.x, line->end.y);
    } else if (const auto* polygon = dynamic_cast<const Polygon*>(piece.curve.get())) {
        out["kind"] = "polygon";
        out["points"] = ordered_json::array();
        for (const Point2d& point : polygon->points) {
            out["points"].push_back(Pair(point.x, point.y));
        }
    } else {
        out["kind"] = "none";
    }
    return out;
}

ordered_json PiecesJson(const std::vector<GeoData>& pieces)
{
    ordered_json out = ordered_json::array();
    for (const GeoData& piece : pieces) {
        out.push_back(PieceJson(piece));
    }
    return out;
}

ordered_json SetJson(const BarSet& set)
{
    ordered_json out = ordered_json::object();
    out[kBar.count.row.name] = set.count;
    out[kBar.diameter.row.name] = set.diameter;
    out[kBar.length.row.name] = set.length;
    out[kBar.pitch.row.name] = set.pitch;
    out[kBar.x.row.name] = set.x;
    out[kBar.y.row.name] = set.y;
    out[kBar.z.row.name] = set.z;
    out[kBar.rotation.row.name] = set.rotation;
    out[kBar.grade.row.name] = Trimmed(set.grade);
    out[kBar.article.row.name] = Trimmed(set.article);
    out[kBar.spacerType.row.name] = set.spacerType;
    out[kBar.spacerStart.row.name] = set.spacerStart;
    out[kBar.spacerPitch.row.name] = set.spacerPitch;
    out["segments"] = ordered_json::array();
    for (const Leg& leg : set.legs) {
        out["segments"].push_back({{kSegment.length.row.name, leg.length}, {kSegment.turn.row.name, leg.turn}});
    }
    return out;
}

ordered_json GroupJson(const GirderGroup& group)
{
    ordered_json out = ordered_json::object();
    out[kGirder.count.row.name] = group.count;
    out[kGirder.type.row.name] = Trimmed(group.type);
    out[kGirder.length.row.name] = group.length;
    out[kGirder.spacing.row.name] = group.spacing;
    out[kGirder.x.row.name] = group.x;
    out[kGirder.y.row.name] = group.y;
    out[kGirder.rotation.row.name] = group.rotation;
    out[kGirder.height.row.name] = group.height;
    out[kGirder.chordDiameter.row.name] = group.chordDiameter;
    out[kGirder.weight.row.name] = group.weight;
    out[kGirder.installationHeight.row.name] = group.installationHeight;
    return out;
}

ordered_json SetsJson(const RodstockData& data, Origin origin)
{
    ordered_json out = ordered_json::array();
    for (const Rodstock& bar : data.bars) {
        out.push_back(SetJson(BarSetOf(bar, origin)));
    }
    return out;
}

ordered_json GroupsJson(const BracedGirderData& data, Origin origin)
{
    ordered_json out = ordered_json::array();
    for (const BracedGirder& girder : data.girders) {
        out.push_back(GroupJson(GirderGroupOf(girder, origin)));
    }
    return out;
}

ordered_json IronJson(const ExternalIron& iron)
{
    const Iron view = IronOf(iron);
    return {{"number", iron.ironNumber},
            {kIron.name.row.name, Trimmed(view.name)},
            {kIron.count.row.name, view.count},
            {kIron.weight.row.name, view.weight},
            {kIron.code.row.name, view.code}};
}

// The mats and irons of a reinforcement block, added to the element's.
void AddBlock(const Reinforcement& block, ordered_json& mats, ordered_json& irons)
{
    for (const Steelmat& mat : block.mats) {
        const Mat view = MatOf(mat);
        const Origin origin{view.x, view.y};
        mats.push_back({{"number", mat.number},
                        {kMat.type.row.name, Trimmed(view.type)},
                        {kMat.length.row.name, view.length},
                        {kMat.width.row.name, view.width},
                        {kMat.x.row.name, view.x},
                        {kMat.y.row.name, view.y},
                        {kMat.z.row.name, view.z},
                        {"bars", SetsJson(mat.rodstocks, origin)},
                        {"girders", GroupsJson(mat.girders, origin)}});
    }
    if (block.hasExternalIrons) {
        for (const ExternalIron& iron : block.externalIrons.irons) {
            irons.push_back(IronJson(iron));
        }
    }
}

void AddOutline(const ContourData& contours, const CutoutData& cutouts, ordered_json& element)
{
    for (const Contour& contour : contours.contours) {
        element["contours"].push_back({{"number", contour.contourNumber}, {"pieces", PiecesJson(contour.geoData)}});
    }
    for (const Cutout& cutout : cutouts.cutouts) {
        element["cutouts"].push_back({{"number", cutout.cutoutNumber},
                                      {"name", Trimmed(cutout.cutoutName)},
                                      {kOpening.area.row.name, kOpening.area(cutout)},
                                      {"pieces", PiecesJson(cutout.geoData)}});
    }
}

void AddParts(const MountingPartData& data, ordered_json& parts)
{
    for (const MountingPart& part : data.parts) {
        const Part view = PartOf(part);
        parts.push_back({{"number", part.partNumber},
                         {kPart.name.row.name, Trimmed(view.name)},
                         {kPart.height.row.name, view.height},
                         {kPart.installationHeight.row.name, view.installationHeight},
                         {"pieces", PiecesJson(part.geoData)}});
    }
}

// An element, its layers' records taken in with its own: the plant makes
// one element of them.
ordered_json ElementJson(const ElementPart& element)
{
    ordered_json out = ordered_json::object();
    out["number"] = Drawing::ElementNumberText(element);
    out["text"] = Trimmed(element.elementText30);
    out["extents"] = Pair(element.extentX, element.extentY);
    out["thickness"] = element.thickness;
    out[kElement.area.row.name] = kElement.area(element);
    out["contours"] = ordered_json::array();
    out["cutouts"] = ordered_json::array();
    out["parts"] = ordered_json::array();
    ordered_json mats = ordered_json::array();
    ordered_json irons = ordered_json::array();
    AddOutline(element.contourData, element.cutoutData, out);
    AddParts(element.mountingPartData, out["parts"]);
    for (const Layer& layer : element.layers) {
        for (const Lot& lot : layer.lots) {
            AddOutline(lot.contourData, lot.cutoutData, out);
        }
        AddParts(layer.mountingPartData, out["parts"]);
    }
    out["bars"] = SetsJson(element.rodstockData, {});
    out["girders"] = GroupsJson(element.bracedGirderData, {});
    AddBlock(element.reinforcement, mats, irons);
    for (const Layer& layer : element.layers) {
        AddBlock(layer.reinforcement, mats, irons);
    }
    for (const ExternalIron& iron : element.externalIronData.irons) {
        irons.push_back(IronJson(iron));
    }
    out["mats"] = std::move(mats);
    out["irons"] = std::move(irons);
    out["layers"] = ordered_json::array();
    for (const ConcreteLayer& layer : element.concreteLayers) {
        const ConcreteLayerView view = LayerOf(layer);
        out["layers"].push_back({{"number", layer.layerNumber},
                                 {kLayer.kind.row.name, view.kind},
                                 {kLayer.thickness.row.name, view.thickness},
                                 {kLayer.name.row.name, Trimmed(view.name)},
                                 {kLayer.unitWeight.row.name, view.unitWeight},
                                 {kLayer.volume.row.name, view.volume},
                                 {"mass", view.Mass()}});
    }
    return out;
}

} // namespace

ordered_json PlantJson(const std::vector<Order>& orders)
{
    ordered_json list = ordered_json::array();
    for (const Order& order : orders) {
        ordered_json elements = ordered_json::array();
        for (const ElementPart& element : order.elementParts) {
            elements.push_back(ElementJson(element));
        }
        list.push_back(
            {{"number", Drawing::OrderNumberText(order)}, {"version", order.version}, {"elements", elements}});
    }
    return {{"orders", std::move(list)}};
}

ordered_json MeaningsJson()
{
    ordered_json out = ordered_json::array();
    for (const Row& row : Rows()) {
        out.push_back({{"record", row.record},
                       {"member", row.member},
                       {"name", row.name},
                       {"meaning", row.meaning},
                       {"unit", row.unit}});
    }
    return out;
}

} // namespace ItUnitechnik::Reading
