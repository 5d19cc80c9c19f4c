// unitechnik convert FILE --version N -o OUT [--json] [--ignore CODE]...:
// a Unitechnik file written again at another format version, for a plant on
// older (or newer) software. What the conversion cuts is told with check's
// codes, at its place in OUT.
#include "check/file_check.h"
#include "convert/format_version.h"
#include "exports/document.h"
#include "files/files.h"
#include "files/write_document.h"
#include "findings/findings.h"
#include "findings/ignore_option.h"
#include "findings/record_findings.h"
#include "sub_command.h"
#include "text/unicode.h"
#include "tree/flat_records.h"
#include "tree/written_places.h"

#include <CLI/CLI.hpp>

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace ItUnitechnik::Tool {
namespace {

class ConvertCommand final : public SubCommand {
public:
    const char* Name() const override { return "convert"; }

    const char* Description() const override
    {
        return "Writes a Unitechnik file again at another format version and tells what the conversion cut; "
               "exit 0 when nothing was cut, 1 when something was or the file does not read to its end";
    }

    CommandExample Example() const override
    {
        return {"unitechnik convert slab.uni --version 502 -o slab-502.uni",
                "writes slab.uni again at version 502 and tells what that cuts"};
    }

    void AddOptions(CLI::App& app) override
    {
        app.add_option("FILE", input_, "The Unitechnik file")->required();
        app.add_option("--version", version_, "The format version to write, as startOrder takes it (such as 502)")
            ->required()
            ->check(CLI::Range(0, 65535));
        app.add_option("-o,--output", output_, "The file to write")->required()->type_name("OUT");
        app.add_flag("--json", json_, "What was cut as one JSON array");
        Check::AddIgnoreOption(app, ignored_);
    }

    int Run() override
    {
        const std::set<Check::Code> ignored = Check::IgnoredCodes(ignored_);
        const std::wstring output = WideFromUtf8(output_);
        if (output.empty()) {
            throw BadInput("-o: \"" + output_ + "\" is no file name");
        }
        const std::optional<std::string> bytes = ReadWholeFile(input_);
        if (!bytes) {
            throw FileError("cannot read \"" + input_ + "\"");
        }

        TolerantDocument document = ReadTolerantly(*bytes);
        // A document read only in part is not written: the rest would be lost
        // without a word. Bytes behind the last order are left behind.
        std::vector<Check::Finding> findings;
        if (std::optional<Check::Finding> stop = Check::StopFinding(input_, document)) {
            const bool whole = document.trailingData;
            findings.push_back(std::move(*stop));
            if (!whole) {
                Finish(findings, ignored);
                return kFailed;
            }
        }

        // Where each record stands in FILE, for those the new version leaves out.
        const Check::WrittenDocument before = Check::WriteInMemory(document.orders, true);
        Convert::SetFormatVersion(document.orders, static_cast<std::uint16_t>(version_));
        const Check::WrittenDocument written = Check::WriteInMemory(document.orders, true);
        const Tree::FlatList flat = Tree::Flatten(document.orders);
        const Tree::RecordIndex records(flat);
        LeftOut(flat, before, written, findings);
        for (const Check::RecordFinding& cut : Check::FieldFindings(written, records)) {
            findings.push_back(InOutput(cut, *cut.written));
        }
        // Below 600 a point has no room for its sign.
        for (const Check::RecordFinding& point : Check::TreeFindings(document.orders, records)) {
            if (point.writtenAsZero) {
                if (const std::optional<Check::Place> place = Check::PlaceOf(point, written)) {
                    findings.push_back(InOutput(point, *place));
                }
            }
        }

        // A temporary beside OUT takes its place when it is whole: a plant
        // that watches the folder never reads half a file.
        Document converted;
        converted.orders = std::move(document.orders);
        SaveDocumentFile(converted, output_);
        return Finish(findings, ignored) ? kFailed : kDone;
    }

private:
    Check::Finding InOutput(const Check::RecordFinding& found, const Check::Place& place) const
    {
        Check::Finding finding;
        finding.path = output_;
        finding.line = place.line;
        finding.column = place.column;
        finding.code = found.code;
        finding.message = found.message;
        finding.details["record"] = found.path;
        finding.details["member"] = found.name;
        return finding;
    }

    // The records that FILE holds and OUT does not: below 600 an element
    // with mats writes its mats and none of its own bars, girders or
    // external irons. Each is told once, at its place in FILE, and not the
    // records it holds.
    void LeftOut(const Tree::FlatList& list, const Check::WrittenDocument& before, const Check::WrittenDocument& after,
                 std::vector<Check::Finding>& findings) const
    {
        for (const Tree::FlatRecord& record : list.records) {
            if (after.RecordStart(record.address)) {
                for (const Tree::FlatList& inner : record.lists) {
                    LeftOut(inner, before, after, findings);
                }
                continue;
            }
            const std::optional<Check::Place> place = before.RecordStart(record.address);
            if (!place) {
                continue; // FILE does not hold it either
            }
            Check::Finding finding;
            finding.path = input_;
            finding.line = place->line;
            finding.column = place->column;
            finding.code = Check::Code::recordLeftOut;
            finding.message =
                record.path + " is left out: a file of version " + std::to_string(version_) + " does not hold it";
            finding.details["record"] = record.path;
            findings.push_back(std::move(finding));
        }
    }

    // Prints what is left after --ignore; whether anything is.
    bool Finish(std::vector<Check::Finding>& findings, const std::set<Check::Code>& ignored) const
    {
        const std::vector<Check::Finding> kept = Check::Without(std::move(findings), ignored);
        if (json_ || !kept.empty()) {
            Check::PrintFindings(kept, json_);
        }
        return !kept.empty();
    }

    std::string input_;
    std::string output_;
    int version_ = 0;
    bool json_ = false;
    std::vector<std::string> ignored_;
};

} // namespace

std::unique_ptr<SubCommand> MakeConvertCommand()
{
    return std::make_unique<ConvertCommand>();
}

} // namespace ItUnitechnik::Tool
