#include "exports/document.h"

#include "itunitechnik.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace ItUnitechnik {
namespace {

using Testing::FileExists;
using Testing::ReadFileBytes;
using Testing::TemporaryDirectory;
using Testing::Wide;

// The document as the exports leave it, reset before each test.
class DocumentTest : public ::testing::Test {
protected:
    void SetUp() override { theDocument.orders.clear(); }
    void TearDown() override { theDocument.orders.clear(); }

    static void AddOrder(std::int16_t version, const std::wstring& legacyText40)
    {
        Order order;
        order.version = version;
        order.date.version = version;
        order.legacyText40 = legacyText40;
        theDocument.Add(order);
    }

    TemporaryDirectory dir;
};

TEST_F(DocumentTest, NoOrderWritesAnEmptyFile)
{
    const std::string path = dir.File("a.txt");
    EXPECT_TRUE(theDocument.Save(Wide(path)));
    EXPECT_TRUE(FileExists(path));
    EXPECT_EQ(ReadFileBytes(path), "");
}

TEST_F(DocumentTest, AMissingDirectoryIsNotReported)
{
    AddOrder(600, L"text");
    const std::string path = dir.File("missing/a.txt");
    EXPECT_TRUE(theDocument.Save(Wide(path)));
    EXPECT_FALSE(FileExists(path));
    EXPECT_FALSE(FileExists(path + ":order0"));
}

TEST_F(DocumentTest, OrdersFollowOneAnotherWithNothingBetween)
{
    AddOrder(502, L"");
    AddOrder(502, L"");
    const std::string path = dir.File("a.txt");
    theDocument.Save(Wide(path));
    const std::string bytes = ReadFileBytes(path);
    const std::string oneOrder = bytes.substr(0, bytes.size() / 2);
    EXPECT_EQ(bytes, oneOrder + oneOrder);
    EXPECT_EQ(oneOrder.substr(0, 10), "HEADER__\r\n");
    EXPECT_EQ(oneOrder.substr(oneOrder.size() - 14), "END HEADER__\r\n");
}

TEST_F(DocumentTest, ACharacterAboveFFCutsTheFileButSaveSucceeds)
{
    AddOrder(502, L"");
    theDocument.orders[0].orderNumber = L"A\u0101B";
    const std::string path = dir.File("a.txt");
    EXPECT_TRUE(theDocument.Save(Wide(path)));
    EXPECT_EQ(ReadFileBytes(path), "HEADER__\r\n502\r\nA");
}

TEST_F(DocumentTest, AStreamOnlyFrom600)
{
    AddOrder(599, L"legacy");
    AddOrder(600, L"legacy");
    const std::string path = dir.File("a.txt");
    theDocument.Save(Wide(path));
    EXPECT_FALSE(FileExists(path + ":order0"));
    ASSERT_TRUE(FileExists(path + ":order1"));
    EXPECT_EQ(ReadFileBytes(path + ":order1"), std::string("legacy") + '\0' + std::string(33, ' '));
}

TEST_F(DocumentTest, TheCounterCountsSkippedOrders)
{
    AddOrder(502, L"one");
    AddOrder(600, L"two");
    AddOrder(600, L"three");
    const std::string path = dir.File("a.txt");
    theDocument.Save(Wide(path));
    EXPECT_FALSE(FileExists(path + ":order0"));
    EXPECT_EQ(ReadFileBytes(path + ":order1"), std::string("two") + '\0' + std::string(36, ' '));
    EXPECT_EQ(ReadFileBytes(path + ":order2"), std::string("three") + '\0' + std::string(34, ' '));
}

TEST_F(DocumentTest, BlankOrEmptyTextsWriteNoStream)
{
    AddOrder(600, std::wstring(40, L' '));
    AddOrder(600, L"");
    AddOrder(601, L"   ");
    const std::string path = dir.File("a.txt");
    theDocument.Save(Wide(path));
    EXPECT_FALSE(FileExists(path + ":order0"));
    EXPECT_FALSE(FileExists(path + ":order1"));
    EXPECT_FALSE(FileExists(path + ":order2"));
}

TEST_F(DocumentTest, AFortyByteTextHasNoTerminator)
{
    const std::string forty = "0123456789012345678901234567890123456789";
    AddOrder(600, Wide(forty));
    const std::string path = dir.File("a.txt");
    theDocument.Save(Wide(path));
    EXPECT_EQ(ReadFileBytes(path + ":order0"), forty);
}

TEST_F(DocumentTest, ATextLongerThanFortyBytesWritesNoStreamAndTheHostGoesOn)
{
    // Forty characters, but the two of them above U+007F take two bytes each.
    AddOrder(600, L"\u00E9\u00E9" + std::wstring(38, L'x'));
    AddOrder(600, L"next");
    const std::string path = dir.File("a.txt");
    EXPECT_TRUE(theDocument.Save(Wide(path)));
    EXPECT_FALSE(FileExists(path + ":order0"));
    EXPECT_EQ(ReadFileBytes(path + ":order1"), std::string("next") + '\0' + std::string(35, ' '));
}

TEST_F(DocumentTest, TheStreamTextIsUtf8)
{
    AddOrder(600, L"\u00E9\u20AC");
    const std::string path = dir.File("a.txt");
    theDocument.Save(Wide(path));
    EXPECT_EQ(ReadFileBytes(path + ":order0"), std::string("\xC3\xA9\xE2\x82\xAC") + '\0' + std::string(34, ' '));
}

TEST_F(DocumentTest, AnExistingStreamIsOverwrittenFromItsStartNotCut)
{
    const std::string path = dir.File("a.txt");
    {
        std::ofstream longer(path + ":order0", std::ios::binary);
        longer << std::string(50, 'x');
    }
    AddOrder(600, L"new");
    theDocument.Save(Wide(path));
    EXPECT_EQ(ReadFileBytes(path + ":order0"), std::string("new") + '\0' + std::string(36, ' ') + std::string(10, 'x'));
}

TEST_F(DocumentTest, SavingAgainWritesTheSameBytes)
{
    AddOrder(600, L"");
    AddOrder(501, L"");
    const std::string first = dir.File("first.txt");
    const std::string second = dir.File("second.txt");
    theDocument.Save(Wide(first));
    theDocument.Save(Wide(second));
    EXPECT_EQ(ReadFileBytes(first), ReadFileBytes(second));
    theDocument.Save(Wide(first));
    EXPECT_EQ(ReadFileBytes(first), ReadFileBytes(second));
    EXPECT_EQ(theDocument.orders.size(), 2u);
}

class CountingDocument : public Document {
public:
    void Changed() override { ++changes; }
    int changes = 0;
};

TEST(DocumentCollection, ClearFiresNoHookButAddDoes)
{
    CountingDocument document;
    document.Add(Order());
    EXPECT_EQ(document.changes, 1);
    document.Clear();
    EXPECT_EQ(document.changes, 1);
    EXPECT_TRUE(document.orders.empty());
    document.Clear();
    EXPECT_EQ(document.changes, 1);
}

} // namespace
} // namespace ItUnitechnik
