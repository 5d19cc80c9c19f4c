#include "dump/tree_text.h"

#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "plant/plant_text.h"
#include "plant/plant_view.h"
#include "text/quoted.h"

#include "framework/float_chars.h"

#include <charconv>
#include <sstream>

namespace ItUnitechnik::Tree {

namespace {

// A field's text without its fill, in quotes.
std::string Quoted(const std::wstring& text)
{
    return Tool::Quoted(Plant::Trimmed(text));
}

// A double as the shortest text that reads back to it.
std::string Number(double value)
{
    char buffer[64];
    const auto result = FloatChars(buffer, buffer + sizeof buffer, value);
    return {buffer, result.ptr};
}

std::string At(std::int32_t x, std::int32_t y)
{
    return "(" + std::to_string(x) + ", " + std::to_string(y) + ")";
}

std::string Counted(std::size_t count, const char* one, const char* many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

class Outline {
public:
    std::string Text() const { return out_.str(); }

    void Orders(const std::vector<Order>& orders)
    {
        for (const Order& order : orders) {
            Line(0, "HEADER__ version " + std::to_string(order.version) + ", order " + Quoted(order.orderNumber) +
                        ", " + Counted(order.elementParts.size(), "element", "elements"));
            for (const ElementPart& element : order.elementParts) {
                Element(1, element);
            }
        }
    }

private:
    void Line(int depth, const std::string& text)
    {
        out_ << std::string(2 * static_cast<std::size_t>(depth), ' ') << text << '\n';
    }

    void Element(int depth, const ElementPart& element)
    {
        const std::string number =
            element.version < 600 ? std::to_string(element.elementNumber) : Plant::Trimmed(element.elementNumberText);
        Line(depth, "SLABDATE version " + std::to_string(element.version) + ", element " + number + " " +
                        Quoted(element.elementText30) + ", " + std::to_string(element.extentX) + " x " +
                        std::to_string(element.extentY) + ", thickness " + std::to_string(element.thickness) +
                        ", area " + Number(Plant::kElement.area(element)) + " m\u00b2, " +
                        Counted(element.concreteLayers.size(), "concrete layer", "concrete layers"));
        if (!element.layers.empty()) {
            for (const Layer& layer : element.layers) {
                Line(depth + 1, "LAYER___ version " + std::to_string(layer.version) + ", " +
                                    Counted(layer.lots.size(), "lot", "lots"));
                for (const Lot& lot : layer.lots) {
                    Line(depth + 2, "LOT_____ version " + std::to_string(lot.version) + ", lot " +
                                        std::to_string(lot.lotNumber) + " " + Quoted(lot.lotText));
                    Contours(depth + 3, lot.contourData);
                    Cutouts(depth + 3, lot.cutoutData);
                }
                Parts(depth + 2, layer.mountingPartData);
                Block(depth + 2, layer.reinforcement);
            }
            return;
        }
        Contours(depth + 1, element.contourData);
        Cutouts(depth + 1, element.cutoutData);
        Parts(depth + 1, element.mountingPartData);
        if (element.version < 600 && element.reinforcement.present) {
            Block(depth + 1, element.reinforcement);
            return;
        }
        if (element.version < 600 || !element.rodstockData.bars.empty()) {
            Bars(depth + 1, element.rodstockData);
        }
        if (element.version < 600 || !element.bracedGirderData.girders.empty()) {
            Girders(depth + 1, element.bracedGirderData);
        }
        if (element.reinforcement.present) {
            Block(depth + 1, element.reinforcement);
        }
        if (element.hasExternalIron) {
            Irons(depth + 1, element.externalIronData);
        }
    }

    void Pieces(int depth, const std::vector<GeoData>& pieces)
    {
        for (const GeoData& piece : pieces) {
            std::string text(1, static_cast<char>(piece.elementKind));
            if (const auto* arc = dynamic_cast<const Arc*>(piece.curve.get())) {
                text += " arc about " + At(arc->centre.x, arc->centre.y) + ", radius " + std::to_string(arc->radius) +
                        ", from " + std::to_string(arc->startAngle) + " to " + std::to_string(arc->endAngle);
            } else if (const auto* circle = dynamic_cast<const Circle*>(piece.curve.get())) {
                text += " circle about " + At(circle->centre.x, circle->centre.y) + ", radius " +
                        std::to_string(circle->radius);
            } else if (const auto* line = dynamic_cast<const LineSegment*>(piece.curve.get())) {
                text += " line " + At(line->start.x, line->start.y) + " to " + At(line->end.x, line->end.y);
            } else if (const auto* polygon = dynamic_cast<const Polygon*>(piece.curve.get())) {
                text += " polygon of " + Counted(polygon->points.size(), "point", "points");
                for (const Point2d& point : polygon->points) {
                    text += " " + At(point.x, point.y);
                }
            }
            Line(depth, text);
        }
    }

    void Contours(int depth, const ContourData& data)
    {
        Line(depth, "CONTOUR_ version " + std::to_string(data.version) + ", " +
                        Counted(data.contours.size(), "contour", "contours"));
        for (const Contour& contour : data.contours) {
            Line(depth + 1, "contour " + std::to_string(contour.contourNumber) + ", " +
                                Counted(contour.geoData.size(), "piece", "pieces"));
            Pieces(depth + 2, contour.geoData);
        }
    }

    void Cutouts(int depth, const CutoutData& data)
    {
        Line(depth, "CUTOUT__ version " + std::to_string(data.version) + ", " +
                        Counted(data.cutouts.size(), "opening", "openings"));
        for (const Cutout& cutout : data.cutouts) {
            Line(depth + 1, "cutout " + std::to_string(cutout.cutoutNumber) + " " + Quoted(cutout.cutoutName) +
                                ", area " + Number(Plant::kOpening.area(cutout)) + " m\u00b2, " +
                                Counted(cutout.geoData.size(), "piece", "pieces"));
            Pieces(depth + 2, cutout.geoData);
        }
    }

    void Parts(int depth, const MountingPartData& data)
    {
        Line(depth,
             "MOUNPART version " + std::to_string(data.version) + ", " + Counted(data.parts.size(), "part", "parts"));
        for (const MountingPart& part : data.parts) {
            const Plant::Part view = Plant::PartOf(part);
            Line(depth + 1, "part " + std::to_string(part.partNumber) + " " + Quoted(view.name) + ": " +
                                Plant::PartLine(view) + ", footprint " + std::to_string(part.partWidth) + " x " +
                                std::to_string(part.partHeight) + ", " +
                                Counted(part.geoData.size(), "piece", "pieces"));
            Pieces(depth + 2, part.geoData);
        }
    }

    // A mat's bars and girders stand where the plant puts them: its origin
    // added.
    void Bars(int depth, const RodstockData& data, Plant::Origin origin = {})
    {
        Line(depth,
             "RODSTOCK version " + std::to_string(data.version) + ", " + Counted(data.bars.size(), "bar", "bars"));
        for (const Rodstock& bar : data.bars) {
            const Plant::BarSet set = Plant::BarSetOf(bar, origin);
            std::string text =
                "bar " + std::to_string(bar.number) + " " + Quoted(set.grade) + ": " + Plant::SetLine(set);
            if (bar.bendingKind == L'1') {
                text += ", bent in two forms";
            }
            Line(depth + 1, text);
        }
    }

    void Girders(int depth, const BracedGirderData& data, Plant::Origin origin = {})
    {
        Line(depth, "BRGIRDER version " + std::to_string(data.version) + ", " +
                        Counted(data.girders.size(), "girder", "girders"));
        for (const BracedGirder& girder : data.girders) {
            const Plant::GirderGroup group = Plant::GirderGroupOf(girder, origin);
            Line(depth + 1,
                 "girder " + std::to_string(girder.number) + " " + Quoted(group.type) + ": " + Plant::GroupLine(group));
        }
    }

    void Irons(int depth, const ExternalIronData& data)
    {
        Line(depth,
             "EXTIRON_ version " + std::to_string(data.version) + ", " + Counted(data.irons.size(), "iron", "irons"));
        for (const ExternalIron& iron : data.irons) {
            const Plant::Iron view = Plant::IronOf(iron);
            Line(depth + 1, "iron " + std::to_string(iron.ironNumber) + " " + Quoted(view.name) + ": " +
                                std::to_string(view.count) + " pieces, " + Number(view.weight) + " kg, code " +
                                std::to_string(view.code));
        }
    }

    void Block(int depth, const Reinforcement& block)
    {
        Line(depth,
             "REFORCEM version " + std::to_string(block.version) + ", " + Counted(block.mats.size(), "mat", "mats"));
        for (const Steelmat& mat : block.mats) {
            const Plant::Mat view = Plant::MatOf(mat);
            Line(depth + 1, "STEELMAT version " + std::to_string(mat.version) + ", mat " + std::to_string(mat.number) +
                                " " + Quoted(view.type) + ": " + Plant::MatLine(view) + ", kind " +
                                std::to_string(mat.matKind));
            const Plant::Origin origin{view.x, view.y};
            Bars(depth + 2, mat.rodstocks, origin);
            Girders(depth + 2, mat.girders, origin);
        }
        if (block.hasExternalIrons && block.version > 5) {
            Irons(depth + 1, block.externalIrons);
        }
    }

    std::ostringstream out_;
};

} // namespace

std::string TreeText(const std::vector<Order>& orders)
{
    Outline outline;
    outline.Orders(orders);
    return outline.Text();
}

} // namespace ItUnitechnik::Tree
