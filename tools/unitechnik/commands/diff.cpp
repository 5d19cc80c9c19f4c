// unitechnik diff A B [--json]: the differences of two Unitechnik files as
// records: orders, elements and records added, removed or changed, and each
// changed member with its old and new value and both files' lines.
#include "diff/record_diff.h"
#include "input/document_input.h"
#include "sub_command.h"
#include "tree/flat_records.h"
#include "tree/written_places.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

namespace ItUnitechnik::Tool {
namespace {

class DiffCommand final : public SubCommand {
public:
    const char* Name() const override { return "diff"; }

    const char* Description() const override
    {
        return "Compares two Unitechnik files record by record; exit 0 when they hold the same, 1 when not";
    }

    CommandExample Example() const override
    {
        return {"unitechnik diff slab.uni tests/functional/expected/slab/slab-600.txt",
                "compares the example slab with another slab, record by record"};
    }

    void AddOptions(CLI::App& app) override
    {
        app.add_option("A", fileA_, "The first Unitechnik file")->required();
        app.add_option("B", fileB_, "The second Unitechnik file")->required();
        app.add_flag("--json", json_, "The differences as one JSON array");
    }

    int Run() override
    {
        TolerantDocument a = ReadDocumentFile(fileA_);
        TolerantDocument b = ReadDocumentFile(fileB_);
        // What could not be read is not compared; the reader is told where.
        for (const auto* document : {&a, &b}) {
            if (!document->Complete()) {
                const std::string& file = document == &a ? fileA_ : fileB_;
                std::cerr << "unitechnik: " << StopMessage(file, *document->stop)
                          << " (what follows is not compared)\n";
            }
        }
        const Check::WrittenDocument writtenA = Check::WriteInMemory(a.orders, true);
        const Check::WrittenDocument writtenB = Check::WriteInMemory(b.orders, true);
        const Tree::FlatList flatA = Tree::Flatten(a.orders);
        const Tree::FlatList flatB = Tree::Flatten(b.orders);
        const std::vector<Diff::Change> changes =
            Diff::Compare(Diff::Side{flatA, writtenA}, Diff::Side{flatB, writtenB});

        std::string out;
        if (json_) {
            out = Diff::ChangesJson(changes, fileA_, fileB_)
                      .dump(2, ' ', false, nlohmann::json::error_handler_t::replace) +
                  "\n";
        } else {
            for (const Diff::Change& change : changes) {
                out += Diff::ChangeLine(change, fileA_, fileB_) + "\n";
            }
        }
        std::fwrite(out.data(), 1, out.size(), stdout);
        std::fflush(stdout);
        return changes.empty() ? kDone : kFailed;
    }

private:
    std::string fileA_;
    std::string fileB_;
    bool json_ = false;
};

} // namespace

std::unique_ptr<SubCommand> MakeDiffCommand()
{
    return std::make_unique<DiffCommand>();
}

} // namespace ItUnitechnik::Tool
