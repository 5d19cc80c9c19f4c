// The table of what the plant reads: each row names its member as the record
// tree names it, reads and writes that very member, and stands in the docs.

#include "plant/plant_meanings.h"
#include "support/test_support.h"
#include "unitechnik/tree/record_fields.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <type_traits>

namespace ItUnitechnik::Plant {
namespace {

// Every plain member of a record by the name the record tree gives it, with
// its value as text; nested records are named by their path.
class Snapshot {
public:
    std::map<std::string, std::string> values;

    template <class T>
    void Field(const char* name, T& value)
    {
        std::string text;
        if constexpr (std::is_same_v<T, std::wstring>) {
            for (const wchar_t c : value) {
                text += std::to_string(static_cast<long>(c)) + " ";
            }
        } else if constexpr (std::is_same_v<T, double>) {
            text = std::to_string(value);
        } else {
            text = std::to_string(static_cast<long long>(value));
        }
        values[prefix_ + name] = text;
    }
    template <class R>
    void Record(const char* name, R& record)
    {
        const std::string outer = prefix_;
        prefix_ += std::string(name) + ".";
        Tree::Fields(*this, record);
        prefix_ = outer;
    }
    template <class R, class Make>
    void Records(const char*, std::vector<R>&, Make)
    {
    }
    template <class A>
    void FixedRecords(const char*, A&)
    {
    }
    void Points(const char*, std::vector<Point2d>&) {}
    void Numbers(const char*, std::vector<int>&) {}
    void Curve(const char*, GeoData&) {}

private:
    std::string prefix_;
};

template <class R>
std::map<std::string, std::string> ValuesOf(R record)
{
    Snapshot snapshot;
    Tree::Fields(snapshot, record);
    return snapshot.values;
}

// Writing a value through the row changes the one member the row names, as
// the record tree names it, and reading through the row gives it back.
template <class R, class V>
void ExpectNamedAsTheTree(const R& record, const Meaning<R, V>& meaning, V value)
{
    R changed = record;
    meaning.set(changed, value);
    EXPECT_EQ(meaning(changed), value) << meaning.row.member;
    const std::map<std::string, std::string> before = ValuesOf(record);
    const std::map<std::string, std::string> after = ValuesOf(changed);
    std::string differing;
    for (const auto& [name, text] : after) {
        const auto old = before.find(name);
        if (old == before.end() || old->second != text) {
            differing += (differing.empty() ? "" : ",") + name;
        }
    }
    EXPECT_EQ(differing, meaning.row.member) << meaning.row.record << " " << meaning.row.name;
}

TEST(PlantMeanings, EachRowReadsAndWritesTheMemberItNames)
{
    const Rodstock bar(600);
    for (const auto* m : {&kBar.count, &kBar.diameter, &kBar.length, &kBar.x, &kBar.y, &kBar.pitch, &kBar.rotation,
                          &kBar.z, &kBar.spacerType, &kBar.spacerStart, &kBar.spacerPitch}) {
        ExpectNamedAsTheTree(bar, *m, 4711);
    }
    ExpectNamedAsTheTree(bar, kBar.grade, std::wstring(L"500"));
    ExpectNamedAsTheTree(bar, kBar.article, std::wstring(L"A-17"));
    const BendingFormSegment segment;
    ExpectNamedAsTheTree(segment, kSegment.length, 250);
    ExpectNamedAsTheTree(segment, kSegment.turn, 90);
    const BracedGirder girder;
    for (const auto* m : {&kGirder.count, &kGirder.length, &kGirder.x, &kGirder.y, &kGirder.spacing, &kGirder.rotation,
                          &kGirder.height, &kGirder.chordDiameter, &kGirder.installationHeight}) {
        ExpectNamedAsTheTree(girder, *m, 4711);
    }
    ExpectNamedAsTheTree(girder, kGirder.type, std::wstring(L"KT 800"));
    ExpectNamedAsTheTree(girder, kGirder.weight, 1.5);
    const Steelmat mat;
    for (const auto* m : {&kMat.length, &kMat.width, &kMat.x, &kMat.y, &kMat.z}) {
        ExpectNamedAsTheTree(mat, *m, 4711);
    }
    ExpectNamedAsTheTree(mat, kMat.type, std::wstring(L"Q188A"));
    const MountingPart part(600);
    ExpectNamedAsTheTree(part, kPart.name, std::wstring(L"Socket box"));
    ExpectNamedAsTheTree(part, kPart.height, 100);
    ExpectNamedAsTheTree(part, kPart.installationHeight, 20);
    const Cutout cutout(600);
    ExpectNamedAsTheTree(cutout, kOpening.area, 1.08);
    const ConcreteLayer layer(600);
    ExpectNamedAsTheTree(layer, kLayer.kind, std::int16_t{2});
    ExpectNamedAsTheTree(layer, kLayer.thickness, 60);
    ExpectNamedAsTheTree(layer, kLayer.name, std::wstring(L"C30/37"));
    ExpectNamedAsTheTree(layer, kLayer.unitWeight, 2.4);
    ExpectNamedAsTheTree(layer, kLayer.volume, 799.2);
    const ExternalIron iron;
    ExpectNamedAsTheTree(iron, kIron.count, 4);
    ExpectNamedAsTheTree(iron, kIron.code, 2);
    ExpectNamedAsTheTree(iron, kIron.weight, 1.5);
    ExpectNamedAsTheTree(iron, kIron.name, std::wstring(L"Lifting anchor"));
    const Arc arc(600);
    ExpectNamedAsTheTree(arc, kArc.start, 30);
    ExpectNamedAsTheTree(arc, kArc.end, 120);
}

TEST(PlantMeanings, TheBarsCountDiameterAndLengthAreItsFirstSecondAndThirdSize)
{
    Rodstock bar(600);
    bar.firstSize = 12;
    bar.secondSize = 10;
    bar.thirdSize = 5600;
    bar.positionZ = 150;
    bar.auxSixth = 40;
    EXPECT_EQ(kBar.count(bar), 12);
    EXPECT_EQ(kBar.diameter(bar), 10);
    EXPECT_EQ(kBar.length(bar), 5600);
    EXPECT_EQ(kBar.pitch(bar), 150);
    EXPECT_EQ(kBar.z(bar), 40);
    BracedGirder girder;
    girder.typeNumber = 4;
    girder.firstSize = 5400;
    girder.positionZ = 600;
    girder.auxNumber = 80;
    girder.lastNumber = 20;
    EXPECT_EQ(kGirder.count(girder), 4);
    EXPECT_EQ(kGirder.length(girder), 5400);
    EXPECT_EQ(kGirder.spacing(girder), 600);
    EXPECT_EQ(kGirder.height(girder), 80);
    EXPECT_EQ(kGirder.installationHeight(girder), 20);
}

TEST(PlantMeanings, EveryRowHasItsOwnMemberAndName)
{
    std::set<std::string> members;
    std::set<std::string> names;
    for (const Row& row : Rows()) {
        EXPECT_TRUE(members.insert(std::string(row.record) + "." + row.member).second) << row.member;
        EXPECT_TRUE(names.insert(std::string(row.record) + "." + row.name).second) << row.name;
        EXPECT_STRNE(row.meaning, "");
    }
    EXPECT_EQ(Rows().size(), 48u);
}

// The docs' table of the plant's meanings holds each row of the code's table,
// in the code's order, and nothing else.
TEST(PlantMeanings, TheDocsShowEveryRowAsTheCodeHasIt)
{
    const std::string page = Testing::ReadFileBytes(std::string(ITUNITECHNIK_SOURCE_DIR) + "/docs/plant-meanings.md");
    ASSERT_FALSE(page.empty());
    std::string expected;
    for (const Row& row : Rows()) {
        expected += "| `" + std::string(row.record) + "` | `" + row.member + "` | " + row.name + " | " + row.meaning +
                    " | " + row.unit + " |\n";
    }
    const std::string begin = "<!-- meanings: begin -->\n";
    const std::string end = "<!-- meanings: end -->";
    const std::size_t from = page.find(begin);
    const std::size_t to = page.find(end);
    ASSERT_NE(from, std::string::npos);
    ASSERT_NE(to, std::string::npos);
    const std::string table = page.substr(from + begin.size(), to - from - begin.size());
    const std::string head = "| Record | Member | Name | Meaning | Unit |\n|---|---|---|---|---|\n";
    EXPECT_EQ(table, head + expected);
}

} // namespace
} // namespace ItUnitechnik::Plant
