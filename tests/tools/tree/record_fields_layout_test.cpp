#include "tree/record_fields.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

// The tool's field table against the records' layouts: every field a layout
// puts on a line stands in the table under the same name, for the same
// member. A field added to a layout and not to the table, or named otherwise,
// fails here.
namespace ItUnitechnik {
namespace {

using Places = std::map<const void*, std::string>;

// The layout's fields of one record, by the member they read and write.
// Nested records are checked as records of their own; every branch a flag
// decides is taken, and the versions are set by the test.
class LayoutFields {
public:
    static constexpr bool reading = false;
    Places fields;

    template <class T>
    void UInt(int, T& member, const char* name)
    {
        fields[&member] = name;
    }
    template <class T, class Member>
    void UInt(int, AsType<T, Member> value, const char* name)
    {
        fields[&value.member] = name;
    }
    void UInt(int, NotBelowZero value, const char* name) { fields[&value.member] = name; }
    template <class T>
    void SInt(int, T& member, const char* name)
    {
        fields[&member] = name;
    }
    template <class T>
    void Hex(int, T& member, const char* name)
    {
        fields[&member] = name;
    }
    void Real(int, int, double& member, const char* name) { fields[&member] = name; }
    void Char(wchar_t& member, const char* name) { fields[&member] = name; }
    template <class... Mark>
    void Text(int, std::wstring& member, const char* name, Mark...)
    {
        fields[&member] = name;
    }
    template <class... Mark>
    void RText(int, std::wstring& member, const char* name, Mark...)
    {
        fields[&member] = name;
    }
    template <class... Mark>
    void RText(int, std::wstring& member, Adjust, const char* name, Mark...)
    {
        fields[&member] = name;
    }
    template <class... Mark>
    void ZText(int, std::wstring& member, const char* name, Mark...)
    {
        fields[&member] = name;
    }
    template <class... Mark>
    void ZText(int, std::wstring& member, Adjust, const char* name, Mark...)
    {
        fields[&member] = name;
    }
    void ZTextWhole(int, std::wstring& member, const char* name) { fields[&member] = name; }
    void Blank() {}
    void Blanks(int) {}
    void EndLine() {}
    void Tag(const char*) {}
    void Literal(const char*) {}
    void Constant(wchar_t) {}
    template <class R>
    void Record(R&)
    {
    }
    template <class T>
    std::size_t Count(int, std::vector<T>& entries, const char* name)
    {
        fields[&entries] = name;
        return 0;
    }
    template <class T, class... Make>
    void Lines(std::size_t, std::vector<T>&, Make...)
    {
    }
    template <class T, class... Make>
    void OwnLines(std::size_t, std::vector<T>&, Make...)
    {
    }
    template <class T, class... Make>
    void Run(std::size_t, std::vector<T>&, Make...)
    {
    }
    template <class T, class... Make>
    void Each(std::size_t, std::vector<T>&, Make...)
    {
    }
    template <class T, std::size_t N>
    void Row(std::array<T, N>&)
    {
    }
    template <class T>
    void Tagged(const char*, std::vector<T>&)
    {
    }
    template <class T>
    void TaggedLines(const char*, std::vector<T>&)
    {
    }
    bool Present(bool, const char*) const { return false; }
    bool LineGoesOn(bool) const { return true; }
};

// The table's members of one record, by address, under the names a layout
// gives them: a nested record's fields as "position.x".
class TableFields {
public:
    Places fields;

    template <class T>
    void Field(const char* name, T& member)
    {
        fields[&member] = prefix_ + name;
    }
    template <class R>
    void Record(const char* name, R& record)
    {
        const std::string outer = prefix_;
        prefix_ += std::string(name) + ".";
        Tree::Fields(*this, record);
        prefix_ = outer;
    }
    template <class T, class Make>
    void Records(const char* name, std::vector<T>& entries, Make)
    {
        fields[&entries] = prefix_ + name;
    }
    template <class T>
    void Points(const char* name, std::vector<T>& points)
    {
        fields[&points] = prefix_ + name;
    }
    template <class T>
    void Numbers(const char* name, std::vector<T>& numbers)
    {
        fields[&numbers] = prefix_ + name;
    }
    template <class T, std::size_t N>
    void FixedRecords(const char* name, std::array<T, N>& entries)
    {
        fields[&entries] = prefix_ + name;
    }
    void Curve(const char*, GeoData&) {}

private:
    std::string prefix_;
};

// Checks one record at each of the versions that change its lines.
template <class R, class SetVersion>
void ExpectTableHoldsLayout(R& record, SetVersion setVersion, const char* what)
{
    for (const std::int16_t version : std::array<std::int16_t, 6>{5, 500, 501, 502, 503, 600}) {
        setVersion(record, version);
        LayoutFields layout;
        Layout(layout, record);
        TableFields table;
        Tree::Fields(table, record);
        EXPECT_FALSE(layout.fields.empty()) << what;
        for (const auto& [member, name] : layout.fields) {
            const auto found = table.fields.find(member);
            if (found == table.fields.end()) {
                ADD_FAILURE() << what << " at version " << version << ": the layout's field \"" << name
                              << "\" is not in the tool's field table";
            } else {
                EXPECT_EQ(found->second, name) << what << " at version " << version;
            }
        }
    }
}

template <class R>
void ExpectTableHoldsLayout(R record, const char* what)
{
    ExpectTableHoldsLayout(
        record, [](R&, std::int16_t) {}, what);
}

template <class R>
void ExpectVersionedTableHoldsLayout(R record, const char* what)
{
    ExpectTableHoldsLayout(
        record, [](R& r, std::int16_t version) { r.version = version; }, what);
}

TEST(RecordFieldsLayout, TheOrderRecords)
{
    ExpectVersionedTableHoldsLayout(Order(), "Order");
    ExpectTableHoldsLayout(Project(), "Project");
    ExpectTableHoldsLayout(Address(), "Address");
    ExpectVersionedTableHoldsLayout(Date(), "Date");
    ExpectVersionedTableHoldsLayout(Lot(), "Lot");
}

TEST(RecordFieldsLayout, TheElementRecords)
{
    ExpectVersionedTableHoldsLayout(ElementPart(), "ElementPart");
    ExpectVersionedTableHoldsLayout(Layer(), "Layer");
    ExpectVersionedTableHoldsLayout(ConcreteLayer(0), "ConcreteLayer");
    ExpectTableHoldsLayout(Plaster(), "Plaster");
    ExpectTableHoldsLayout(Point2d(), "Point2d");
    ExpectTableHoldsLayout(Vector2d(), "Vector2d");
    ExpectTableHoldsLayout(Point3d(), "Point3d");
}

TEST(RecordFieldsLayout, TheOutlineRecords)
{
    ExpectVersionedTableHoldsLayout(Contour(0), "Contour");
    ExpectVersionedTableHoldsLayout(ContourData(), "ContourData");
    ExpectVersionedTableHoldsLayout(Cutout(0), "Cutout");
    ExpectVersionedTableHoldsLayout(CutoutData(), "CutoutData");
    ExpectVersionedTableHoldsLayout(MountingPart(0), "MountingPart");
    ExpectVersionedTableHoldsLayout(MountingPartData(), "MountingPartData");
}

TEST(RecordFieldsLayout, TheReinforcementRecords)
{
    ExpectVersionedTableHoldsLayout(Rodstock(0), "Rodstock");
    ExpectVersionedTableHoldsLayout(RodstockData(), "RodstockData");
    ExpectTableHoldsLayout(BracedGirder(), "BracedGirder");
    ExpectVersionedTableHoldsLayout(BracedGirderData(), "BracedGirderData");
    ExpectTableHoldsLayout(ExternalIron(), "ExternalIron");
    ExpectVersionedTableHoldsLayout(ExternalIronData(), "ExternalIronData");
    ExpectTableHoldsLayout(BendingForm(), "BendingForm");
    ExpectTableHoldsLayout(BendingFormSegment(), "BendingFormSegment");
    ExpectTableHoldsLayout(BendingFormPart(), "BendingFormPart");
    ExpectTableHoldsLayout(BendingFormFree(), "BendingFormFree");
    ExpectTableHoldsLayout(SpacerPosition(), "SpacerPosition");
    ExpectTableHoldsLayout(SpacerData(), "SpacerData");
    ExpectTableHoldsLayout(WeldingIntersection(), "WeldingIntersection");
    ExpectTableHoldsLayout(WeldingPointData(), "WeldingPointData");
    ExpectTableHoldsLayout(AnchorBar(), "AnchorBar");
    ExpectTableHoldsLayout(AnchorBarData(), "AnchorBarData");
    ExpectVersionedTableHoldsLayout(Steelmat(), "Steelmat");
    ExpectVersionedTableHoldsLayout(Reinforcement(), "Reinforcement");
}

} // namespace
} // namespace ItUnitechnik
