// The record tree flattened for diff and check: each list entry a record with
// the members of its singly held records under dotted names, every record
// found again by its object, and a member found again by path and name.

#include "tree/flat_records.h"

#include "reading/tolerant_reading.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace ItUnitechnik::Tree {
namespace {

using Testing::ReadFileBytes;

std::vector<Order> Golden(const std::string& name)
{
    TolerantDocument document = ReadTolerantly(ReadFileBytes(std::string(ITUNITECHNIK_GOLDEN_DIR) + "/" + name));
    EXPECT_TRUE(document.Complete()) << name;
    return std::move(document.orders);
}

const FlatField* FieldNamed(const FlatRecord& record, const std::string& name)
{
    for (const FlatField& field : record.fields) {
        if (field.name == name) {
            return &field;
        }
    }
    return nullptr;
}

const FlatList* ListNamed(const FlatRecord& record, const std::string& name)
{
    for (const FlatList& list : record.lists) {
        if (list.name == name) {
            return &list;
        }
    }
    return nullptr;
}

TEST(FlatRecords, ListEntriesAreRecordsAndSinglyHeldRecordsAreDotted)
{
    std::vector<Order> orders = Golden("reinforced/reinforced-600.txt");
    const FlatList flat = Flatten(orders);
    ASSERT_EQ(flat.records.size(), 1u);
    const FlatRecord& order = flat.records[0];
    EXPECT_EQ(order.path, "orders[0]");
    EXPECT_EQ(order.address, &orders[0]);
    ASSERT_NE(FieldNamed(order, "version"), nullptr);
    EXPECT_EQ(FieldNamed(order, "version")->value, "600");
    ASSERT_NE(FieldNamed(order, "date.year"), nullptr);

    const FlatList* elements = ListNamed(order, "elementParts");
    ASSERT_NE(elements, nullptr);
    ASSERT_EQ(elements->records.size(), 1u);
    const FlatRecord& element = elements->records[0];
    EXPECT_EQ(element.path, "orders[0].elementParts[0]");
    // The second loose bar, as the file has it: "B500A" in its ten places,
    // shown without the blanks that fill them.
    const FlatList* bars = ListNamed(element, "rodstockData.bars");
    ASSERT_NE(bars, nullptr);
    ASSERT_EQ(bars->records.size(), 2u);
    const FlatRecord& bar = bars->records[1];
    EXPECT_EQ(bar.path, "orders[0].elementParts[0].rodstockData.bars[1]");
    EXPECT_EQ(FieldNamed(bar, "designation")->value, "\"B500A\"");
    EXPECT_EQ(FieldNamed(bar, "extraDesignation")->value, "\"HOOK\"");
    EXPECT_EQ(FieldNamed(bar, "position.x")->value, "1000");
    EXPECT_EQ(FieldNamed(bar, "bendingKind")->value, "\"2\"");
    // Where the writer may name it: from the point, then from the bar.
    const FlatField* x = FieldNamed(bar, "position.x");
    ASSERT_EQ(x->owners.size(), 2u);
    EXPECT_EQ(x->owners[0], Owner(&orders[0].elementParts[0].rodstockData.bars[1].position, "x"));
    EXPECT_EQ(x->owners[1], Owner(&orders[0].elementParts[0].rodstockData.bars[1], "position.x"));
    // The free form's second line holds one segment of 250 at -180.
    const FlatList* parts = ListNamed(bar, "freeForm.parts");
    ASSERT_NE(parts, nullptr);
    ASSERT_EQ(parts->records.size(), 2u);
    const FlatList* segments = ListNamed(parts->records[1], "segments");
    ASSERT_EQ(segments->records.size(), 1u);
    EXPECT_EQ(FieldNamed(segments->records[0], "angle")->value, "-180");
}

TEST(FlatRecords, EveryRecordIsFoundByItsObject)
{
    std::vector<Order> orders = Golden("reinforced/reinforced-600.txt");
    const FlatList flat = Flatten(orders);
    const RecordIndex index(flat);
    ElementPart& element = orders[0].elementParts[0];

    const auto bar = index.Find(&element.rodstockData.bars[0]);
    ASSERT_TRUE(bar);
    EXPECT_EQ(bar->path, "orders[0].elementParts[0].rodstockData.bars[0]");
    EXPECT_EQ(bar->prefix, "");
    const auto position = index.Find(&element.rodstockData.bars[0].position);
    ASSERT_TRUE(position);
    EXPECT_EQ(position->path, "orders[0].elementParts[0].rodstockData.bars[0]");
    EXPECT_EQ(position->prefix, "position");
    const auto contours = index.Find(&element.contourData);
    ASSERT_TRUE(contours);
    EXPECT_EQ(contours->path, "orders[0].elementParts[0]");
    EXPECT_EQ(contours->prefix, "contourData");
    const auto mat = index.Find(&element.reinforcement.mats[1].rodstocks.bars[0]);
    ASSERT_TRUE(mat);
    EXPECT_EQ(mat->path, "orders[0].elementParts[0].reinforcement.mats[1].rodstocks.bars[0]");
    int unknown = 0;
    EXPECT_FALSE(index.Find(&unknown));
}

TEST(FlatRecords, AMemberIsFoundByPathAndName)
{
    std::vector<Order> orders = Golden("reinforced/reinforced-600.txt");
    const std::string element = "orders[0].elementParts[0]";
    EXPECT_EQ(ValueAt(orders, element + ".rodstockData.bars[0]", "designation"), "\"BSt 500 S\"");
    EXPECT_EQ(ValueAt(orders, element + ".bracedGirderData.girders[1]", "position.x"), "-150");
    EXPECT_EQ(ValueAt(orders, element + ".bracedGirderData.girders[1]", "scaledValue"), "123.456");
    EXPECT_EQ(ValueAt(orders, element + ".externalIronData.irons[1]", "ironText"),
              "\"Lifting loop, long description\"");
    // A list shows its length.
    EXPECT_EQ(ValueAt(orders, element, "reinforcement.mats"), "2");
    EXPECT_EQ(ValueAt(orders, element, "contourData.contours"), "0");
    EXPECT_EQ(ValueAt(orders, "orders[0]", "date.version"), "600");
    // Nothing that is not there.
    EXPECT_FALSE(ValueAt(orders, element + ".rodstockData.bars[2]", "designation"));
    EXPECT_FALSE(ValueAt(orders, "orders[1]", "version"));
    EXPECT_FALSE(ValueAt(orders, element, "noSuchMember"));
}

TEST(FlatRecords, TextsAreShownWithoutTheirFill)
{
    EXPECT_EQ(ShownValue(std::wstring(L"  AB  ")), "\"AB\"");
    EXPECT_EQ(ShownValue(std::wstring(L"     ")), "\"\"");
    EXPECT_EQ(ShownValue(std::wstring(L"a \"b\"\n")), "\"a \\\"b\\\"\\n\"");
    EXPECT_EQ(ShownValue(1.5), "1.5");
    EXPECT_EQ(ShownValue(123.456), "123.456");
}

} // namespace
} // namespace ItUnitechnik::Tree
