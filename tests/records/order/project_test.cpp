#include "records/order/project.h"

#include "framework/archive.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace ItUnitechnik {
namespace {

using Testing::StringArchive;

TEST(ProjectWrite, FourLinesOfTwenty)
{
    Project project;
    project.projectText1 = L"Tower A";
    project.projectText2 = L"ABCDEFGHIJKLMNOPQRSTUVWXY"; // 25 characters, cut to 20
    project.projectText4 = L"X";
    StringArchive s;
    EXPECT_TRUE(project.Write(s.archive));
    EXPECT_EQ(s.Text(), L"Tower A             \n"
                        L"ABCDEFGHIJKLMNOPQRST\n"
                        L"                    \n"
                        L"X                   \n");
}

TEST(ProjectRead, WholeLinesWithTheirBlanks)
{
    StringArchive s(L"Tower A             \nB\n\n  C  \r\n");
    Project project;
    EXPECT_TRUE(project.Read(s.archive));
    EXPECT_EQ(project.projectText1, L"Tower A             ");
    EXPECT_EQ(project.projectText2, L"B");
    EXPECT_EQ(project.projectText3, L"");
    EXPECT_EQ(project.projectText4, L"  C  ");
}

TEST(ProjectRead, FailsAtTheEndOfTheStream)
{
    StringArchive s(L"one\ntwo\n");
    Project project;
    EXPECT_FALSE(project.Read(s.archive));
    EXPECT_EQ(project.projectText1, L"one");
}

} // namespace
} // namespace ItUnitechnik
