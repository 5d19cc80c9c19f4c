// The field sink: what the forms tell about a text cut to its field, a
// number wider than its field and a character a document file cannot hold,
// with the record's tag, the member, the line and column; and that a sink
// changes no character of what is written.

#include "framework/field_trace.h"

#include "framework/document_file_buffer.h"
#include "records/order/order.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik {
namespace {

using Testing::ReadFileBytes;
using Testing::StringArchive;
using Testing::TemporaryDirectory;
using Testing::Wide;

struct Told {
    FieldProblem problem;
    std::string tag;
    const void* record;
    std::string member;
    std::size_t line;
    std::size_t column;
    int width;
    std::wstring value;
    std::wstring written;
};

struct Place {
    const void* record;
    std::string member;
    std::size_t line;
    std::size_t column;
};

class Collector : public FieldSink {
public:
    void Report(const FieldEvent& event) override
    {
        told.push_back(Told{event.problem, event.tag, event.record, event.member, event.line, event.column, event.width,
                            event.value, event.written});
    }
    void RecordStarts(const void* record, std::size_t line, std::size_t column) override
    {
        records.push_back(Place{record, "", line, column});
    }
    void RecordEnds(const void* record, std::size_t, std::size_t) override { ended.push_back(record); }
    void FieldStarts(const void* record, const char* member, std::size_t line, std::size_t column) override
    {
        fields.push_back(Place{record, member, line, column});
    }

    std::vector<Told> told;
    std::vector<Place> records;
    std::vector<const void*> ended;
    std::vector<Place> fields;
};

TEST(FieldSink, ATextLongerThanItsFieldIsToldWithTheWholeTextAndThePartKept)
{
    StringArchive s;
    Collector sink;
    s.archive.SetFieldSink(&sink);
    const std::wstring number = L"A-2026-1047";
    s.archive << Tag("HEADER__") << UInt(3, 502, "version") << EndLine;
    s.archive << Text(8, number, "orderNumber") << Blank;

    EXPECT_EQ(s.Text(), L"HEADER__\n502\nA-2026-1 ");
    ASSERT_EQ(sink.told.size(), 1u);
    const Told& told = sink.told[0];
    EXPECT_EQ(told.problem, FieldProblem::textCut);
    EXPECT_EQ(told.tag, "HEADER__");
    EXPECT_EQ(told.member, "orderNumber");
    EXPECT_EQ(told.line, 3u);
    EXPECT_EQ(told.column, 1u);
    EXPECT_EQ(told.width, 8);
    EXPECT_EQ(told.value, L"A-2026-1047");
    EXPECT_EQ(told.written, L"A-2026-1");
}

TEST(FieldSink, TextsThatFitAndTheWholeCodeAreNotTold)
{
    StringArchive s;
    Collector sink;
    s.archive.SetFieldSink(&sink);
    s.archive << Text(8, L"ABCDEFGH", "a") << RText(3, L"AB", "b") << ZText(3, L"7", "c")
              << ZTextWhole(3, L"12345", "formCode");
    // The left adjustment of Text stays in force: the two text fields after
    // it pad behind their values.
    EXPECT_EQ(s.Text(), L"ABCDEFGHAB 70012345");
    EXPECT_TRUE(sink.told.empty());
}

TEST(FieldSink, ANumberWiderThanItsFieldIsToldAsWritten)
{
    StringArchive s;
    Collector sink;
    s.archive.SetFieldSink(&sink);
    s.archive << UInt(3, 999, "fits") << Blank << UInt(3, 1000, "wide") << Blank << SInt(5, -123456, "signed") << Blank
              << SInt(5, 99999, "signedFits") << Blank << UInt(5, -42, "negativeFits") << Blank
              << Real(2, 3, 123.4567, "real");

    EXPECT_EQ(s.Text(), L"999 1000 -123456 +99999 00-42 123.457");
    ASSERT_EQ(sink.told.size(), 3u);
    EXPECT_EQ(sink.told[0].problem, FieldProblem::numberTooWide);
    EXPECT_EQ(sink.told[0].member, "wide");
    EXPECT_EQ(sink.told[0].column, 5u);
    EXPECT_EQ(sink.told[0].width, 3);
    EXPECT_EQ(sink.told[0].value, L"1000");
    EXPECT_EQ(sink.told[0].written, L"1000");
    EXPECT_EQ(sink.told[1].member, "signed");
    EXPECT_EQ(sink.told[1].column, 10u);
    EXPECT_EQ(sink.told[1].width, 6);
    EXPECT_EQ(sink.told[1].written, L"-123456");
    EXPECT_EQ(sink.told[2].member, "real");
    EXPECT_EQ(sink.told[2].column, 31u);
    EXPECT_EQ(sink.told[2].width, 6);
    EXPECT_EQ(sink.told[2].written, L"123.457");
}

TEST(FieldSink, ACharacterAboveFFIsToldWhereItStands)
{
    StringArchive s;
    Collector sink;
    s.archive.SetFieldSink(&sink);
    const std::wstring name = L"Stra\u00DFe \u0141\u00F3d\u017A";
    s.archive << Tag("CUTOUT__") << Text(4, L"ab", "first") << Text(12, name, "cutoutName") << Char(L'\u0100', "kind");

    ASSERT_EQ(sink.told.size(), 2u);
    EXPECT_EQ(sink.told[0].problem, FieldProblem::unwritableCharacter);
    EXPECT_EQ(sink.told[0].tag, "CUTOUT__");
    EXPECT_EQ(sink.told[0].member, "cutoutName");
    EXPECT_EQ(sink.told[0].line, 2u);
    // The field begins at column 5; its eighth character is the first one
    // above U+00FF.
    EXPECT_EQ(sink.told[0].column, 12u);
    EXPECT_EQ(sink.told[0].value, name);
    EXPECT_EQ(sink.told[1].problem, FieldProblem::unwritableCharacter);
    EXPECT_EQ(sink.told[1].member, "kind");
    EXPECT_EQ(sink.told[1].column, 17u);
}

TEST(FieldSink, ALineFeedInsideATextStartsALineOfTheCount)
{
    StringArchive s;
    Collector sink;
    s.archive.SetFieldSink(&sink);
    s.archive << Text(6, L"a\nb\u0100", "text") << UInt(1, 12, "after");
    ASSERT_EQ(sink.told.size(), 2u);
    EXPECT_EQ(sink.told[0].line, 2u);
    EXPECT_EQ(sink.told[0].column, 2u);
    EXPECT_EQ(sink.told[1].line, 2u);
    EXPECT_EQ(sink.told[1].column, 5u);
}

TEST(FieldSink, TheDocumentFileRefusesTheCharacterAndTheSinkStillHearsOfIt)
{
    TemporaryDirectory dir;
    const std::string path = dir.File("a.txt");
    Collector sink;
    {
        DocumentFileBuffer buffer(Wide(path));
        Archive ar(&buffer);
        ar.SetFieldSink(&sink);
        ar << Tag("HEADER__") << Text(5, L"AB\u0141CD", "orderText5") << EndLine << Tag("END");
        EXPECT_FALSE(Healthy(ar));
    }
    EXPECT_EQ(ReadFileBytes(path), std::string("HEADER__\r\nAB"));
    ASSERT_EQ(sink.told.size(), 1u);
    EXPECT_EQ(sink.told[0].problem, FieldProblem::unwritableCharacter);
    EXPECT_EQ(sink.told[0].line, 2u);
    EXPECT_EQ(sink.told[0].column, 3u);
}

TEST(FieldSink, EveryFormOfAChainIsSeen)
{
    StringArchive s;
    Collector sink;
    s.archive.SetFieldSink(&sink);
    s.archive << Blank << UInt(2, 100, "first") << Blank << Blanks(2) << UInt(2, 100, "second") << Literal("x")
              << SInt(1, 10, "third");
    EXPECT_EQ(s.Text(), L" 100   100x+10");
    ASSERT_EQ(sink.told.size(), 3u);
    EXPECT_EQ(sink.told[0].column, 2u);
    EXPECT_EQ(sink.told[1].column, 8u);
    EXPECT_EQ(sink.told[2].column, 12u);
    ASSERT_EQ(sink.fields.size(), 3u);
    EXPECT_EQ(sink.fields[2].member, "third");
}

TEST(FieldSink, ScopesNameTheRecordAndTagsTheRecordsLines)
{
    StringArchive s;
    Collector sink;
    s.archive.SetFieldSink(&sink);
    int outer = 0;
    int inner = 0;
    {
        const RecordScope scope(s.archive, &outer);
        s.archive << Tag("SLABDATE") << UInt(1, 10, "before") << EndLine;
        {
            const RecordScope nested(s.archive, &inner);
            s.archive << Tag("CONTOUR_") << UInt(1, 11, "inside") << EndLine << Tag("END");
        }
        s.archive << UInt(1, 12, "after") << EndLine << Tag("END SLABDATE");
    }
    ASSERT_EQ(sink.told.size(), 3u);
    EXPECT_EQ(sink.told[0].tag, "SLABDATE");
    EXPECT_EQ(sink.told[0].record, &outer);
    EXPECT_EQ(sink.told[1].tag, "CONTOUR_");
    EXPECT_EQ(sink.told[1].record, &inner);
    EXPECT_EQ(sink.told[1].line, 4u);
    // Behind its nested record a record's fields are its own again.
    EXPECT_EQ(sink.told[2].tag, "SLABDATE");
    EXPECT_EQ(sink.told[2].record, &outer);

    ASSERT_EQ(sink.records.size(), 2u);
    EXPECT_EQ(sink.records[0].record, &outer);
    EXPECT_EQ(sink.records[0].line, 1u);
    EXPECT_EQ(sink.records[1].record, &inner);
    EXPECT_EQ(sink.records[1].line, 3u);
    EXPECT_EQ(sink.records[1].column, 1u);
    ASSERT_EQ(sink.ended.size(), 2u);
    EXPECT_EQ(sink.ended[0], &inner);
    EXPECT_EQ(sink.ended[1], &outer);
}

TEST(FieldSink, AnOrderTellsWhereItsRecordAndFieldsBegin)
{
    StringArchive s;
    Collector sink;
    s.archive.SetFieldSink(&sink);
    Order order;
    order.version = 600;
    order.date.version = 600;
    order.orderNumber = L"ORD-1";
    ASSERT_TRUE(order.Write(s.archive));
    ASSERT_FALSE(sink.records.empty());
    EXPECT_EQ(sink.records[0].record, &order);
    bool found = false;
    for (const Place& field : sink.fields) {
        if (field.record == &order && field.member == "orderNumber") {
            found = true;
            EXPECT_EQ(field.line, 3u);
            EXPECT_EQ(field.column, 1u);
        }
    }
    EXPECT_TRUE(found);
    EXPECT_TRUE(sink.told.empty());
}

TEST(FieldSink, SettingASinkAndTakingItAwayKeepsTheStreamAndItsCharacters)
{
    StringArchive plain;
    plain.archive << Text(3, L"ABCDE") << UInt(2, 123) << EndLine << Real(1, 1, 2.25);

    StringArchive traced;
    Collector sink;
    traced.archive.SetFieldSink(&sink);
    traced.archive << Text(3, L"ABCDE", "a") << UInt(2, 123, "b") << EndLine;
    traced.archive.SetFieldSink(nullptr);
    EXPECT_EQ(traced.archive.Trace(), nullptr);
    traced.archive << Real(1, 1, 2.25, "c");

    EXPECT_EQ(traced.Text(), plain.Text());
    EXPECT_TRUE(Healthy(traced.archive));
    EXPECT_EQ(sink.told.size(), 2u);
}

TEST(FieldSink, AnArchiveOverNoBufferStaysBad)
{
    Archive ar(nullptr);
    Collector sink;
    ar.SetFieldSink(&sink);
    EXPECT_TRUE(ar.bad());
    ar << Text(2, L"ABC", "a");
    EXPECT_FALSE(Healthy(ar));
}

} // namespace
} // namespace ItUnitechnik
