// Writing a document where it cannot be written: each fault gives endDocument
// its documented result (1: write errors are not reported), nothing ends the
// host, the document in memory stays whole, and what reached the target
// before the fault is intact.
#include "exports/document.h"

#include "itunitechnik.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#ifndef _WIN32
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#endif

namespace ItUnitechnik {
namespace {

using Testing::FileExists;
using Testing::ReadFileBytes;
using Testing::TemporaryDirectory;

const double placement[9] = {0, 0, 0, 0, 0, 0, 0, 0, 0};

std::u16string Host(const std::string& ascii)
{
    return std::u16string(ascii.begin(), ascii.end());
}

const it_char16* C(const std::u16string& text)
{
    return reinterpret_cast<const it_char16*>(text.c_str());
}

// The first lines of every order of version 600, from the format's tables.
const std::string orderStart = "HEADER__\r\n600\r\n";

class WriteFaultTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        theDocument.orders.clear();
        const std::u16string text = Host("Slab");
        ASSERT_EQ(startOrder(1, 7, placement, 600, C(text), 1.0, true), 1);
    }
    void TearDown() override { theDocument.orders.clear(); }

    // The document still writes whole to a good file after the fault: its
    // bytes equal those it wrote before the fault was tried.
    void ExpectDocumentIntact(const std::string& before)
    {
        const std::string path = dir.File("after.uni");
        const std::u16string target = Host(path);
        EXPECT_EQ(endDocument(C(target)), 1);
        EXPECT_EQ(ReadFileBytes(path), before);
    }

    std::string WrittenToAGoodFile()
    {
        const std::string path = dir.File("before.uni");
        const std::u16string target = Host(path);
        EXPECT_EQ(endDocument(C(target)), 1);
        const std::string bytes = ReadFileBytes(path);
        EXPECT_EQ(bytes.substr(0, orderStart.size()), orderStart);
        return bytes;
    }

    TemporaryDirectory dir;
};

TEST_F(WriteFaultTest, AMissingDirectory)
{
    const std::string before = WrittenToAGoodFile();
    const std::string path = dir.File("missing/slab.uni");
    const std::u16string target = Host(path);
    EXPECT_EQ(endDocument(C(target)), 1);
    EXPECT_FALSE(FileExists(path));
    ExpectDocumentIntact(before);
}

TEST_F(WriteFaultTest, APathThatIsADirectory)
{
    const std::string before = WrittenToAGoodFile();
    const std::string path = dir.File("folder");
    ASSERT_TRUE(std::filesystem::create_directory(path));
    const std::string inside = dir.File("folder/kept.txt");
    {
        std::ofstream keep(inside, std::ios::binary);
        keep << "kept";
    }
    const std::u16string target = Host(path);
    EXPECT_EQ(endDocument(C(target)), 1);
    EXPECT_TRUE(std::filesystem::is_directory(path));
    EXPECT_EQ(ReadFileBytes(inside), "kept");
    ExpectDocumentIntact(before);
}

#ifndef _WIN32

TEST_F(WriteFaultTest, AReadOnlyDirectory)
{
    const std::string before = WrittenToAGoodFile();
    // A directory whose mode forbids writing; for root, whom modes do not
    // bind, /sys, where the kernel lets nobody create a file.
    std::string folder = dir.File("read-only");
    if (::geteuid() == 0) {
        folder = "/sys";
    } else {
        ASSERT_TRUE(std::filesystem::create_directory(folder));
        ASSERT_EQ(::chmod(folder.c_str(), 0555), 0);
    }
    const std::string path = folder + "/itunitechnik-slab.uni";
    const std::u16string target = Host(path);
    EXPECT_EQ(endDocument(C(target)), 1);
    EXPECT_FALSE(FileExists(path));
    if (::geteuid() != 0) {
        ::chmod(folder.c_str(), 0755);
    }
    ExpectDocumentIntact(before);
}

TEST_F(WriteFaultTest, AFullDisk)
{
    const std::string before = WrittenToAGoodFile();
    const std::u16string target = Host("/dev/full");
    EXPECT_EQ(endDocument(C(target)), 1);
    ExpectDocumentIntact(before);
}

bool SignalBlocked(int signal)
{
    sigset_t mask;
    sigemptyset(&mask);
    pthread_sigmask(SIG_BLOCK, nullptr, &mask);
    return sigismember(&mask, signal) == 1;
}

bool SignalPending(int signal)
{
    sigset_t pending;
    sigemptyset(&pending);
    sigpending(&pending);
    return sigismember(&pending, signal) == 1;
}

TEST_F(WriteFaultTest, APipeWhoseReaderHasGone)
{
    // A document larger than any pipe's buffer, so that the writer is still
    // writing when the reader goes.
    std::vector<std::int32_t> points;
    for (std::int32_t i = 0; i < 10000; ++i) {
        points.push_back(i);
        points.push_back(i % 100);
    }
    addContour(static_cast<std::int32_t>(points.size() / 2), points.data());
    const std::string before = WrittenToAGoodFile();
    ASSERT_GT(before.size(), 300000u);

    const std::string path = dir.File("pipe");
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    // The reader is there before the writer opens; it takes the first bytes
    // and goes while the writer still has most of the document to write.
    const int reader = ::open(path.c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    ASSERT_EQ(::fcntl(reader, F_SETFL, ::fcntl(reader, F_GETFL) & ~O_NONBLOCK), 0);
    constexpr std::size_t taken = 4096;
    std::string received;
    std::thread readerThread([&] {
        const auto giveUp = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        char chunk[512];
        while (received.size() < taken && std::chrono::steady_clock::now() < giveUp) {
            const ssize_t n = ::read(reader, chunk, std::min(sizeof chunk, taken - received.size()));
            if (n > 0) {
                received.append(chunk, static_cast<std::size_t>(n));
            } else if (n == 0) {
                // No writer yet.
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            } else if (errno != EINTR) {
                break;
            }
        }
        ::close(reader);
    });

    const bool blockedBefore = SignalBlocked(SIGPIPE);
    const std::u16string target = Host(path);
    EXPECT_EQ(endDocument(C(target)), 1);
    readerThread.join();

    // Still here; the signal is neither blocked nor waiting, and the host's
    // handling of it is what it was.
    EXPECT_EQ(SignalBlocked(SIGPIPE), blockedBefore);
    EXPECT_FALSE(SignalPending(SIGPIPE));
    struct sigaction current {};
    ASSERT_EQ(sigaction(SIGPIPE, nullptr, &current), 0);
    EXPECT_EQ(current.sa_handler, SIG_DFL);

    ASSERT_EQ(received.size(), taken);
    EXPECT_EQ(received, before.substr(0, taken));
    ExpectDocumentIntact(before);
}

TEST_F(WriteFaultTest, APipeWithNoReaderAtAllDoesNotHoldTheHost)
{
    const std::string before = WrittenToAGoodFile();
    const std::string path = dir.File("pipe");
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    const std::u16string target = Host(path);
    EXPECT_EQ(endDocument(C(target)), 1);
    ExpectDocumentIntact(before);
}

#endif

} // namespace
} // namespace ItUnitechnik
