// unitechnik render FILE [-o OUT] [--order N] [--element N | --all] [--html]:
// an element drawn as one self-contained SVG, or an HTML page with the
// drawing, its records and its bill of materials.
#include "bom/bill_of_materials.h"
#include "files/files.h"
#include "input/document_input.h"
#include "render/html_page.h"
#include "render/scene.h"
#include "render/svg_document.h"
#include "sub_command.h"
#include "tree/element_places.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <iostream>
#include <string>

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

    CommandExample Example() const override
    {
        return {"unitechnik render slab.uni --html -o slab.html",
                "draws the example slab on a page with its records and bill of materials"};
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
        const bool page = WritesPage();
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
        const std::string text = page ? Drawing::HtmlPage(scenes, bills) : Drawing::SvgDocument(scenes, options);
        if (output_.empty()) {
            std::fwrite(text.data(), 1, text.size(), stdout);
            std::fflush(stdout);
        } else if (!WriteWholeFile(output_, [&text](const std::string& file) { return WriteBytes(file, text); })) {
            throw FileError("cannot write \"" + output_ + "\"");
        }
        return ReadExitCode(input_, document);
    }

private:
    // -o NAME.html (or .htm) writes the page and -o NAME.svg the drawing,
    // whatever --html says; --html with -o NAME.svg asks for both and is
    // refused. Any other name, and standard output, follow --html.
    bool WritesPage() const
    {
        const auto endsIn = [this](const std::string& ending) {
            if (output_.size() < ending.size()) {
                return false;
            }
            const std::string tail = output_.substr(output_.size() - ending.size());
            return std::equal(tail.begin(), tail.end(), ending.begin(),
                              [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == b; });
        };
        if (endsIn(".html") || endsIn(".htm")) {
            return true;
        }
        if (endsIn(".svg")) {
            if (html_) {
                throw BadInput("--html writes an HTML page, but \"" + output_ +
                               "\" names an SVG drawing: leave out --html, or name the page .html");
            }
            return false;
        }
        return html_;
    }

    static bool WriteBytes(const std::string& path, const std::string& bytes)
    {
        File file = OpenFile(path, "wb");
        if (!file || std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) {
            return false;
        }
        // The last bytes reach the file when it is closed: that may fail too.
        return std::fclose(file.release()) == 0;
    }

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
