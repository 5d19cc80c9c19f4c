#include "example_documents.h"

#include "build/runner.h"
#include "build/script.h"
#include "exports/document.h"
#include "geometry/arc.h"
#include "geometry/line_segment.h"
#include "input/json_input.h"
#include "itunitechnik.h"
#include "plant/plant_meanings.h"
#include "reading/tolerant_reading.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>

namespace ItUnitechnik::Testing {

namespace {

class Quiet final : public Tool::Script::RunObserver {
public:
    void Called(const Tool::Script::Call&, const Tool::Script::Outcome&) override {}
    void Wrote(const std::string&) override {}
};

GeoData Line(std::int32_t x0, std::int32_t y0, std::int32_t x1, std::int32_t y1)
{
    return GeoData(600, L'S', std::make_unique<LineSegment>(600, Point2d(x0, y0), Point2d(x1, y1)));
}

} // namespace

std::string WriteExampleSlab(const std::string& directory)
{
    const std::string script = ReadFileBytes(std::string(ITUNITECHNIK_EXAMPLES_DIR) + "/slab.json");
    EXPECT_FALSE(script.empty()) << "examples/slab.json cannot be read";
    std::vector<Tool::Script::Call> calls = Tool::Script::ReadCalls(Tool::ParseJsonText(script));
    const std::string path = directory + "/slab.uni";
    Tool::Script::RedirectLastDocument(calls, path);
    Quiet quiet;
    Tool::Script::RunCalls(calls, quiet);
    return path;
}

std::string WriteArchedSlab(const std::string& directory)
{
    const double placement[9] = {0, 0, 0, 6000, 0, 0, 0, 5400, 0};
    startOrder(2, 7, placement, 600, HostText(u"Arched slab"), 1.0, true);
    ElementPart& element = *theDocument.CurrentElement();

    Contour contour(600);
    contour.geoData.push_back(Line(0, 0, 6000, 0));
    contour.geoData.push_back(Line(6000, 0, 6000, 2400));
    auto arc = std::make_unique<Arc>(600);
    arc->centre = Point2d(3000, 2400);
    arc->radius = 3000;
    arc->startAngle = 0;
    arc->endAngle = 180;
    contour.geoData.push_back(GeoData(600, L'B', std::move(arc)));
    contour.geoData.push_back(Line(0, 2400, 0, 0));
    element.appendContour(contour);

    Cutout cutout(600);
    cutout.cutoutName = L"Round light";
    cutout.geoData.push_back(GeoData(600, L'K', std::make_unique<Circle>(600, Point2d(3000, 3400), 400)));
    element.appendCutout(cutout);

    const std::string path = directory + "/arched.uni";
    theDocument.Save(Wide(path));
    return path;
}

std::vector<Order> ReadBack(const std::string& path)
{
    const std::string bytes = ReadFileBytes(path);
    EXPECT_FALSE(bytes.empty()) << path;
    TolerantDocument document = ReadTolerantly(bytes);
    EXPECT_TRUE(document.Complete()) << path;
    return document.orders;
}

Rodstock BarSet(const wchar_t* grade, std::int32_t count, std::int32_t diameter, std::int32_t length,
                std::int32_t pitch)
{
    // Through the plant's table, the one place that says which member is which.
    Rodstock bar(600);
    Plant::kBar.grade.set(bar, grade);
    Plant::kBar.count.set(bar, count);
    Plant::kBar.diameter.set(bar, diameter);
    Plant::kBar.length.set(bar, length);
    Plant::kBar.pitch.set(bar, pitch);
    return bar;
}

} // namespace ItUnitechnik::Testing
