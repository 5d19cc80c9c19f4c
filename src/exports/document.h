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
    Document() : ItCollectionImpl([](auto& self) -> auto& { return static_cast<Document&>(self).orders; }) {}
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

} // namespace ItUnitechnik
