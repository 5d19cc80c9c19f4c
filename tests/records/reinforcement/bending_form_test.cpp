#include "records/reinforcement/bending_form.h"

#include "framework/field_forms.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

TEST(BendingForm, UnsetFormWritesZerosSeparatedByBlanks)
{
    BendingForm form;
    StringArchive s;
    EXPECT_TRUE(form.Write(s.archive));
    // code 000, four fields of five zeros, one of three; no line end.
    EXPECT_EQ(s.Text(), L"000 00000 00000 00000 00000 000");
}

TEST(BendingForm, ValuesAreZeroFilledToTheirWidths)
{
    BendingForm form;
    form.formCode = L"7";
    form.formValueA = 1;
    form.formValueB = 22;
    form.formValueC = 333;
    form.formValueD = 4444;
    form.formValueE = 5;
    StringArchive s;
    EXPECT_TRUE(form.Write(s.archive));
    EXPECT_EQ(s.Text(), L"007 00001 00022 00333 04444 005");
}

TEST(BendingForm, LongCodeIsWrittenWholeAndShiftsTheLine)
{
    BendingForm form;
    form.formCode = L"12345";
    form.formValueA = 10;
    StringArchive s;
    EXPECT_TRUE(form.Write(s.archive));
    EXPECT_EQ(s.Text(), L"12345 00010 00000 00000 00000 000");
}

TEST(BendingForm, CodeIsRightAlignedEvenAfterALeftField)
{
    BendingForm form;
    form.formCode = L"9";
    StringArchive s;
    s.archive << Text(2, L"X");
    EXPECT_TRUE(form.Write(s.archive));
    EXPECT_EQ(s.Text(), L"X 009 00000 00000 00000 00000 000");
}

TEST(BendingForm, ReadsCodeAndFiveNumbers)
{
    StringArchive s(L"12345 00001 00022 00333 04444 005\n");
    BendingForm form;
    EXPECT_TRUE(form.Read(s.archive));
    EXPECT_EQ(form.formCode, L"12345");
    EXPECT_EQ(form.formValueA, 1);
    EXPECT_EQ(form.formValueB, 22);
    EXPECT_EQ(form.formValueC, 333);
    EXPECT_EQ(form.formValueD, 4444);
    EXPECT_EQ(form.formValueE, 5);
}

TEST(BendingForm, ReadsBackWhatItWrote)
{
    BendingForm form;
    form.formCode = L"042";
    form.formValueA = 120;
    form.formValueD = 99999;
    form.formValueE = 180;
    StringArchive out;
    ASSERT_TRUE(form.Write(out.archive));

    StringArchive in(out.Text());
    BendingForm back;
    EXPECT_TRUE(back.Read(in.archive));
    EXPECT_EQ(back.formCode, L"042");
    EXPECT_EQ(back.formValueA, 120);
    EXPECT_EQ(back.formValueB, 0);
    EXPECT_EQ(back.formValueD, 99999);
    EXPECT_EQ(back.formValueE, 180);
}

TEST(BendingForm, ABadNumberFailsTheRead)
{
    StringArchive s(L"007 00001 ABCDE 00000 00000 000\n");
    BendingForm form;
    EXPECT_FALSE(form.Read(s.archive));
    EXPECT_EQ(form.formValueA, 1);
}

TEST(BendingForm, WriteReportsAnInvalidArchive)
{
    BendingForm form;
    StringArchive s;
    s.archive.valid = false;
    EXPECT_FALSE(form.Write(s.archive));
}

} // namespace
} // namespace ItUnitechnik
