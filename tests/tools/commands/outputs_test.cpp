// What build -o, convert -o and render -o leave in a folder that a plant
// watches: the finished file in place of the earlier one, or, when anything
// fails, the earlier one as it was and nothing beside it. And render writes
// what the name of its file says: a page for .html, a drawing for .svg.
#include "support/test_support.h"
#include "tool_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace ItUnitechnik::Testing {
namespace {

const std::string kEarlier = "HEADER__ the earlier file\r\n";

// A folder in the place of the output, with a file in it: no rename puts a
// file over it.
void MakeFolderInPlace(const std::string& path)
{
    std::filesystem::create_directory(path);
    WriteFileBytes(path + "/inside.txt", "kept");
}

void ExpectFolderAsItWas(const std::string& path)
{
    EXPECT_TRUE(std::filesystem::is_directory(path));
    EXPECT_EQ(FilesBelow(path), std::vector<std::string>{"inside.txt"});
    EXPECT_EQ(ReadFileBytes(path + "/inside.txt"), "kept");
}

TEST(BuildOutputs, TakesThePlaceOfTheEarlierFileWhole)
{
    TemporaryDirectory directory;
    WriteFileBytes(directory.File("out.uni"), kEarlier);
    const ToolResult run = BuildScript(directory.Path(), Script({kStartOrder600}), {"-o", "out.uni"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(ReadFileBytes(directory.File("out.uni")), ReadFileBytes(GoldenFile("versions/v600.txt")));
    EXPECT_EQ(NamesIn(directory.Path()), (std::vector<std::string>{"out.uni", "s.json"}));
}

TEST(BuildOutputs, ABadScriptLeavesTheEarlierFileAsItWas)
{
    TemporaryDirectory directory;
    WriteFileBytes(directory.File("out.uni"), kEarlier);
    const ToolResult run =
        BuildScript(directory.Path(), Script({kStartOrder600, R"({"call": "addContur"})"}), {"-o", "out.uni"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(ReadFileBytes(directory.File("out.uni")), kEarlier);
    EXPECT_EQ(NamesIn(directory.Path()), (std::vector<std::string>{"out.uni", "s.json"}));
}

TEST(BuildOutputs, AFolderInThePlaceOfTheOutputStaysAsItWas)
{
    TemporaryDirectory directory;
    MakeFolderInPlace(directory.File("out.uni"));
    const ToolResult run = BuildScript(directory.Path(), Script({kStartOrder600}), {"-o", "out.uni"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, ToolError("s.json: call 1 (endDocument): cannot write \"out.uni\""));
    ExpectFolderAsItWas(directory.File("out.uni"));
    EXPECT_EQ(NamesIn(directory.Path()), (std::vector<std::string>{"out.uni", "s.json"}));
}

TEST(BuildOutputs, ADumpedDocumentIsWrittenWholeOrNotAtAll)
{
    TemporaryDirectory directory;
    WriteFileBytes(directory.File("v600.json"), RunTool({"dump", GoldenFile("versions/v600.txt")}, ".").out);
    MakeFolderInPlace(directory.File("folder.uni"));
    const ToolResult refused = RunTool({"build", "v600.json", "-o", "folder.uni"}, directory.Path());
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_EQ(refused.err, ToolError("cannot write \"folder.uni\""));
    ExpectFolderAsItWas(directory.File("folder.uni"));

    WriteFileBytes(directory.File("out.uni"), kEarlier);
    const ToolResult run = RunTool({"build", "v600.json", "-o", "out.uni"}, directory.Path());
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(ReadFileBytes(directory.File("out.uni")), ReadFileBytes(GoldenFile("versions/v600.txt")));
    EXPECT_EQ(NamesIn(directory.Path()), (std::vector<std::string>{"folder.uni", "out.uni", "v600.json"}));
}

TEST(ConvertOutputs, TakesThePlaceOfTheEarlierFileWhole)
{
    TemporaryDirectory directory;
    WriteFileBytes(directory.File("out.txt"), kEarlier);
    const ToolResult run =
        RunTool({"convert", GoldenFile("slab/slab-600.txt"), "--version", "502", "-o", "out.txt"}, directory.Path());
    EXPECT_EQ(run.exitCode, 1) << run.err; // the texts that 502 cuts
    EXPECT_EQ(ReadFileBytes(directory.File("out.txt")), ReadFileBytes(GoldenFile("slab/slab-502.txt")));
    EXPECT_EQ(NamesIn(directory.Path()), std::vector<std::string>{"out.txt"});
}

TEST(ConvertOutputs, AFileThatDoesNotReadToItsEndLeavesTheEarlierFileAsItWas)
{
    TemporaryDirectory directory;
    WriteFileBytes(directory.File("out.txt"), kEarlier);
    const ToolResult run = RunTool(
        {"convert", ToolTestFile("check/inputs/cut-off.txt"), "--version", "502", "-o", "out.txt"}, directory.Path());
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(ReadFileBytes(directory.File("out.txt")), kEarlier);
    EXPECT_EQ(NamesIn(directory.Path()), std::vector<std::string>{"out.txt"});
}

TEST(ConvertOutputs, AFolderInThePlaceOfTheOutputStaysAsItWas)
{
    TemporaryDirectory directory;
    MakeFolderInPlace(directory.File("out.txt"));
    const ToolResult run =
        RunTool({"convert", GoldenFile("slab/slab-600.txt"), "--version", "600", "-o", "out.txt"}, directory.Path());
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, ToolError("cannot write \"out.txt\""));
    ExpectFolderAsItWas(directory.File("out.txt"));
    EXPECT_EQ(NamesIn(directory.Path()), std::vector<std::string>{"out.txt"});
}

TEST(RenderOutputs, TakesThePlaceOfTheEarlierFileWhole)
{
    TemporaryDirectory directory;
    WriteFileBytes(directory.File("slab.svg"), kEarlier);
    const ToolResult run = RunTool({"render", GoldenFile("slab/slab-600.txt"), "-o", "slab.svg"}, directory.Path());
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(ReadFileBytes(directory.File("slab.svg")),
              RunTool({"render", GoldenFile("slab/slab-600.txt")}, directory.Path()).out);
    EXPECT_EQ(NamesIn(directory.Path()), std::vector<std::string>{"slab.svg"});
}

TEST(RenderOutputs, AnElementTheFileDoesNotHoldLeavesTheEarlierFileAsItWas)
{
    TemporaryDirectory directory;
    WriteFileBytes(directory.File("slab.svg"), kEarlier);
    const ToolResult run =
        RunTool({"render", GoldenFile("slab/slab-600.txt"), "--element", "9", "-o", "slab.svg"}, directory.Path());
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(ReadFileBytes(directory.File("slab.svg")), kEarlier);
    EXPECT_EQ(NamesIn(directory.Path()), std::vector<std::string>{"slab.svg"});
}

TEST(RenderOutputs, AFolderInThePlaceOfTheOutputStaysAsItWas)
{
    TemporaryDirectory directory;
    MakeFolderInPlace(directory.File("slab.svg"));
    const ToolResult run = RunTool({"render", GoldenFile("slab/slab-600.txt"), "-o", "slab.svg"}, directory.Path());
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, ToolError("cannot write \"slab.svg\""));
    ExpectFolderAsItWas(directory.File("slab.svg"));
    EXPECT_EQ(NamesIn(directory.Path()), std::vector<std::string>{"slab.svg"});
}

bool IsPage(const std::string& text)
{
    return text.rfind("<!DOCTYPE html>\n", 0) == 0;
}

bool IsDrawing(const std::string& text)
{
    return text.rfind("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg ", 0) == 0;
}

TEST(RenderOutputs, TheNameOfTheFileChoosesPageOrDrawing)
{
    TemporaryDirectory directory;
    const std::string file = GoldenFile("slab/slab-600.txt");
    const auto rendered = [&](const std::vector<std::string>& options, const std::string& name) {
        std::vector<std::string> arguments{"render", file, "-o", name};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const ToolResult run = RunTool(arguments, directory.Path());
        EXPECT_EQ(run.exitCode, 0) << name << ": " << run.err;
        return ReadFileBytes(directory.File(name));
    };
    EXPECT_TRUE(IsPage(rendered({}, "a.html")));
    EXPECT_TRUE(IsPage(rendered({}, "b.htm")));
    EXPECT_TRUE(IsPage(rendered({}, "C.HTML")));
    EXPECT_TRUE(IsPage(rendered({"--html"}, "d.html")));
    EXPECT_TRUE(IsDrawing(rendered({}, "e.svg")));
    EXPECT_TRUE(IsDrawing(rendered({}, "F.SVG")));
    // Any other name follows --html.
    EXPECT_TRUE(IsDrawing(rendered({}, "g.txt")));
    EXPECT_TRUE(IsPage(rendered({"--html"}, "h.txt")));
}

TEST(RenderOutputs, HtmlAskedForAnSvgFileIsABadCommandLine)
{
    TemporaryDirectory directory;
    const ToolResult run =
        RunTool({"render", GoldenFile("slab/slab-600.txt"), "--html", "-o", "slab.svg"}, directory.Path());
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err, ToolError("--html writes an HTML page, but \"slab.svg\" names an SVG drawing: leave out "
                                 "--html, or name the page .html"));
    EXPECT_TRUE(NamesIn(directory.Path()).empty());
}

} // namespace
} // namespace ItUnitechnik::Testing
