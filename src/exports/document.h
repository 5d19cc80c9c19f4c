#pragma once

#include "framework/collection.h"
#include "records/order/order.h"

#include <string>
#include <vector>

namespace ItUnitechnik {

// The document the host fills call by call: its orders, in file order. It is
// no record: nothing reads a file back into it.
class Document : public ItCollectionImpl<std::vector<Order>> {
public:
    Document() : ItCollectionImpl(Locate<&Document::orders>) {}
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    // Unlike every other collection, clearing the document fires no hook.
    void Clear() override;

    // Writes every order to the file at `path`, then one 40-byte alternate
    // stream for each order of version 600 and up that holds a legacy text.
    // False only when the fresh stream is already unhealthy; a file that
    // cannot be created or a failed write is not reported.
    bool Save(const std::wstring& path);

    // The element every export after startOrder works on: the last element
    // of the last order; none when there is no order or it has no element.
    ElementPart* CurrentElement();

    std::vector<Order> orders;

private:
    void WriteOrderStreams(const std::wstring& path);
};

// The one document of the process; the exports work on it.
extern Document theDocument;

// An export's work on the element being built. With no element the export
// does nothing and gives `none`. Nothing thrown reaches the host: the export
// then gives `failed`.
template <class Result, class Work>
Result OnCurrentElement(Result none, Result failed, Work&& work) noexcept
{
    try {
        ElementPart* element = theDocument.CurrentElement();
        return element == nullptr ? none : work(*element);
    } catch (...) {
        return failed;
    }
}

// The same for an export that gives nothing.
template <class Work>
void OnCurrentElement(Work&& work) noexcept
{
    try {
        if (ElementPart* element = theDocument.CurrentElement()) {
            work(*element);
        }
    } catch (...) {
        // Nothing to report: the call ends here.
    }
}

} // namespace ItUnitechnik
