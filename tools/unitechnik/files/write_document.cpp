#include "files/write_document.h"

#include "exports/document.h"
#include "files/files.h"
#include "sub_command.h"
#include "text/unicode.h"

namespace ItUnitechnik::Tool {

bool WriteDocumentFile(const std::string& path, const std::function<bool(const std::string& temporary)>& save)
{
    return WriteWholeFile(path, [&save](const std::string& file) { return save(file) && FileIsThere(file); });
}

void SaveDocumentFile(Document& document, const std::string& path)
{
    // The library's own writer, the alternate streams of the orders included.
    if (!WriteDocumentFile(path, [&document](const std::string& file) { return document.Save(WideFromUtf8(file)); })) {
        throw FileError("cannot write \"" + path + "\"");
    }
}

} // namespace ItUnitechnik::Tool
