// The SVG of the example slab and of an arched slab, read back with an XML
// parser: the viewBox, a group with class and id for every record, the
// coordinates of corners after the drawing's one flip, bars from their
// rotation, points on an arc. The expected numbers come from the slab's
// records (examples/slab.json) and the drawing's rules, worked out by hand.

#include "example_documents.h"
#include "render/scene.h"
#include "render/svg_document.h"
#include "support/test_support.h"
#include "svg_reading.h"
#include "tree/element_places.h"

#include <gtest/gtest.h>
#include <tinyxml2.h>

#include <cstring>
#include <memory>

namespace ItUnitechnik::Testing {
namespace {

using tinyxml2::XMLDocument;
using tinyxml2::XMLElement;

// One file read and drawn, kept for the tests of a suite.
struct Drawn {
    std::vector<Order> orders;
    std::string svg;
    XMLDocument xml;

    explicit Drawn(const std::string& path) : orders(ReadBack(path))
    {
        const std::vector<Drawing::ElementPlace> places = Drawing::ElementPlaces(orders);
        if (!places.empty()) {
            svg = Drawing::SvgDocument({Drawing::MakeScene(places[0])});
        }
        xml.Parse(svg.c_str());
    }

    const XMLElement* Root() const { return xml.RootElement(); }
    const XMLElement* Group(const std::string& id) const { return FindById(Root(), id); }

    // The points of the path in the group, in the root's coordinates.
    std::vector<Point> PointsOf(const std::string& id) const
    {
        std::vector<Point> points;
        const XMLElement* group = Group(id);
        const XMLElement* path = group == nullptr ? nullptr : group->FirstChildElement("path");
        if (path == nullptr) {
            ADD_FAILURE() << "no path in " << id;
            return points;
        }
        const Affine toRoot = ToRoot(path);
        for (const Point& p : PathPoints(path->Attribute("d"))) {
            points.push_back(toRoot.Apply(p));
        }
        return points;
    }
};

std::unique_ptr<TemporaryDirectory> directory;
std::unique_ptr<Drawn> slab;
std::unique_ptr<Drawn> arched;

class SlabSvg : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        directory = std::make_unique<TemporaryDirectory>();
        slab = std::make_unique<Drawn>(WriteExampleSlab(directory->Path()));
        arched = std::make_unique<Drawn>(WriteArchedSlab(directory->Path()));
    }
    static void TearDownTestSuite()
    {
        arched.reset();
        slab.reset();
        directory.reset();
    }
};

void ExpectPoints(const std::vector<Point>& actual, const std::vector<Point>& expected)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(actual[i].x, expected[i].x, 0.005) << "point " << i;
        EXPECT_NEAR(actual[i].y, expected[i].y, 0.005) << "point " << i;
    }
}

TEST_F(SlabSvg, IsWellFormedSvg)
{
    ASSERT_EQ(slab->xml.ErrorID(), tinyxml2::XML_SUCCESS) << slab->xml.ErrorStr();
    ASSERT_NE(slab->Root(), nullptr);
    EXPECT_STREQ(slab->Root()->Name(), "svg");
    EXPECT_STREQ(slab->Root()->Attribute("xmlns"), "http://www.w3.org/2000/svg");
    // Self-contained: nothing is linked.
    EXPECT_EQ(slab->svg.find("href"), std::string::npos);
    EXPECT_EQ(slab->svg.find("<script"), std::string::npos);
}

TEST_F(SlabSvg, TheViewBoxIsTheSlabsBoxWithItsMargin)
{
    // Everything drawn lies in the outline, (0, 0) to (6000, 2400). The
    // margin is 5% of the longer side, 300; y runs down in SVG, so the top
    // is -(2400 + 300). Below the margin stands the band of legend and title
    // block: 6 legend rows and 1.5 more, each 1.5 times the text size of
    // (6000 + 2 * 300) / 60 = 110, so 1237.5. Height: 2400 + 600 + 1237.5.
    const std::vector<double> box = NumbersOf(slab->Root()->Attribute("viewBox"));
    ASSERT_EQ(box.size(), 4u);
    EXPECT_EQ(box[0], -300.0);
    EXPECT_EQ(box[1], -2700.0);
    EXPECT_EQ(box[2], 6600.0);
    EXPECT_EQ(box[3], 4237.5);
}

TEST_F(SlabSvg, TheDrawingIsFlippedOnceAtItsRootGroupAndItsTextsStandUpright)
{
    const XMLElement* drawing = slab->Group("drawing");
    ASSERT_NE(drawing, nullptr);
    EXPECT_STREQ(drawing->Name(), "g");
    EXPECT_STREQ(drawing->Attribute("transform"), "scale(1 -1)");
    int flipped = 0;
    for (const XMLElement* g : All(slab->Root(), "g")) {
        if (g->Attribute("transform") != nullptr) {
            ++flipped;
        }
    }
    EXPECT_EQ(flipped, 1) << "one group turns y up, no other group moves";
    // A text in the drawing turns back, so that its own y points down again.
    const std::vector<const XMLElement*> texts = All(drawing, "text");
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_STREQ(texts[0]->GetText(), "Socket box, height 60 mm");
    EXPECT_STREQ(texts[0]->Attribute("transform"), "scale(1 -1)");
    EXPECT_EQ(ToRoot(texts[0]).d, 1.0);
    // It stands above the part's box, (4700, 1000) to (4800, 1100): in the
    // root's coordinates above -1100, in the middle of x.
    const Point anchor = ToRoot(texts[0]).Apply({texts[0]->DoubleAttribute("x"), texts[0]->DoubleAttribute("y")});
    EXPECT_EQ(anchor.x, 4750.0);
    EXPECT_LT(anchor.y, -1100.0);
}

TEST_F(SlabSvg, EveryRecordIsAGroupWithItsClassIdAndFields)
{
    struct Expected {
        const char* id;
        const char* kind;
        const char* field; // one line of its title
    };
    const Expected records[] = {
        {"contour-1", "contour", "geoData[2].curve.start.x: 6000"},
        {"cutout-1", "cutout", "cutoutName: Stair opening"},
        {"mountingpart-1", "mountingpart", "partName: Socket box"},
        {"steelmat-1", "steelmat", "name: Q188A"},
        {"steelmat-1-rodstock-1", "rodstock", "thirdSize: 5800"},
        {"steelmat-1-rodstock-16", "rodstock", "rotation: 90"},
        {"bracedgirder-1", "bracedgirder", "firstSize: 3400"},
        {"rodstock-1", "rodstock", "secondSize: 10"},
        {"rodstock-2", "rodstock", "freeForm.parts[0].segments[3].angle: 45"},
    };
    for (const Expected& record : records) {
        const XMLElement* group = slab->Group(record.id);
        ASSERT_NE(group, nullptr) << record.id;
        EXPECT_STREQ(group->Name(), "g") << record.id;
        EXPECT_STREQ(group->Attribute("class"), record.kind) << record.id;
        const XMLElement* title = group->FirstChildElement("title");
        ASSERT_NE(title, nullptr) << record.id;
        EXPECT_EQ(group->FirstChildElement(), title) << record.id << ": the title comes first";
        const std::string text = title->GetText();
        EXPECT_EQ(text.rfind(std::string(record.id) + ": ", 0), 0u) << text;
        EXPECT_NE(text.find(std::string("\n") + record.field + "\n"), std::string::npos) << record.id << "\n" << text;
    }
    // A mat's bars stand in the mat's group.
    EXPECT_EQ(slab->Group("steelmat-1-rodstock-1")->Parent(), slab->Group("steelmat-1"));
    // Nothing else is drawn: the contour, the opening, the part, the mat and
    // its 54 wires, the girder group and two bar sets.
    int groups = 0;
    for (const XMLElement* g : All(slab->Group("drawing"), "g")) {
        groups += g->Attribute("id") != nullptr ? 1 : 0;
    }
    EXPECT_EQ(groups, 61);
}

TEST_F(SlabSvg, TheExternalIronIsListedInTheTitleBlockNotDrawn)
{
    EXPECT_EQ(slab->Group("externaliron-1"), nullptr);
    std::vector<std::string> lines;
    for (const XMLElement* text : All(slab->Root(), "text")) {
        const XMLElement* parent = text->Parent()->ToElement();
        if (parent != nullptr && parent->Attribute("class") != nullptr &&
            std::strcmp(parent->Attribute("class"), "titleblock") == 0) {
            lines.emplace_back(text->GetText());
        }
    }
    const std::vector<std::string> expected = {"Order ORD-2026-0142", "Element 101: Floor slab FS-101",
                                               "Format version 600", "Extents 6000 x 2400 mm",
                                               "External iron 1: Lifting anchor, 4 pieces, 1.60 kg, code 2"};
    EXPECT_EQ(lines, expected);
}

TEST_F(SlabSvg, TheLegendAndTitleBlockStandInsideTheViewBox)
{
    const std::vector<double> box = NumbersOf(slab->Root()->Attribute("viewBox"));
    ASSERT_EQ(box.size(), 4u);
    int texts = 0;
    for (const XMLElement* text : All(slab->Root(), "text")) {
        const Point at = ToRoot(text).Apply({text->DoubleAttribute("x"), text->DoubleAttribute("y")});
        EXPECT_GE(at.x, box[0]) << text->GetText();
        EXPECT_GT(at.y, box[1]) << text->GetText();
        EXPECT_LT(at.y, box[1] + box[3]) << text->GetText();
        ++texts;
    }
    // Six legend labels, five lines of the title block, the part's name.
    EXPECT_EQ(texts, 12);
}

TEST_F(SlabSvg, TheContoursCornersStandWhereTheFlipPutsThem)
{
    // (0, 0) (6000, 0) (6000, 2400) (0, 2400) and back, y turned down.
    ExpectPoints(slab->PointsOf("contour-1"), {{0, 0}, {6000, 0}, {6000, -2400}, {0, -2400}, {0, 0}});
    const XMLElement* path = slab->Group("contour-1")->FirstChildElement("path");
    EXPECT_STREQ(path->Attribute("class"), "outline");
    EXPECT_EQ(std::string(path->Attribute("d")).back(), 'Z');
}

TEST_F(SlabSvg, TheOpeningsCornersStandWhereTheFlipPutsThem)
{
    ExpectPoints(slab->PointsOf("cutout-1"), {{1000, -600}, {2200, -600}, {2200, -1500}, {1000, -1500}, {1000, -600}});
    EXPECT_STREQ(slab->Group("cutout-1")->FirstChildElement("path")->Attribute("class"), "opening");
}

TEST_F(SlabSvg, EachBarOfASetStandsAtItsPitchForItsLength)
{
    // 5 bars of 10 mm, 3000 long, from (2600, 400) along x, 400 apart: one
    // path, bar by bar, y turned down.
    ExpectPoints(slab->PointsOf("rodstock-1"), {{2600, -400},
                                                {5600, -400},
                                                {2600, -800},
                                                {5600, -800},
                                                {2600, -1200},
                                                {5600, -1200},
                                                {2600, -1600},
                                                {5600, -1600},
                                                {2600, -2000},
                                                {5600, -2000}});
    const XMLElement* set = slab->Group("rodstock-1")->FirstChildElement("path");
    EXPECT_STREQ(set->Attribute("stroke-width"), "10");
    EXPECT_STREQ(set->Attribute("class"), "bar");
    // Hovering says what the set is.
    const std::string title = slab->Group("rodstock-1")->FirstChildElement("title")->GetText();
    EXPECT_NE(title.find("\n5 \u00d7 \u00d810 \u00d7 3000 mm, pitch 400 mm, z 50 mm, grade 500\n"), std::string::npos)
        << title;
}

TEST_F(SlabSvg, ABentBarShowsItsLegsInPlanAtTheCosineOfTheTurnsBeforeThem)
{
    // 2 cranked bars from (600, 450), 1200 apart: legs of 300, 400 at 45
    // degrees (282.84 in plan), 1500, 400 at -45 and 300, so x runs 600, 900,
    // 1182.84, 2682.84, 2965.69, 3265.69 (the hundredths the file carries).
    const std::vector<double> xs = {600, 900, 1182.84, 2682.84, 2965.69, 3265.69};
    std::vector<Point> expected;
    for (const double y : {-450.0, -1650.0}) {
        for (const double x : xs) {
            expected.push_back({x, y});
        }
    }
    ExpectPoints(slab->PointsOf("rodstock-2"), expected);
    EXPECT_STREQ(slab->Group("rodstock-2")->FirstChildElement("path")->Attribute("stroke-width"), "12");
}

TEST_F(SlabSvg, AMatsWiresStandFromTheMatsCorner)
{
    // The mat's corner is (100, 100). Its first wire: (0, 25) along x, 5800
    // long; its sixteenth the first across: (25, 0), a quarter turn, 2200.
    ExpectPoints(slab->PointsOf("steelmat-1-rodstock-1"), {{100, -125}, {5900, -125}});
    ExpectPoints(slab->PointsOf("steelmat-1-rodstock-16"), {{125, -100}, {125, -2300}});
    EXPECT_STREQ(slab->Group("steelmat-1-rodstock-16")->FirstChildElement("path")->Attribute("stroke-width"), "6");
    EXPECT_STREQ(slab->Group("steelmat-1-rodstock-16")->FirstChildElement("path")->Attribute("class"), "mat-bar");
}

TEST_F(SlabSvg, EachGirderOfAGroupHasItsTwoChordsAtItsSpacing)
{
    // 4 girders from (2400, 300) along x, 3400 long, 600 apart: the chords
    // of each stand 40 mm to either side of its axis at y = 300 + 600 i.
    std::vector<Point> expected;
    for (int i = 0; i < 4; ++i) {
        const double y = 300.0 + 600.0 * i;
        expected.insert(expected.end(), {{2400, -(y + 40)}, {5800, -(y + 40)}, {2400, -(y - 40)}, {5800, -(y - 40)}});
    }
    ExpectPoints(slab->PointsOf("bracedgirder-1"), expected);
    EXPECT_STREQ(slab->Group("bracedgirder-1")->FirstChildElement("path")->Attribute("class"), "girder-chord");
}

TEST_F(SlabSvg, TheMatIsItsRectangleFromItsCorner)
{
    const XMLElement* rect = slab->Group("steelmat-1")->FirstChildElement("rect");
    ASSERT_NE(rect, nullptr);
    EXPECT_EQ(rect->DoubleAttribute("x"), 100.0);
    EXPECT_EQ(rect->DoubleAttribute("y"), 100.0);
    EXPECT_EQ(rect->DoubleAttribute("width"), 5800.0);
    EXPECT_EQ(rect->DoubleAttribute("height"), 2200.0);
}

TEST_F(SlabSvg, AnArcContourAndARoundOpeningAreDrawnAsArcs)
{
    ASSERT_EQ(arched->xml.ErrorID(), tinyxml2::XML_SUCCESS) << arched->xml.ErrorStr();
    // The box runs up to the arc's top at 2400 + 3000, not down to the
    // bottom of its whole circle: top -(5400 + 300), margin 300.
    const std::vector<double> box = NumbersOf(arched->Root()->Attribute("viewBox"));
    ASSERT_EQ(box.size(), 4u);
    EXPECT_EQ(box[0], -300.0);
    EXPECT_EQ(box[1], -5700.0);
    EXPECT_EQ(box[2], 6600.0);

    const XMLElement* outline = arched->Group("contour-1")->FirstChildElement("path");
    ASSERT_NE(outline, nullptr);
    const std::vector<PathCommand> commands = ParsePath(outline->Attribute("d"));
    ASSERT_EQ(commands.size(), 6u) << outline->Attribute("d");
    ASSERT_EQ(commands[3].command, 'A');
    EXPECT_EQ(commands[3].numbers, (std::vector<double>{3000, 3000, 0, 0, 1, 0, 2400}));
    EXPECT_EQ(commands[5].command, 'Z');

    // The arc as a browser takes it: about (3000, 2400), radius 3000, from
    // 0 degrees half a turn towards +y, so over the top of the slab.
    const ArcCentre arc = CentreOf({6000, 2400}, commands[3]);
    EXPECT_NEAR(arc.centre.x, 3000, 1e-6);
    EXPECT_NEAR(arc.centre.y, 2400, 1e-6);
    EXPECT_NEAR(arc.startDegrees, 0, 1e-6);
    EXPECT_NEAR(arc.sweepDegrees, 180, 1e-6);
    // Points on it: at 45, 90 and 135 degrees (3000 cos 45 = 2121.32).
    const Affine toRoot = ToRoot(outline);
    ExpectPoints({toRoot.Apply(arc.At(0.25)), toRoot.Apply(arc.At(0.5)), toRoot.Apply(arc.At(0.75))},
                 {{5121.32, -4521.32}, {3000, -5400}, {878.68, -4521.32}});
    // The top of the arc is the margin below the top of the view.
    EXPECT_NEAR(toRoot.Apply(arc.At(0.5)).y - box[1], 300, 1e-6);

    // The round opening: two halves about (3000, 3400), radius 400.
    const XMLElement* opening = arched->Group("cutout-1")->FirstChildElement("path");
    ASSERT_NE(opening, nullptr);
    const std::vector<PathCommand> circle = ParsePath(opening->Attribute("d"));
    ASSERT_EQ(circle.size(), 4u) << opening->Attribute("d");
    EXPECT_EQ(circle[0].numbers, (std::vector<double>{3400, 3400}));
    const ArcCentre first = CentreOf({3400, 3400}, circle[1]);
    const ArcCentre second = CentreOf({2600, 3400}, circle[2]);
    for (const ArcCentre& half : {first, second}) {
        EXPECT_NEAR(half.centre.x, 3000, 1e-6);
        EXPECT_NEAR(half.centre.y, 3400, 1e-6);
        EXPECT_NEAR(half.radius, 400, 1e-6);
        EXPECT_NEAR(half.sweepDegrees, 180, 1e-6);
    }
    ExpectPoints({ToRoot(opening).Apply(first.At(0.5)), ToRoot(opening).Apply(second.At(0.5))},
                 {{3000, -3800}, {3000, -3000}});

    // Hovering the outline names the arc and its angles.
    const std::string title = arched->Group("contour-1")->FirstChildElement("title")->GetText();
    EXPECT_NE(title.find("\ngeoData[2].curve: Arc\n"), std::string::npos) << title;
    EXPECT_NE(title.find("\ngeoData[2].curve.endAngle: 180\n"), std::string::npos) << title;
    const std::string cutoutTitle = arched->Group("cutout-1")->FirstChildElement("title")->GetText();
    EXPECT_NE(cutoutTitle.find("\ngeoData[0].curve: Circle\n"), std::string::npos) << cutoutTitle;
}

} // namespace
} // namespace ItUnitechnik::Testing
