#include "geometry/curve.h"

#include "framework/field_sink.h"
#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

TEST(Curve, VersionIsSetAtConstruction)
{
    EXPECT_EQ(LineSegment(600).version, 600);
    EXPECT_EQ(Circle(502).version, 502);
    EXPECT_EQ(Arc(-1).version, -1);
}

TEST(Curve, CopyVersionFromNullChangesNothing)
{
    LineSegment segment(502);
    EXPECT_FALSE(segment.copyVersion(nullptr));
    EXPECT_EQ(segment.version, 502);
}

TEST(Curve, CopyVersionTakesTheOthersVersion)
{
    Arc arc(502);
    LineSegment other(600);
    EXPECT_TRUE(arc.copyVersion(&other));
    EXPECT_EQ(arc.version, 600);
    EXPECT_EQ(other.version, 600);
}

TEST(Curve, CloneKeepsTheClassAndIsDestroyedThroughTheBase)
{
    std::unique_ptr<Curve> curves[] = {std::make_unique<LineSegment>(1), std::make_unique<Circle>(2),
                                       std::make_unique<Arc>(3)};
    std::unique_ptr<Curve> copies[] = {curves[0]->clone(), curves[1]->clone(), curves[2]->clone()};
    EXPECT_NE(dynamic_cast<LineSegment*>(copies[0].get()), nullptr);
    EXPECT_NE(dynamic_cast<Circle*>(copies[1].get()), nullptr);
    EXPECT_EQ(dynamic_cast<Arc*>(copies[1].get()), nullptr);
    EXPECT_NE(dynamic_cast<Arc*>(copies[2].get()), nullptr);
    EXPECT_EQ(copies[0]->version, 1);
    EXPECT_EQ(copies[1]->version, 2);
    EXPECT_EQ(copies[2]->version, 3);
}

// Where the records of a curve start, and under which record each field is
// told, by column.
class Places final : public FieldSink {
public:
    struct Start {
        const void* record;
        std::size_t column;
    };
    struct Field {
        const void* record;
        std::string member;
        std::size_t column;
    };

    void Report(const FieldEvent&) override {}
    void RecordStarts(const void* record, std::size_t, std::size_t column) override
    {
        starts.push_back(Start{record, column});
    }
    void FieldStarts(const void* record, const char* member, std::size_t, std::size_t column) override
    {
        fields.push_back(Field{record, member, column});
    }

    bool Starts(const void* record, std::size_t column) const
    {
        for (const Start& start : starts) {
            if (start.record == record && start.column == column) {
                return true;
            }
        }
        return false;
    }

    std::vector<Start> starts;
    std::vector<Field> fields;
};

std::wstring WrittenThrough(Curve& curve, Places& sink)
{
    Testing::StringArchive s;
    s.archive.SetFieldSink(&sink);
    EXPECT_TRUE(curve.Write(s.archive));
    s.archive.SetFieldSink(nullptr);
    return s.Text();
}

TEST(Curve, FromVersion600EachCoordinateIsToldUnderItsPoint)
{
    LineSegment segment(600, Point2d(1, -2), Point2d(3, 4));
    segment.flags = 0xA;
    Places sink;
    EXPECT_EQ(WrittenThrough(segment, sink), L"+00001 -00002 +00003 +00004 000A");
    EXPECT_TRUE(sink.Starts(&segment, 1));
    EXPECT_TRUE(sink.Starts(&segment.start, 1));
    EXPECT_TRUE(sink.Starts(&segment.end, 15));
    ASSERT_EQ(sink.fields.size(), 5u);
    const std::vector<std::string> members = {"x", "y", "x", "y", "flags"};
    const std::vector<const void*> records = {&segment.start, &segment.start, &segment.end, &segment.end, &segment};
    const std::vector<std::size_t> columns = {1, 8, 15, 22, 29};
    for (std::size_t i = 0; i < members.size(); ++i) {
        EXPECT_EQ(sink.fields[i].member, members[i]) << i;
        EXPECT_EQ(sink.fields[i].record, records[i]) << i;
        EXPECT_EQ(sink.fields[i].column, columns[i]) << i;
    }
}

TEST(Curve, BelowVersion600EachPointStartsWhereItsOldFormDoes)
{
    Polygon polygon(502);
    polygon.points = {Point2d(-1, 2), Point2d(3, 4)};
    polygon.segmentFlags = {0xFF};
    Places sink;
    EXPECT_EQ(WrittenThrough(polygon, sink), L"2 00000 00002 00003 00004 00FF");
    EXPECT_TRUE(sink.Starts(&polygon, 1));
    EXPECT_TRUE(sink.Starts(&polygon.points[0], 3));
    EXPECT_TRUE(sink.Starts(&polygon.points[1], 15));
    ASSERT_FALSE(sink.fields.empty());
    EXPECT_EQ(sink.fields.front().member, "points");
    EXPECT_EQ(sink.fields.back().member, "entry");
    EXPECT_EQ(sink.fields.back().record, &polygon);
    EXPECT_EQ(sink.fields.back().column, 27u);
}

} // namespace
} // namespace ItUnitechnik
