// WriteWholeFile: a file written to a temporary beside it and renamed into
// place, so that a folder watched by a plant shows the earlier file or the
// finished one. The failing renames are given to it, as a test may.
#include "files/files.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace ItUnitechnik::Tool {
namespace {

using Testing::NamesIn;
using Testing::ReadFileBytes;
using Testing::TemporaryDirectory;

void Put(const std::string& path, const std::string& bytes)
{
    File file = OpenFile(path, "wb");
    ASSERT_TRUE(file);
    ASSERT_EQ(std::fwrite(bytes.data(), 1, bytes.size(), file.get()), bytes.size());
}

bool FailingRename(const std::string&, const std::string&)
{
    return false;
}

int renames = 0;

bool CountedRename(const std::string& from, const std::string& to)
{
    ++renames;
    return RenameOver(from, to);
}

TEST(WriteWholeFile, ReplacesTheFileOnlyWhenTheNewOneIsWhole)
{
    TemporaryDirectory folder;
    const std::string path = folder.File("slab.uni");
    Put(path, "earlier");
    std::string temporary;
    const bool wrote = WriteWholeFile(path, [&](const std::string& file) {
        temporary = file;
        Put(file, "HEADER__");
        // While it is written, the folder still shows the earlier file.
        EXPECT_EQ(ReadFileBytes(path), "earlier");
        return true;
    });
    EXPECT_TRUE(wrote);
    EXPECT_EQ(ReadFileBytes(path), "HEADER__");
    EXPECT_NE(temporary, path);
    EXPECT_EQ(std::filesystem::path(temporary).parent_path(), std::filesystem::path(path).parent_path());
    EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"slab.uni"});
}

TEST(WriteWholeFile, MakesAFileThatWasNotThere)
{
    TemporaryDirectory folder;
    EXPECT_TRUE(WriteWholeFile(folder.File("new.uni"), [](const std::string& file) {
        Put(file, "HEADER__");
        return true;
    }));
    EXPECT_EQ(ReadFileBytes(folder.File("new.uni")), "HEADER__");
    EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"new.uni"});
}

TEST(WriteWholeFile, AFailingRenameLeavesTheEarlierFileAndNoTemporary)
{
    TemporaryDirectory folder;
    const std::string path = folder.File("slab.uni");
    Put(path, "earlier");
    const bool wrote = WriteWholeFile(
        path,
        [](const std::string& file) {
            Put(file, "HEADER__ half");
            return true;
        },
        FailingRename);
    EXPECT_FALSE(wrote);
    EXPECT_EQ(ReadFileBytes(path), "earlier");
    EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"slab.uni"});
}

TEST(WriteWholeFile, AFailingWriteLeavesTheEarlierFileAndNoTemporary)
{
    TemporaryDirectory folder;
    const std::string path = folder.File("slab.uni");
    Put(path, "earlier");
    renames = 0;
    const bool wrote = WriteWholeFile(
        path,
        [](const std::string& file) {
            Put(file, "HEADER__ half");
            return false;
        },
        CountedRename);
    EXPECT_FALSE(wrote);
    EXPECT_EQ(renames, 0);
    EXPECT_EQ(ReadFileBytes(path), "earlier");
    EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"slab.uni"});
}

TEST(WriteWholeFile, AWriteThatThrowsLeavesNoTemporary)
{
    TemporaryDirectory folder;
    const std::string path = folder.File("slab.uni");
    Put(path, "earlier");
    EXPECT_THROW(WriteWholeFile(path,
                                [](const std::string& file) -> bool {
                                    Put(file, "HEADER__ half");
                                    throw std::runtime_error("no memory");
                                }),
                 std::runtime_error);
    EXPECT_EQ(ReadFileBytes(path), "earlier");
    EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"slab.uni"});
}

TEST(WriteWholeFile, AFolderInTheFilesPlaceStaysAsItWas)
{
    // The system's own rename refuses to put a file over a folder.
    TemporaryDirectory folder;
    const std::string path = folder.File("slab.uni");
    std::filesystem::create_directory(path);
    Put(path + "/inside.txt", "kept");
    const bool wrote = WriteWholeFile(path, [](const std::string& file) {
        Put(file, "HEADER__");
        return true;
    });
    EXPECT_FALSE(wrote);
    EXPECT_TRUE(std::filesystem::is_directory(path));
    EXPECT_EQ(NamesIn(path), std::vector<std::string>{"inside.txt"});
    EXPECT_EQ(ReadFileBytes(path + "/inside.txt"), "kept");
    EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"slab.uni"});
}

TEST(WriteWholeFile, AMissingFolderIsNotWrittenTo)
{
    TemporaryDirectory folder;
    bool called = false;
    EXPECT_FALSE(WriteWholeFile(folder.File("missing/slab.uni"), [&called](const std::string&) {
        called = true;
        return true;
    }));
    EXPECT_FALSE(called);
    EXPECT_TRUE(NamesIn(folder.Path()).empty());
}

#ifndef _WIN32

TEST(WriteWholeFile, TheStreamFilesOfADocumentFollowIt)
{
    // On POSIX the library writes the stream of order n as the file
    // "NAME:ordern" beside the document.
    TemporaryDirectory folder;
    const std::string path = folder.File("slab.uni");
    EXPECT_TRUE(WriteWholeFile(path, [](const std::string& file) {
        Put(file, "HEADER__");
        Put(file + ":order0", "legacy text of order 0");
        return true;
    }));
    EXPECT_EQ(ReadFileBytes(path + ":order0"), "legacy text of order 0");
    EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"slab.uni", "slab.uni:order0"}));
}

TEST(WriteWholeFile, TheStreamFilesOfAFailedWriteAreRemoved)
{
    TemporaryDirectory folder;
    const std::string path = folder.File("slab.uni");
    Put(path, "earlier");
    Put(path + ":order0", "earlier stream");
    EXPECT_FALSE(WriteWholeFile(
        path,
        [](const std::string& file) {
            Put(file, "HEADER__");
            Put(file + ":order0", "new stream");
            return true;
        },
        FailingRename));
    EXPECT_EQ(ReadFileBytes(path + ":order0"), "earlier stream");
    EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"slab.uni", "slab.uni:order0"}));
}

TEST(WriteWholeFile, ALinkStaysALinkToTheNewFile)
{
    TemporaryDirectory folder;
    std::filesystem::create_directory(folder.File("store"));
    const std::string file = folder.File("store/slab.uni");
    Put(file, "earlier");
    std::filesystem::create_symlink(file, folder.File("slab.uni"));
    EXPECT_TRUE(WriteWholeFile(folder.File("slab.uni"), [](const std::string& temporary) {
        Put(temporary, "HEADER__");
        return true;
    }));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.File("slab.uni")));
    EXPECT_EQ(ReadFileBytes(file), "HEADER__");
    EXPECT_EQ(NamesIn(folder.File("store")), std::vector<std::string>{"slab.uni"});
}

TEST(WriteWholeFile, TheNewFileKeepsTheModeOfTheEarlierOne)
{
    TemporaryDirectory folder;
    const std::string path = folder.File("slab.uni");
    Put(path, "earlier");
    ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
    EXPECT_TRUE(WriteWholeFile(path, [](const std::string& file) {
        Put(file, "HEADER__");
        return true;
    }));
    struct stat status {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST(WriteWholeFile, AFileThatMayNotBeWrittenStaysAsItWas)
{
    if (::geteuid() == 0) {
        GTEST_SKIP() << "root may write any file";
    }
    TemporaryDirectory folder;
    const std::string path = folder.File("slab.uni");
    Put(path, "earlier");
    ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
    EXPECT_FALSE(WriteWholeFile(path, [](const std::string& file) {
        Put(file, "HEADER__");
        return true;
    }));
    EXPECT_EQ(ReadFileBytes(path), "earlier");
    EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"slab.uni"});
}

TEST(WriteWholeFile, ADeviceIsWrittenStraight)
{
    std::string given;
    EXPECT_TRUE(WriteWholeFile("/dev/null", [&given](const std::string& file) {
        given = file;
        return true;
    }));
    EXPECT_EQ(given, "/dev/null");
}

#endif

} // namespace
} // namespace ItUnitechnik::Tool
