#include "render/scene.h"

#include "plant/plant_text.h"
#include "plant/plant_view.h"
#include "render/drawn_sets.h"
#include "render/markup_text.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <set>

namespace ItUnitechnik::Drawing {

namespace {

BoxD RectBox(double x, double y, double width, double height)
{
    BoxD box;
    box.Widen(PointD{x, y});
    box.Widen(PointD{x + width, y + height});
    return box;
}

BoxD MatBox(const Plant::Mat& mat)
{
    return RectBox(mat.x, mat.y, mat.length, mat.width);
}

// The box of everything drawn.
class BoxVisitor {
public:
    explicit BoxVisitor(std::size_t pointsOfASet) : share_(pointsOfASet) {}

    BoxD box;

    void Outline(const std::string&, const Contour& contour) { box.Widen(OutlineBox(contour.geoData)); }
    void Opening(const std::string&, const Cutout& cutout) { box.Widen(OutlineBox(cutout.geoData)); }
    void Part(const std::string&, const MountingPart& part) { box.Widen(OutlineBox(part.geoData)); }
    void Bar(const std::string&, const Rodstock& bar) { box.Widen(BarBox(Plant::BarSetOf(bar), share_)); }
    void Girder(const std::string&, const BracedGirder& girder)
    {
        box.Widen(GirderBox(Plant::GirderGroupOf(girder), share_));
    }
    void Mat(const std::string&, const Steelmat& record)
    {
        const Plant::Mat mat = Plant::MatOf(record);
        box.Widen(MatBox(mat));
        for (const Plant::BarSet& set : mat.bars) {
            box.Widen(BarBox(set, share_));
        }
        for (const Plant::GirderGroup& group : mat.girders) {
            box.Widen(GirderBox(group, share_));
        }
    }
    void Iron(const std::string&, const ExternalIron&) {}

private:
    std::size_t share_; // the points of each set and group
};

std::string Pieces(std::size_t count)
{
    return std::to_string(count) + (count == 1 ? " piece" : " pieces");
}

std::string Path(const char* shapeClass, const std::string& data, const std::string& extra = "")
{
    if (data.empty()) {
        return "";
    }
    return "<path class=\"" + std::string(shapeClass) + "\" d=\"" + data + "\"" + extra + "/>";
}

std::string Rect(const char* shapeClass, const BoxD& box)
{
    return "<rect class=\"" + std::string(shapeClass) + "\" x=\"" + Number(box.minX) + "\" y=\"" + Number(box.minY) +
           "\" width=\"" + Number(box.Width()) + "\" height=\"" + Number(box.Height()) + "\"/>";
}

// The items, in drawing order.
class ItemVisitor {
public:
    ItemVisitor(Scene& scene, std::size_t pointsOfASet) : scene_(scene), share_(pointsOfASet) {}

    void Outline(const std::string& prefix, const Contour& contour)
    {
        Item item = Make(prefix, "contour", contour.contourNumber, FieldsOf(contour));
        item.label = "Contour " + std::to_string(contour.contourNumber);
        item.summary = Pieces(contour.geoData.size());
        item.shapes = Path("outline", OutlinePath(contour.geoData));
        scene_.items.push_back(std::move(item));
    }

    void Opening(const std::string& prefix, const Cutout& cutout)
    {
        Item item = Make(prefix, "cutout", cutout.cutoutNumber, FieldsOf(cutout));
        item.label = "Cutout " + std::to_string(cutout.cutoutNumber);
        item.summary = Named(Plant::Trimmed(cutout.cutoutName), Pieces(cutout.geoData.size()));
        item.shapes = Path("opening", OutlinePath(cutout.geoData));
        scene_.items.push_back(std::move(item));
    }

    void Part(const std::string& prefix, const MountingPart& part)
    {
        Item item = Make(prefix, "mountingpart", part.partNumber, FieldsOf(part));
        const Plant::Part view = Plant::PartOf(part);
        const std::string name = Plant::Trimmed(view.name);
        item.label = "Mounted part " + std::to_string(part.partNumber);
        item.summary = Named(name, Plant::PartLine(view));
        // On the drawing: its name and its height.
        const std::string caption = Named(name, "height " + std::to_string(view.height) + " mm");
        const BoxD box = OutlineBox(part.geoData);
        item.shapes = Path("part", OutlinePath(part.geoData));
        if (!box.Empty()) {
            item.shapes += Rect("part-box", box);
            // The name stands upright above the part: the text's own turn
            // undoes the drawing's flip.
            item.shapes += R"(<text class="part-name" x=")" + Number((box.minX + box.maxX) / 2.0) + "\" y=\"" +
                           Number(-(box.maxY + 0.4 * scene_.textSize)) + "\" font-size=\"" +
                           Number(0.8 * scene_.textSize) + "\" transform=\"scale(1 -1)\">" + Escaped(caption) +
                           "</text>";
        }
        scene_.items.push_back(std::move(item));
    }

    void Bar(const std::string& prefix, const Rodstock& bar)
    {
        scene_.items.push_back(BarItem(prefix, bar, Plant::BarSetOf(bar), "bar", "Bar "));
    }

    void Girder(const std::string& prefix, const BracedGirder& girder)
    {
        scene_.items.push_back(GirderItem(prefix, girder, Plant::GirderGroupOf(girder), "Girder "));
    }

    void Mat(const std::string& prefix, const Steelmat& record)
    {
        const Plant::Mat mat = Plant::MatOf(record);
        Item item = Make(prefix, "steelmat", record.number, FieldsOf(record));
        const std::string matLabel = "Mat " + std::to_string(record.number);
        item.label = matLabel;
        item.summary = Named(Plant::Trimmed(mat.type), Plant::MatLine(mat));
        item.shapes = Rect("mat", MatBox(mat));
        const std::string inner = item.id + "-";
        for (std::size_t i = 0; i < mat.bars.size(); ++i) {
            item.parts.push_back(BarItem(inner, record.rodstocks.bars[i], mat.bars[i], "mat-bar", matLabel + ", bar "));
        }
        for (std::size_t i = 0; i < mat.girders.size(); ++i) {
            item.parts.push_back(GirderItem(inner, record.girders.girders[i], mat.girders[i], matLabel + ", girder "));
        }
        scene_.items.push_back(std::move(item));
    }

    void Iron(const std::string& prefix, const ExternalIron& iron)
    {
        Item item = Make(prefix, "externaliron", iron.ironNumber, FieldsOf(iron));
        item.label = "External iron " + std::to_string(iron.ironNumber);
        const Plant::Iron view = Plant::IronOf(iron);
        item.summary =
            Named(Plant::Trimmed(view.name), std::to_string(view.count) + " pieces, " + Plant::Kilograms(view.weight) +
                                                 " kg, code " + std::to_string(view.code));
        scene_.irons.push_back(std::move(item));
    }

private:
    static std::string Named(const std::string& name, const std::string& rest)
    {
        return name.empty() ? rest : name + ", " + rest;
    }

    Item Make(const std::string& prefix, const char* kind, std::int32_t number, FieldList fields)
    {
        Item item;
        item.kind = kind;
        item.id = Unique(prefix + kind + "-" + std::to_string(number));
        item.fields = std::move(fields);
        return item;
    }

    // Two records of one list with the same number still get ids of their own.
    std::string Unique(const std::string& id)
    {
        std::string candidate = id;
        for (int n = 2; !taken_.insert(candidate).second; ++n) {
            candidate = id + "-" + std::to_string(n);
        }
        return candidate;
    }

    // A set is one path: all its bars, each from its start along the bars'
    // direction, leg by leg when bent.
    Item BarItem(const std::string& prefix, const Rodstock& bar, const Plant::BarSet& set, const char* shapeClass,
                 const std::string& label)
    {
        Item item = Make(prefix, "rodstock", bar.number, FieldsOf(bar));
        item.label = label + std::to_string(bar.number);
        item.summary = Plant::SetSummary(set);
        std::string data;
        ForEachBar(set, share_, [&](const std::vector<PointD>& points) {
            data += data.empty() ? "" : " ";
            data += PolylinePath(points);
        });
        // The diameter is the stroke's width, in the drawing's millimetres.
        const double diameter = std::abs(static_cast<double>(set.diameter));
        item.shapes = Path(shapeClass, data, " stroke-width=\"" + Number(diameter) + "\"");
        return item;
    }

    Item GirderItem(const std::string& prefix, const BracedGirder& girder, const Plant::GirderGroup& group,
                    const std::string& label)
    {
        Item item = Make(prefix, "bracedgirder", girder.number, FieldsOf(girder));
        item.label = label + std::to_string(girder.number);
        item.summary = Plant::GroupSummary(group);
        std::string chords;
        std::string lattice;
        ForEachGirder(group, share_, [&](PointD start) {
            const GirderPaths paths =
                GirderDrawing(start, static_cast<double>(group.rotation), static_cast<double>(group.length));
            chords += chords.empty() ? "" : " ";
            chords += paths.chords;
            lattice += lattice.empty() ? "" : " ";
            lattice += paths.lattice;
        });
        item.shapes = Path("girder-chord", chords, " stroke-width=\"8\"") +
                      Path("girder-lattice", lattice, " stroke-width=\"5\"");
        return item;
    }

    Scene& scene_;
    std::size_t share_; // the points of each set and group
    std::set<std::string> taken_;
};

} // namespace

Scene MakeScene(const ElementPlace& place, const std::string& idPrefix)
{
    Scene scene;
    scene.place = place;
    scene.idPrefix = idPrefix;
    const std::size_t pointsOfASet = PointsOfASet(*place.element, idPrefix);
    BoxVisitor boxes(pointsOfASet);
    Walk(*place.element, idPrefix, boxes);
    scene.box = boxes.box;
    if (scene.box.Empty()) {
        // Nothing to draw: a square metre of paper for the title block.
        scene.box = RectBox(0.0, 0.0, 1000.0, 1000.0);
    }
    scene.margin = std::max(100.0, 0.05 * std::max(scene.box.Width(), scene.box.Height()));
    scene.textSize = (scene.box.Width() + 2.0 * scene.margin) / 60.0;
    ItemVisitor items(scene, pointsOfASet);
    Walk(*place.element, idPrefix, items);
    return scene;
}

std::string PlacePrefix(const ElementPlace& place)
{
    return "order-" + std::to_string(place.orderIndex) + "-element-" + std::to_string(place.elementIndex) + "-";
}

} // namespace ItUnitechnik::Drawing
