// The example slab as a person sees it: the tool renders the SVG and the HTML
// page, Debian's Chromium shows each headless and takes a screenshot, and the
// screenshot's pixels must show the element's fill inside the outline, white
// inside the opening and beside the element, and the bars in their colours.
// A machine without Chromium fails here; nothing is skipped.

#include "example_documents.h"
#include "png_image.h"
#include "support/test_support.h"
#include "svg_reading.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <sstream>

namespace ItUnitechnik::Testing {
namespace {

// The colours of the drawing's stylesheet.
const Colour kFill{0xd9, 0xd2, 0xc5};
const Colour kWhite{0xff, 0xff, 0xff};
const Colour kBar{0xc0, 0x39, 0x2b};
const Colour kMatBar{0x2e, 0x8b, 0x57};

std::string FindChromium()
{
    const char* path = std::getenv("PATH");
    std::istringstream folders(path == nullptr ? "" : path);
    std::string folder;
    while (std::getline(folders, folder, ':')) {
        const std::string candidate = folder + "/chromium";
        if (!folder.empty() && access(candidate.c_str(), X_OK) == 0) {
            return candidate;
        }
    }
    return "";
}

std::string Quoted(const std::string& text)
{
    std::string quoted = "'";
    for (const char c : text) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

std::size_t Occurrences(const std::string& text, const std::string& part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

int Shell(const std::string& command)
{
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// Where the screenshots stay for a person to look at (the README's picture
// is the first of them).
std::string OutputFolder()
{
    const std::string folder = ITUNITECHNIK_RENDER_OUTPUT_DIR;
    mkdir(folder.c_str(), 0755);
    return folder;
}

// Headless Chromium, with a profile of its own and nothing fetched from the
// network (no host name resolves), takes a screenshot of the page.
PngImage Screenshot(const std::string& page, const std::string& png, int width, int height)
{
    const std::string chromium = FindChromium();
    if (chromium.empty()) {
        ADD_FAILURE() << "chromium is not on PATH: install Debian's chromium (.ci/run does)";
        return {};
    }
    TemporaryDirectory profile;
    std::remove(png.c_str());
    const std::string command =
        "timeout 120 " + Quoted(chromium) +
        " --headless --no-sandbox --disable-gpu --no-first-run --disable-background-networking"
        " --disable-component-update --disable-sync --disable-extensions --disable-default-apps"
        " --hide-scrollbars --force-device-scale-factor=1 '--host-resolver-rules=MAP * ~NOTFOUND'"
        " --user-data-dir=" +
        Quoted(profile.Path()) + " --window-size=" + std::to_string(width) + "," + std::to_string(height) +
        " --screenshot=" + Quoted(png) + " " + Quoted("file://" + page) + " >" + Quoted(png + ".log") + " 2>&1";
    const int result = Shell(command);
    EXPECT_EQ(result, 0) << command << "\nsee " << png << ".log";
    PngImage image = PngImage::Read(png);
    EXPECT_EQ(image.Width(), width) << image.error;
    EXPECT_EQ(image.Height(), height) << image.error;
    return image;
}

// The tool, as a user runs it.
void Render(const std::string& slab, const std::string& output, const std::string& options)
{
    const std::string command = Quoted(UNITECHNIK_TOOL) + " render " + Quoted(slab) + " -o " + Quoted(output) + options;
    ASSERT_EQ(Shell(command), 0) << command;
}

// Where a point of the slab (in mm, y up) lands on the screenshot.
using Mapping = std::function<Point(Point)>;

// Where a point of the drawing lands on the screenshot of an SVG shown alone:
// an SVG without a size fills the window, its viewBox fitted in and centred.
// The viewBox is checked on its own in the SVG's tests; here it is read back
// from the file the browser showed.
Mapping SvgMapping(const std::string& svg, int width, int height)
{
    const std::string text = ReadFileBytes(svg);
    const std::size_t found = text.find("viewBox=\"");
    std::vector<double> box;
    if (found != std::string::npos) {
        box = NumbersOf(text.substr(found + 9, text.find('"', found + 9) - found - 9).c_str());
    }
    if (box.size() != 4 || box[2] <= 0 || box[3] <= 0) {
        ADD_FAILURE() << "no viewBox in " << svg;
        return [](Point p) { return p; };
    }
    const double scale = std::min(width / box[2], height / box[3]);
    const double left = (width - box[2] * scale) / 2;
    const double top = (height - box[3] * scale) / 2;
    return [=](Point p) { return Point{left + (p.x - box[0]) * scale, top + (-p.y - box[1]) * scale}; };
}

// The colour found within `reach` pixels across a thin line at `at`, the
// nearest to `wanted`: a bar a few pixels wide covers at least one pixel.
Colour Across(const PngImage& image, Point at, bool vertical, int reach, Colour wanted)
{
    Colour best = image.At(static_cast<int>(at.x), static_cast<int>(at.y));
    int bestDistance = 1 << 30;
    for (int step = -reach; step <= reach; ++step) {
        const int x = static_cast<int>(at.x) + (vertical ? 0 : step);
        const int y = static_cast<int>(at.y) + (vertical ? step : 0);
        const Colour c = image.At(x, y);
        const int distance = std::abs(c.r - wanted.r) + std::abs(c.g - wanted.g) + std::abs(c.b - wanted.b);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = c;
        }
    }
    return best;
}

void CheckSlabPixels(const PngImage& image, const Mapping& to)
{
    const auto at = [&](double x, double y) {
        const Point p = to({x, y});
        return image.At(static_cast<int>(p.x), static_cast<int>(p.y));
    };
    // Inside the outline, away from every bar, girder, part and wire (the
    // wires stand every 150 mm from x, y = 125).
    for (const Point p : {Point{5000, 1700}, Point{400, 1200}, Point{3000, 700}}) {
        EXPECT_TRUE(Near(at(p.x, p.y), kFill, 6)) << "(" << p.x << ", " << p.y << ") " << Describe(at(p.x, p.y));
    }
    // Inside the opening, (1000, 600) to (2200, 1500), between the wires.
    for (const Point p : {Point{1600, 1050}, Point{1100, 1400}, Point{2100, 700}}) {
        EXPECT_TRUE(Near(at(p.x, p.y), kWhite, 6)) << "(" << p.x << ", " << p.y << ") " << Describe(at(p.x, p.y));
    }
    // Beside the element, in the margin.
    EXPECT_TRUE(Near(at(-150, 1200), kWhite, 6)) << Describe(at(-150, 1200));
    EXPECT_TRUE(Near(at(6150, 1200), kWhite, 6)) << Describe(at(6150, 1200));
    // On the first and third bar of the loose set, y = 400 and 1200 from
    // x = 2600 to 5600, and on the cranked bar's long leg, y = 450 from
    // x = 1182 to 2682.
    for (const Point p : {Point{3200, 400}, Point{4400, 1200}, Point{1550, 450}}) {
        const Colour found = Across(image, to(p), true, 4, kBar);
        EXPECT_TRUE(Near(found, kBar, 12)) << "(" << p.x << ", " << p.y << ") " << Describe(found);
    }
    // On the mat's first wire along x at y = 125: the mat's colour. A wire of
    // 6 mm is thinner than a pixel on the page, so the browser blends it with
    // the fill; still far nearer the mat's green than the fill (352 away).
    const Colour matBar = Across(image, to({3050, 125}), true, 4, kMatBar);
    EXPECT_TRUE(Near(matBar, kMatBar, 100)) << Describe(matBar);
}

// The box of the pixels in the element's fill, taken from the rows and
// columns that hold many of them: the legend's small swatch does not count.
struct PixelBox {
    int left = 0, top = 0, right = -1, bottom = -1;
};
PixelBox FillBox(const PngImage& image)
{
    std::vector<int> rows(static_cast<std::size_t>(image.Height()), 0);
    std::vector<int> columns(static_cast<std::size_t>(image.Width()), 0);
    for (int y = 0; y < image.Height(); ++y) {
        for (int x = 0; x < image.Width(); ++x) {
            if (Near(image.At(x, y), kFill, 2)) {
                ++rows[static_cast<std::size_t>(y)];
                ++columns[static_cast<std::size_t>(x)];
            }
        }
    }
    PixelBox box;
    box.left = image.Width();
    box.top = image.Height();
    for (int y = 0; y < image.Height(); ++y) {
        if (rows[static_cast<std::size_t>(y)] > image.Width() / 4) {
            box.top = std::min(box.top, y);
            box.bottom = std::max(box.bottom, y);
        }
    }
    for (int x = 0; x < image.Width(); ++x) {
        if (columns[static_cast<std::size_t>(x)] > (box.bottom - box.top) / 4) {
            box.left = std::min(box.left, x);
            box.right = std::max(box.right, x);
        }
    }
    return box;
}

class Browser : public ::testing::Test {
protected:
    void SetUp() override
    {
        folder_ = OutputFolder();
        slab_ = WriteExampleSlab(work_.Path());
    }
    TemporaryDirectory work_;
    std::string folder_;
    std::string slab_;
};

TEST_F(Browser, TheSvgShowsTheSlabWithItsOpeningAndBars)
{
    const std::string svg = folder_ + "/slab.svg";
    Render(slab_, svg, "");
    const int width = 2000;
    const int height = 1300;
    const PngImage image = Screenshot(svg, folder_ + "/slab.svg.png", width, height);
    ASSERT_EQ(image.Width(), width);

    const Mapping to = SvgMapping(svg, width, height);

    // The fill seen by the browser spans the outline where the viewBox puts
    // it, within the outline's own stroke.
    const PixelBox fill = FillBox(image);
    EXPECT_NEAR(fill.left, to({0, 0}).x, 3);
    EXPECT_NEAR(fill.right, to({6000, 0}).x, 3);
    EXPECT_NEAR(fill.top, to({0, 2400}).y, 3);
    EXPECT_NEAR(fill.bottom, to({0, 0}).y, 3);
    CheckSlabPixels(image, to);
}

TEST_F(Browser, TheHtmlPageShowsTheSlabBesideItsRecords)
{
    const std::string html = folder_ + "/slab.html";
    Render(slab_, html, " --html");
    const std::string page = ReadFileBytes(html);
    // Self-contained: nothing to fetch, nothing to run.
    EXPECT_EQ(page.find("<script"), std::string::npos);
    EXPECT_EQ(Occurrences(page, "http"), 1u) << "only the SVG's namespace";
    EXPECT_EQ(page.find("src="), std::string::npos);
    EXPECT_EQ(page.find("<link"), std::string::npos);
    EXPECT_NE(page.find("<td>rodstock-2</td>"), std::string::npos);
    EXPECT_NE(page.find("<td>Lifting anchor</td>"), std::string::npos);

    const int width = 3000;
    const int height = 1500;
    const PngImage image = Screenshot(html, folder_ + "/slab.html.png", width, height);
    ASSERT_EQ(image.Width(), width);
    // Where the page's layout puts the drawing is the page's business: the
    // element is found by its fill, which spans the outline (0, 0) to
    // (6000, 2400).
    const PixelBox fill = FillBox(image);
    ASSERT_GT(fill.right - fill.left, 1000) << "the drawing is not wide enough to see";
    // The drawing stands left of the table of records.
    EXPECT_LT(fill.right, width * 2 / 3);
    const double scaleX = (fill.right - fill.left + 1) / 6000.0;
    const double scaleY = (fill.bottom - fill.top + 1) / 2400.0;
    EXPECT_NEAR(scaleX, scaleY, 0.01) << "the drawing keeps its proportions";
    const Mapping to = [&](Point p) { return Point{fill.left + p.x * scaleX, fill.bottom + 1 - p.y * scaleY}; };
    CheckSlabPixels(image, to);
}

// A slab of 4000 by 2400 with nothing but a set of 5 bars of 20 mm, 3000
// long, 400 apart, from (500, 200) along x: as a plant reads the record, the
// drawing shows each of the 5 bars, nothing between them and nothing beyond
// their ends.
TEST_F(Browser, ASetOfFiveBarsIsDrawnAsFiveBarsAtTheirPitch)
{
    const std::string script = work_.Path() + "/set.json";
    std::ofstream(script, std::ios::binary) << R"({"calls": [
  {"call": "startOrder", "orderValue": 1, "elementNumberArg": 1, "placement": [0, 0, 0, 4000, 0, 0, 0, 2400, 0],
   "version": 600, "elementTextArg": "Bar set", "elementMeasureArg": 9.6, "clearDocument": true},
  {"call": "addContour", "pointCount": 5, "points": [0, 0, 4000, 0, 4000, 2400, 0, 2400, 0, 0]},
  {"call": "addStraightRodstock", "bar": {"designation": "500", "positionX": 500, "positionY": 200,
   "positionZ": 400, "firstSize": 5, "secondSize": 20, "thirdSize": 3000, "rodKind": 1}},
  {"call": "endDocument", "path": "set.uni"}]})";
    const std::string build = Quoted(UNITECHNIK_TOOL) + " build " + Quoted(script) + " -o " +
                              Quoted(work_.Path() + "/set.uni") + " >/dev/null";
    ASSERT_EQ(Shell(build), 0) << build;
    const std::string svg = folder_ + "/set.svg";
    Render(work_.Path() + "/set.uni", svg, "");
    const int width = 2000;
    const int height = 1600;
    const PngImage image = Screenshot(svg, folder_ + "/set.svg.png", width, height);
    ASSERT_EQ(image.Width(), width);
    const Mapping to = SvgMapping(svg, width, height);
    const auto at = [&](double x, double y) {
        const Point p = to({x, y});
        return image.At(static_cast<int>(p.x), static_cast<int>(p.y));
    };
    for (int i = 0; i < 5; ++i) {
        const double y = 200.0 + 400.0 * i;
        // Each bar, near both ends and in the middle.
        for (const double x : {600.0, 2000.0, 3400.0}) {
            const Colour c = Across(image, to({x, y}), true, 3, kBar);
            EXPECT_TRUE(Near(c, kBar, 12)) << "bar " << i << " at x " << x << ": " << Describe(c);
        }
        // Nothing beyond its ends: the fill 100 mm before and after.
        EXPECT_TRUE(Near(at(400, y), kFill, 6)) << "before bar " << i << ": " << Describe(at(400, y));
        EXPECT_TRUE(Near(at(3600, y), kFill, 6)) << "after bar " << i << ": " << Describe(at(3600, y));
        // Nothing between it and the next: the fill halfway.
        if (i < 4) {
            for (const double x : {600.0, 2000.0, 3400.0}) {
                EXPECT_TRUE(Near(at(x, y + 200), kFill, 6))
                    << "between bars " << i << " and " << i + 1 << " at x " << x << ": " << Describe(at(x, y + 200));
            }
        }
    }
    // No sixth bar at the pitch after the fifth.
    EXPECT_TRUE(Near(at(2000, 2200), kFill, 6)) << Describe(at(2000, 2200));
}

} // namespace
} // namespace ItUnitechnik::Testing
