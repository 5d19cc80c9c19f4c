// unitechnik bom FILE [--csv | --json]: the bill of materials of every
// element of a file: bars, braced girders, mats, external irons and mounted
// parts.
#include "bom/bill_of_materials.h"
#include "input/document_input.h"
#include "sub_command.h"

#include <CLI/CLI.hpp>

#include <cstdio>

namespace ItUnitechnik::Tool {

namespace {

class BomCommand : public SubCommand {
public:
    const char* Name() const override { return "bom"; }
    const char* Description() const override
    {
        return "Prints the bill of materials of every element of a Unitechnik file, as a table (the default), CSV or "
               "JSON";
    }

    CommandExample Example() const override
    {
        return {"unitechnik bom slab.uni --csv", "prints the bill of materials of the example slab as CSV"};
    }

    void AddOptions(CLI::App& app) override
    {
        app.add_option("FILE", input_, "the Unitechnik file")->required();
        CLI::Option* csv = app.add_flag("--csv", csv_, "one line per group, comma-separated, with a header line");
        CLI::Option* json = app.add_flag("--json", json_, "the same as JSON");
        csv->excludes(json);
    }

    int Run() override
    {
        const TolerantDocument document = ReadDocumentFile(input_);
        const std::vector<Bom::ElementBill> bills = Bom::BillOfDocument(document.orders);
        const std::string text = csv_ ? Bom::BillCsv(bills) : json_ ? Bom::BillJson(bills) : Bom::BillText(bills);
        std::fwrite(text.data(), 1, text.size(), stdout);
        std::fflush(stdout);
        return ReadExitCode(input_, document);
    }

private:
    std::string input_;
    bool csv_ = false;
    bool json_ = false;
};

} // namespace

std::unique_ptr<SubCommand> MakeBomCommand()
{
    return std::make_unique<BomCommand>();
}

} // namespace ItUnitechnik::Tool
