// unitechnik build on the command line: its options, what it prints with and
// without --trace, where the files go, and its exit codes.
#include "support/test_support.h"
#include "tool_run.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace ItUnitechnik::Testing {
namespace {

const std::string kEnd = R"({"call": "endDocument", "path": "out.txt"})";

std::string V600()
{
    return ReadFileBytes(GoldenFile("versions/v600.txt"));
}

std::string FreshSummary()
{
    return ReadFileBytes(GoldenFile("reinforced/summary-fresh-600.txt"));
}

// The summary text as a JSON string, written out: its line feeds escaped.
std::string JsonText(const std::string& text)
{
    std::string out = "\"";
    for (char c : text) {
        out += c == '\n' ? std::string("\\n") : std::string(1, c);
    }
    return out + "\"";
}

TEST(BuildCommandLine, WithoutASubCommandIsABadCommandLine)
{
    TemporaryDirectory directory;
    const ToolResult run = RunTool({}, directory.Path());
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err, "A subcommand is required\nRun with --help for more information.\n");
}

TEST(BuildCommandLine, AnUnknownSubCommandIsABadCommandLine)
{
    TemporaryDirectory directory;
    const ToolResult run = RunTool({"bild", "s.json"}, directory.Path());
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err, "A subcommand is required\nRun with --help for more information.\n");
}

TEST(BuildCommandLine, WithoutAScriptIsABadCommandLine)
{
    TemporaryDirectory directory;
    const ToolResult run = RunTool({"build"}, directory.Path());
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err, "SCRIPT is required\nRun with --help for more information.\n");
}

TEST(BuildCommandLine, AnUnknownOptionIsABadCommandLine)
{
    TemporaryDirectory directory;
    WriteFileBytes(directory.File("s.json"), Script({kStartOrder600, kEnd}));
    const ToolResult run = RunTool({"build", "s.json", "--out", "x.txt"}, directory.Path());
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err,
              "The following arguments were not expected: x.txt --out\nRun with --help for more information.\n");
    EXPECT_EQ(FilesBelow(directory.Path()), std::vector<std::string>{"s.json"});
}

TEST(BuildCommandLine, HelpNamesTheOptions)
{
    TemporaryDirectory directory;
    const ToolResult run = RunTool({"build", "--help"}, directory.Path());
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_NE(run.out.find("Usage: unitechnik build [OPTIONS] SCRIPT"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("-o,--output FILE"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("--trace FILE|-"), std::string::npos) << run.out;
}

TEST(BuildCommandLine, AnEmptyOutputNameIsABadCommandLine)
{
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(directory.Path(), Script({kStartOrder600, kEnd}), {"-o", ""});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err, ToolError("-o: \"\" is no file name"));
    EXPECT_EQ(FilesBelow(directory.Path()), std::vector<std::string>{"s.json"});
}

TEST(BuildReport, NamesEachFileWrittenAndShowsTheSummaryOfTheLastElement)
{
    TemporaryDirectory directory;
    const ToolResult run =
        BuildScript(directory.Path(), Script({kStartOrder600, R"({"call": "endDocument", "path": "a.txt"})",
                                              R"({"call": "endDocument", "path": "b.txt"})"}));
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "wrote a.txt\nwrote b.txt\n" + FreshSummary());
    EXPECT_EQ(ReadFileBytes(directory.File("a.txt")), V600());
    EXPECT_EQ(ReadFileBytes(directory.File("b.txt")), V600());
}

TEST(BuildReport, WithoutAnOrderTheSummaryIsEmpty)
{
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(directory.Path(), Script({kEnd}));
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, "wrote out.txt\n");
    EXPECT_EQ(ReadFileBytes(directory.File("out.txt")), "");
}

TEST(BuildReport, AScriptWithoutEndDocumentWritesNothing)
{
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(directory.Path(), Script({kStartOrder600}));
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, FreshSummary());
    EXPECT_EQ(FilesBelow(directory.Path()), std::vector<std::string>{"s.json"});
}

TEST(BuildOutput, SendsTheLastEndDocumentElsewhere)
{
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(directory.Path(),
                                       Script({kStartOrder600, R"({"call": "endDocument", "path": "a.txt"})",
                                               R"({"call": "endDocument", "path": "b.txt"})"}),
                                       {"-o", "c.txt"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, "wrote a.txt\nwrote c.txt\n" + FreshSummary());
    EXPECT_EQ(FilesBelow(directory.Path()), (std::vector<std::string>{"a.txt", "c.txt", "s.json"}));
    EXPECT_EQ(ReadFileBytes(directory.File("c.txt")), V600());
}

TEST(BuildOutput, AddsAnEndDocumentWhenTheScriptHasNone)
{
    TemporaryDirectory directory;
    const ToolResult run =
        BuildScript(directory.Path(), Script({kStartOrder600}), {"--output", "c.txt", "--trace", "-"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, "{\"index\":0,\"call\":\"startOrder\",\"result\":1}\n"
                       "{\"index\":1,\"call\":\"endDocument\",\"result\":1}\n");
    EXPECT_EQ(ReadFileBytes(directory.File("c.txt")), V600());
}

TEST(BuildOutput, GivesTheLastEndDocumentItsPath)
{
    TemporaryDirectory directory;
    const ToolResult run =
        BuildScript(directory.Path(), Script({kStartOrder600, R"({"call": "endDocument"})"}), {"-o", "c.txt"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(ReadFileBytes(directory.File("c.txt")), V600());
}

TEST(BuildOutput, AnEarlierEndDocumentStillNeedsAPath)
{
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(
        directory.Path(), Script({kStartOrder600, R"({"call": "endDocument"})", R"({"call": "endDocument"})"}),
        {"-o", "c.txt"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err, ToolError("s.json: call 1 (endDocument), key \"path\": no file name (give one, or -o FILE for "
                                 "the last endDocument)"));
    EXPECT_EQ(FilesBelow(directory.Path()), std::vector<std::string>{"s.json"});
}

TEST(BuildOutput, PathsAreRelativeToTheCurrentDirectory)
{
    TemporaryDirectory scripts;
    TemporaryDirectory work;
    WriteFileBytes(scripts.File("s.json"), Script({kStartOrder600, kEnd}));
    const ToolResult run = RunTool({"build", scripts.File("s.json")}, work.Path());
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(FilesBelow(scripts.Path()), std::vector<std::string>{"s.json"});
    EXPECT_EQ(ReadFileBytes(work.File("out.txt")), V600());
}

TEST(BuildOutput, FileNamesBeyondAsciiAreUtf8)
{
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(
        directory.Path(), Script({kStartOrder600, R"({"call": "endDocument", "path": "Gr\u00f6\u00dfe \u03a9.txt"})"}));
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, "wrote Gr\xC3\xB6\xC3\x9F"
                       "e \xCE\xA9.txt\n" +
                           FreshSummary());
    EXPECT_EQ(ReadFileBytes(directory.File("Gr\xC3\xB6\xC3\x9F"
                                           "e \xCE\xA9.txt")),
              V600());
}

TEST(BuildFiles, AScriptThatCannotBeReadGivesThree)
{
    TemporaryDirectory directory;
    const ToolResult run = RunTool({"build", "missing.json"}, directory.Path());
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, ToolError("cannot read \"missing.json\""));
    std::filesystem::create_directory(directory.File("folder.json"));
    const ToolResult folder = RunTool({"build", "folder.json"}, directory.Path());
    EXPECT_EQ(folder.exitCode, 3);
    EXPECT_EQ(folder.err, ToolError("cannot read \"folder.json\""));
}

TEST(BuildFiles, ADocumentThatCannotBeWrittenGivesThreeAndStopsTheScript)
{
    // No file can be made in a missing folder, so the tool stops at that
    // call without running it (endDocument would give 1 all the same), and
    // the calls behind it do not run.
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(
        directory.Path(),
        Script({kStartOrder600, R"({"call": "endDocument", "path": "a.txt"})",
                R"({"call": "endDocument", "path": "missing/b.txt"})", R"({"call": "endDocument", "path": "c.txt"})"}),
        {"--trace", "trace.jsonl"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, ToolError("s.json: call 2 (endDocument): cannot write \"missing/b.txt\""));
    EXPECT_EQ(FilesBelow(directory.Path()), (std::vector<std::string>{"a.txt", "s.json", "trace.jsonl"}));
    EXPECT_EQ(ReadFileBytes(directory.File("trace.jsonl")), "{\"index\":0,\"call\":\"startOrder\",\"result\":1}\n"
                                                            "{\"index\":1,\"call\":\"endDocument\",\"result\":1}\n");
}

TEST(BuildFiles, AFolderInThePlaceOfTheDocumentGivesThree)
{
    TemporaryDirectory directory;
    std::filesystem::create_directory(directory.File("out.txt"));
    const ToolResult run = BuildScript(directory.Path(), Script({kStartOrder600, kEnd}));
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, ToolError("s.json: call 1 (endDocument): cannot write \"out.txt\""));
    EXPECT_EQ(run.out, "");
}

TEST(BuildFiles, AnOutputThatCannotBeWrittenGivesThree)
{
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(directory.Path(), Script({kStartOrder600}), {"-o", "missing/c.txt"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, ToolError("s.json: call 1 (endDocument): cannot write \"missing/c.txt\""));
}

TEST(BuildFiles, ATraceThatCannotBeWrittenGivesThreeBeforeAnyCall)
{
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(directory.Path(), Script({kStartOrder600, kEnd}), {"--trace", "missing/t"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, ToolError("cannot write the trace \"missing/t\""));
    EXPECT_EQ(FilesBelow(directory.Path()), std::vector<std::string>{"s.json"});
}

TEST(BuildTrace, IsOneLinePerCallWithItsResultOrText)
{
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(
        directory.Path(),
        Script(
            {R"({"call": "getFullReinforcementString"})",
             kStartOrder600,
             R"({"call": "getFullReinforcementString"})",
             R"({"call": "setProjectData", "texts": ["", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", )"
             R"("21.11.2026"]})",
             R"({"call": "setSlabInfoFields"})",
             R"({"call": "setThicknesses"})",
             R"({"call": "setDoubleWallGap"})",
             R"({"call": "addLayer"})",
             R"({"call": "addContour"})",
             R"({"call": "addCutout"})",
             R"({"call": "addSet", "setKind": 3})",
             R"({"call": "addSet", "setKind": 4})",
             R"({"call": "addSet", "setKind": 5})",
             R"({"call": "addCFSRodstock"})",
             R"({"call": "addSteelmat"})",
             R"({"call": "addSteelmat"})",
             R"({"call": "addCFSRodstock"})",
             R"({"call": "addCFSRodstock"})",
             R"({"call": "addStraightRodstock"})",
             R"({"call": "addFreeFormRodstock"})",
             R"({"call": "addExtIron"})",
             R"({"call": "addExtIron"})",
             kEnd}),
        {"--trace", "trace.jsonl"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, "");
    const std::string expected = "{\"index\":0,\"call\":\"getFullReinforcementString\",\"text\":\"\"}\n"
                                 "{\"index\":1,\"call\":\"startOrder\",\"result\":1}\n"
                                 "{\"index\":2,\"call\":\"getFullReinforcementString\",\"text\":" +
                                 JsonText(FreshSummary()) +
                                 "}\n"
                                 "{\"index\":3,\"call\":\"setProjectData\"}\n"
                                 "{\"index\":4,\"call\":\"setSlabInfoFields\"}\n"
                                 "{\"index\":5,\"call\":\"setThicknesses\"}\n"
                                 "{\"index\":6,\"call\":\"setDoubleWallGap\"}\n"
                                 "{\"index\":7,\"call\":\"addLayer\"}\n"
                                 "{\"index\":8,\"call\":\"addContour\"}\n"
                                 "{\"index\":9,\"call\":\"addCutout\"}\n"
                                 "{\"index\":10,\"call\":\"addSet\",\"result\":1}\n"
                                 "{\"index\":11,\"call\":\"addSet\",\"result\":0}\n"
                                 "{\"index\":12,\"call\":\"addSet\",\"result\":1}\n"
                                 "{\"index\":13,\"call\":\"addCFSRodstock\",\"result\":-1}\n"
                                 "{\"index\":14,\"call\":\"addSteelmat\",\"result\":1}\n"
                                 "{\"index\":15,\"call\":\"addSteelmat\",\"result\":2}\n"
                                 "{\"index\":16,\"call\":\"addCFSRodstock\",\"result\":1}\n"
                                 "{\"index\":17,\"call\":\"addCFSRodstock\",\"result\":2}\n"
                                 "{\"index\":18,\"call\":\"addStraightRodstock\"}\n"
                                 "{\"index\":19,\"call\":\"addFreeFormRodstock\"}\n"
                                 "{\"index\":20,\"call\":\"addExtIron\",\"result\":1}\n"
                                 "{\"index\":21,\"call\":\"addExtIron\",\"result\":2}\n"
                                 "{\"index\":22,\"call\":\"endDocument\",\"result\":1}\n";
    EXPECT_EQ(ReadFileBytes(directory.File("trace.jsonl")), expected);
}

TEST(BuildTrace, GoesToStandardOutputForADash)
{
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(directory.Path(), Script({kStartOrder600, kEnd}), {"--trace", "-"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, "{\"index\":0,\"call\":\"startOrder\",\"result\":1}\n"
                       "{\"index\":1,\"call\":\"endDocument\",\"result\":1}\n");
    EXPECT_EQ(ReadFileBytes(directory.File("out.txt")), V600());
}

TEST(BuildTrace, KeepsTextsBeyondAsciiAsUtf8)
{
    TemporaryDirectory directory;
    const ToolResult run = BuildScript(
        directory.Path(),
        Script({kStartOrder600, R"({"call": "addExtIron", "ironCode": 1, "ironCount": 1, "ironText": "\u03a9 7"})",
                R"({"call": "getFullReinforcementString"})"}),
        {"--trace", "-"});
    EXPECT_EQ(run.exitCode, 0);
    const std::string iron =
        "EXTIRON_\\n600\\n001\\n001 01 00001 000.000" + std::string(28, ' ') + "\xCE\xA9 7\\nEND\\n";
    EXPECT_NE(run.out.find(iron), std::string::npos) << run.out;
}

} // namespace
} // namespace ItUnitechnik::Testing
