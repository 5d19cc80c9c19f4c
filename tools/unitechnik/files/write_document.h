#pragma once

#include <functional>
#include <string>

namespace ItUnitechnik {
class Document;
}

// A Unitechnik document written to a path, as build, convert and the calls of
// a script write one: whole or not at all.
namespace ItUnitechnik::Tool {

// Writes the document at `path` through WriteWholeFile: `save` writes it to
// the temporary it is given and says whether it did. A writer may say so of a
// file it could not make, so the temporary must be there as well.
bool WriteDocumentFile(const std::string& path, const std::function<bool(const std::string& temporary)>& save);

// The document through its own Save; a FileError naming the path when the
// file cannot be written.
void SaveDocumentFile(Document& document, const std::string& path);

} // namespace ItUnitechnik::Tool
