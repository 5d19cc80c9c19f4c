#include "render/svg_document.h"

#include "plant/plant_text.h"
#include "render/markup_text.h"

#include <algorithm>

namespace ItUnitechnik::Drawing {

namespace {

constexpr double kLineHeight = 1.5; // of the text size

std::string Title(const Item& item)
{
    return "<title>" + Escaped(item.id + ": " + item.label + "\n" + item.summary + "\n" + FieldLines(item.fields)) +
           "</title>";
}

void AddItem(std::string& out, const Item& item)
{
    out += "<g class=\"" + item.kind + "\" id=\"" + Escaped(item.id) + "\">" + Title(item);
    out += item.shapes; // on its own: a set's shapes can be megabytes
    for (const Item& part : item.parts) {
        AddItem(out, part);
    }
    out += "</g>\n";
}

std::string Text(const char* textClass, double x, double y, double size, const std::string& content)
{
    return "<text class=\"" + std::string(textClass) + "\" x=\"" + Number(x) + "\" y=\"" + Number(y) +
           "\" font-size=\"" + Number(size) + "\">" + Escaped(content) + "</text>";
}

// How far below the drawing's margin the band of legend and title block
// reaches.
double BandHeight(const Scene& scene)
{
    const std::size_t rows = std::max<std::size_t>(6, TitleLines(scene).size());
    return (static_cast<double>(rows) + 1.5) * kLineHeight * scene.textSize;
}

// The legend, in the SVG's own coordinates (y down), from (left, top).
std::string Legend(double left, double top, double fs)
{
    struct Entry {
        const char* label;
        std::string swatch;
    };
    const double w = 2.0 * fs;
    const double h = 0.9 * fs;
    const auto rect = [&](const char* shapeClass, double y) {
        return "<rect class=\"" + std::string(shapeClass) + "\" x=\"" + Number(left) + "\" y=\"" + Number(y - h) +
               "\" width=\"" + Number(w) + "\" height=\"" + Number(h) + "\"/>";
    };
    const auto line = [&](const char* shapeClass, double y, double width) {
        return "<path class=\"" + std::string(shapeClass) + "\" d=\"M " + Number(left) + " " + Number(y - h / 2) +
               " L " + Number(left + w) + " " + Number(y - h / 2) + "\" stroke-width=\"" + Number(width) + "\"/>";
    };
    std::string out = "<g class=\"legend\">";
    const char* labels[] = {"element", "opening", "mounted part", "bar", "mat and its bars", "braced girder"};
    for (int row = 0; row < 6; ++row) {
        const double y = top + (row + 1) * kLineHeight * fs;
        std::string swatch;
        switch (row) {
        case 0:
            swatch = rect("outline", y);
            break;
        case 1:
            swatch = rect("opening", y);
            break;
        case 2:
            swatch = rect("part-box", y);
            break;
        case 3:
            swatch = line("bar", y, 0.3 * fs);
            break;
        case 4:
            swatch = rect("mat", y) + line("mat-bar", y, 0.2 * fs);
            break;
        default:
            swatch = R"(<path class="girder-chord" d="M )" + Number(left) + " " + Number(y - h) + " L " +
                     Number(left + w) + " " + Number(y - h) + " M " + Number(left) + " " + Number(y) + " L " +
                     Number(left + w) + " " + Number(y) + "\" stroke-width=\"" + Number(0.12 * fs) + "\"/>";
        }
        out += swatch + Text("legend-label", left + w + 0.6 * fs, y, fs, labels[row]);
    }
    return out + "</g>\n";
}

std::string TitleBlock(const Scene& scene, double left, double top, double width)
{
    const double fs = scene.textSize;
    const std::vector<std::string> lines = TitleLines(scene);
    const double height = (static_cast<double>(lines.size()) + 0.6) * kLineHeight * fs;
    std::string out = R"(<g class="titleblock"><rect class="titleblock-frame" x=")" + Number(left) + "\" y=\"" +
                      Number(top + 0.5 * fs) + "\" width=\"" + Number(width) + "\" height=\"" + Number(height) + "\"/>";
    for (std::size_t i = 0; i < lines.size(); ++i) {
        out += Text(i == 0 ? "title-line title-main" : "title-line", left + 0.6 * fs,
                    top + (static_cast<double>(i) + 1.0) * kLineHeight * fs, fs, lines[i]);
    }
    return out + "</g>\n";
}

} // namespace

const char* DrawingStyle()
{
    return ".outline { fill: #d9d2c5; stroke: #2b2b2b; stroke-width: 2px; vector-effect: non-scaling-stroke; "
           "fill-rule: evenodd; }\n"
           ".opening { fill: #ffffff; stroke: #2b2b2b; stroke-width: 2px; vector-effect: non-scaling-stroke; }\n"
           ".part { fill: none; stroke: #1f5fbf; stroke-width: 2px; vector-effect: non-scaling-stroke; }\n"
           ".part-box { fill: none; stroke: #1f5fbf; stroke-width: 1px; stroke-dasharray: 4 3; "
           "vector-effect: non-scaling-stroke; }\n"
           ".part-name { fill: #1f5fbf; text-anchor: middle; }\n"
           ".bar { fill: none; stroke: #c0392b; stroke-linecap: round; stroke-linejoin: round; }\n"
           ".mat { fill: none; stroke: #2e8b57; stroke-width: 1.5px; stroke-dasharray: 10 5; "
           "vector-effect: non-scaling-stroke; }\n"
           ".mat-bar { fill: none; stroke: #2e8b57; stroke-linecap: round; stroke-linejoin: round; }\n"
           ".girder-chord, .girder-lattice { fill: none; stroke: #d98200; }\n"
           ".titleblock-frame { fill: none; stroke: #2b2b2b; stroke-width: 1px; vector-effect: non-scaling-stroke; }\n"
           "text { font-family: 'DejaVu Sans', 'Liberation Sans', Arial, sans-serif; fill: #222222; }\n"
           ".title-main, .caption { font-weight: bold; }\n";
}

std::string Heading(const Scene& scene)
{
    const std::string orderNumber = OrderNumberText(*scene.place.order);
    const std::string text = Plant::Trimmed(scene.place.element->elementText30);
    return "Order " + (orderNumber.empty() ? std::to_string(scene.place.orderIndex) : orderNumber) + ", element " +
           ElementNumberText(*scene.place.element) + (text.empty() ? "" : ": " + text);
}

std::vector<std::string> TitleLines(const Scene& scene)
{
    const Order& order = *scene.place.order;
    const ElementPart& element = *scene.place.element;
    std::vector<std::string> lines;
    const std::string orderNumber = OrderNumberText(order);
    lines.push_back("Order " + (orderNumber.empty() ? std::to_string(scene.place.orderIndex) : orderNumber));
    const std::string text = Plant::Trimmed(element.elementText30);
    lines.push_back("Element " + ElementNumberText(element) + (text.empty() ? "" : ": " + text));
    lines.push_back("Format version " + std::to_string(element.version));
    lines.push_back("Extents " + std::to_string(element.extentX) + " x " + std::to_string(element.extentY) + " mm");
    if (scene.irons.empty()) {
        lines.emplace_back("External irons: none");
    }
    for (const Item& iron : scene.irons) {
        lines.push_back(iron.label + ": " + iron.summary);
    }
    return lines;
}

std::string SvgDocument(const std::vector<Scene>& scenes, const SvgOptions& options)
{
    std::string body;
    double dy = 0.0;
    double viewTop = 0.0;
    double viewBottom = 0.0;
    double viewLeft = 0.0;
    double viewRight = 0.0;
    for (std::size_t i = 0; i < scenes.size(); ++i) {
        const Scene& scene = scenes[i];
        const BoxD& box = scene.box;
        const double m = scene.margin;
        const double fs = scene.textSize;
        const double caption = options.captions ? 2.0 * fs : 0.0;
        if (i > 0) {
            // The next drawing begins below the band of the one before.
            dy = viewBottom + box.maxY + m + caption;
        }
        const double top = dy - box.maxY - m - caption;
        const double left = box.minX - m;
        const double width = box.Width() + 2.0 * m;
        const double bandTop = dy - box.minY + m;
        const double bottom = bandTop + BandHeight(scene);
        if (i == 0) {
            viewTop = top;
            viewLeft = left;
            viewRight = left + width;
        }
        viewLeft = std::min(viewLeft, left);
        viewRight = std::max(viewRight, left + width);
        viewBottom = bottom;

        const std::string& prefix = scene.idPrefix;
        body += R"(<g class="frame" id=")" + prefix + "frame\">\n";
        if (options.captions) {
            body += Text("caption", left, top + 1.4 * fs, 1.2 * fs, Heading(scene)) + "\n";
        }
        // The one flip: inside this group y points up, as on a drawing.
        body += R"(<g class="element" id=")" + prefix + "drawing\" transform=\"" +
                (dy == 0.0 ? std::string() : "translate(0 " + Number(dy) + ") ") + "scale(1 -1)\">\n";
        for (const Item& item : scene.items) {
            AddItem(body, item);
        }
        body += "</g>\n";
        body += Legend(left + fs, bandTop, fs);
        body += TitleBlock(scene, left + 0.4 * width, bandTop, 0.6 * width - fs);
        body += "</g>\n";
    }

    std::string title = "Unitechnik drawing";
    if (scenes.size() == 1) {
        title = Heading(scenes[0]);
    }
    std::string out;
    if (options.xmlDeclaration) {
        out += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    }
    out += R"(<svg xmlns="http://www.w3.org/2000/svg" class="unitechnik-drawing" viewBox=")" + Number(viewLeft) + " " +
           Number(viewTop) + " " + Number(viewRight - viewLeft) + " " + Number(viewBottom - viewTop) + "\">\n<title>" +
           Escaped(title) + "</title>\n<style>\n" + DrawingStyle() + "</style>\n" + body + "</svg>\n";
    return out;
}

} // namespace ItUnitechnik::Drawing
