// unitechnik dump FILE [--json | --tree]: a file read tolerantly, printed as
// its record tree.
#include "dump/tree_text.h"
#include "input/document_input.h"
#include "sub_command.h"
#include "tree/tree_json.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace ItUnitechnik::Tool {

namespace {

class DumpCommand : public SubCommand {
public:
    const char* Name() const override { return "dump"; }
    const char* Description() const override
    {
        return "Reads a Unitechnik file and prints its record tree, as JSON (the default) or as an outline";
    }

    CommandExample Example() const override
    {
        return {"unitechnik dump --tree slab.uni", "prints the records of slab.uni, one line each"};
    }

    void AddOptions(CLI::App& app) override
    {
        app.add_option("FILE", input_, "the Unitechnik file")->required();
        CLI::Option* json = app.add_flag("--json", json_, "every member of every record, as JSON (the default)");
        CLI::Option* tree = app.add_flag("--tree", tree_, "one line a record, indented by nesting");
        json->excludes(tree);
    }

    int Run() override
    {
        const TolerantDocument document = ReadDocumentFile(input_);
        if (tree_) {
            std::cout << Tree::TreeText(document.orders);
        } else {
            nlohmann::ordered_json out = nlohmann::ordered_json::object();
            out["document"] = Tree::ToJson(document.orders);
            std::cout << out.dump(2) << '\n';
        }
        return ReadExitCode(input_, document);
    }

private:
    std::string input_;
    bool json_ = false;
    bool tree_ = false;
};

} // namespace

std::unique_ptr<SubCommand> MakeDumpCommand()
{
    return std::make_unique<DumpCommand>();
}

} // namespace ItUnitechnik::Tool
