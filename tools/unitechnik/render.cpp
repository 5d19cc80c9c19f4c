// unitechnik render FILE [-o OUT] [--order N] [--element N | --all] [--html]:
// an element drawn as one self-contained SVG, or an HTML page with the
// drawing, its records and its bill of materials.
#include "bom/bill_of_materials.h"
#include "document_input.h"
#include "files.h"
#include "sub_command.h"
#include "svg/element_places.h"
#include "svg/html_page.h"
#include "svg/scene.h"
#include "svg/svg_document.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <iostream>

namespace ItUnitechnik::Tool {

namespace {

class RenderCommand : public SubCommand {
public:
    const char* Name() const override { return "render"; }
    const char* Description() const override
    {
        return "Draws an element of a Unitechnik file as SVG (y up, millimetres), or as an HTML page with its "
               "records and bill of materials";
    }

    void AddOptions(CLI::App& app) override
    {
        app.add_option("FILE", input_, "the Unitechnik file")->required();
        app.add_option("-o,--output", output_, "write to OUT instead of standard output")->type_name("OUT");
        CLI::Option* order = app.add_option("--order", order_, "the order, counted from 1 in the file (default 1)")
                                 ->check(CLI::PositiveNumber);
        CLI::Option* element =
            app.add_option("--element", element_, "the element, counted from 1 in its order (default 1)")
                ->check(CLI::PositiveNumber);
        CLI::Option* all = app.add_flag("--all", all_, "every element of the file, one below the other, with captions");
        all->excludes(order);
        all->excludes(element);
        app.add_flag("--html", html_, "an HTML page: the drawing, a table of its records, the bill of materials");
    }

    int Run() override
    {
        const TolerantDocument document = ReadDocumentFile(input_);
        const std::vector<Drawing::ElementPlace> places = Drawing::ElementPlaces(document.orders);

        std::vector<Drawing::Scene> scenes;
        std::vector<Bom::ElementBill> bills;
        for (const Drawing::ElementPlace& place : places) {
            if (all_ || (place.orderIndex == order_ && place.elementIndex == element_)) {
                scenes.push_back(Drawing::MakeScene(place, all_ ? Drawing::PlacePrefix(place) : ""));
                bills.push_back(Bom::BillOf(*place.order, *place.element));
            }
        }
        if (scenes.empty()) {
            if (!document.Complete()) {
                std::cerr << StopMessage(input_, *document.stop) << '\n';
            }
            if (places.empty()) {
                throw BadInput("\"" + input_ + "\" holds no element");
            }
            throw BadInput("\"" + input_ + "\" has no element " + std::to_string(element_) + " in order " +
                           std::to_string(order_));
        }

        Drawing::SvgOptions options;
        options.captions = all_;
        const std::string text = html_ ? Drawing::HtmlPage(scenes, bills) : Drawing::SvgDocument(scenes, options);
        if (output_.empty()) {
            std::fwrite(text.data(), 1, text.size(), stdout);
            std::fflush(stdout);
        } else {
            File file = OpenFile(output_, "wb");
            if (!file || std::fwrite(text.data(), 1, text.size(), file.get()) != text.size() ||
                std::fflush(file.get()) != 0) {
                throw FileError("cannot write \"" + output_ + "\"");
            }
        }
        if (!document.Complete()) {
            std::cerr << StopMessage(input_, *document.stop) << '\n';
            return kFailed;
        }
        return kDone;
    }

private:
    std::string input_;
    std::string output_;
    std::size_t order_ = 1;
    std::size_t element_ = 1;
    bool all_ = false;
    bool html_ = false;
};

} // namespace

std::unique_ptr<SubCommand> MakeRenderCommand()
{
    return std::make_unique<RenderCommand>();
}

} // namespace ItUnitechnik::Tool
