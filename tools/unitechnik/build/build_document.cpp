#include "build/build_document.h"

#include "exports/document.h"
#include "files/write_document.h"
#include "sub_command.h"
#include "tree/tree_json.h"

namespace ItUnitechnik::Tool {

void BuildDocument(const nlohmann::json& input, const std::string& path)
{
    for (const auto& item : input.items()) {
        if (item.key() != "document") {
            throw BadInput(item.key() + ": a dumped document holds \"document\" alone");
        }
    }
    Document document;
    try {
        document.orders = Tree::FromJson(input["document"]);
    } catch (const Tree::TreeError& error) {
        throw BadInput(error.what());
    }
    if (path.empty()) {
        throw BadInput("a dumped document is written with -o FILE");
    }
    SaveDocumentFile(document, path);
}

} // namespace ItUnitechnik::Tool
