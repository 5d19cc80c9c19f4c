#include "exports/document.h"

#include "framework/archive.h"
#include "framework/document_file_buffer.h"
#include "platform/platform.h"

#include <cstring>
#include <sstream>

namespace ItUnitechnik {

Document theDocument;

void Document::Clear()
{
    orders.clear();
}

ElementPart* Document::CurrentElement()
{
    if (orders.empty() || orders.back().elementParts.empty()) {
        return nullptr;
    }
    return &orders.back().elementParts.back();
}

bool Document::Save(const std::wstring& path)
{
    bool result = false;
    {
        DocumentFileBuffer buffer(path);
        {
            Archive ar(&buffer);
            if (Healthy(ar)) {
                for (Order& order : orders) {
                    order.Write(ar);
                }
                result = true;
            }
        }
        buffer.Close();
    }
    WriteOrderStreams(path);
    return result;
}

void Document::WriteOrderStreams(const std::wstring& path)
{
    constexpr std::size_t blockSize = 40;
    for (std::size_t n = 0; n < orders.size(); ++n) {
        const Order& order = orders[n];
        if (order.version < 600) {
            continue;
        }
        const std::string text = Platform::ToUtf8(order.legacyText40);
        if (text.find_first_not_of(' ') == std::string::npos) {
            continue;
        }
        std::ostringstream name;
        name << Platform::ToUtf8(path) << ":order" << n;

        // Forty blanks and a terminator; the text goes in with its own
        // terminator, so a text of exactly forty bytes has none in the block.
        // A longer text does not fit: that order's stream is passed over, as
        // one that cannot be opened is, and the host goes on.
        if (text.size() > blockSize) {
            continue;
        }
        char area[blockSize + 1];
        std::memset(area, ' ', blockSize);
        area[blockSize] = '\0';
        std::memcpy(area, text.c_str(), text.size() + 1);
        Platform::WriteAlternateStream(name.str(), area, blockSize);
    }
}

} // namespace ItUnitechnik
