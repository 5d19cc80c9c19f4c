#pragma once

#include "framework/field_buffer.h"

#include <istream>
#include <memory>
#include <streambuf>

namespace ItUnitechnik {

class FieldSink;
class FieldTrace;

// The one stream every record reads and writes through. It does not own its
// buffer. The stream always works in the classic number formats, whatever the
// host did to the global locale, and formats doubles with a facet of its own
// so that the digits do not depend on a C runtime.
class Archive final : public std::basic_iostream<wchar_t> {
public:
    explicit Archive(std::basic_streambuf<wchar_t>* buffer);
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;
    ~Archive() override;

    bool spareFlag = false; // set here and never tested by anything
    bool valid = true;      // cleared by a Read that finds a wrong tag

    // The sink the field forms report to (framework/field_sink.h); null, the
    // default, for none. Set it before the first field: from then on the
    // Archive writes through a FieldTrace that hands every character on to
    // the caller's buffer unchanged and counts lines and columns on the way.
    void SetFieldSink(FieldSink* sink);
    // The trace of a sink that is set, else null.
    FieldTrace* Trace() const { return trace_.get(); }

    // The library's own buffer the Archive was made over, whose put area the
    // field forms may fill themselves: while it is still the stream's buffer,
    // the stream is good and keeps the classic formats (no other locale was
    // imbued), and nothing asks for a flush around a field (no tied stream,
    // no `unitbuf`). Null otherwise.
    FieldBuffer* Direct() const
    {
        if (direct_ == nullptr || rdbuf() != direct_ || rdstate() != goodbit || tie() != nullptr ||
            (flags() & unitbuf) != 0) {
            return nullptr;
        }
        return direct_;
    }

private:
    static void ForgetDirect(event happened, std::ios_base& stream, int index);

    std::unique_ptr<FieldTrace> trace_;
    FieldBuffer* direct_ = nullptr;
};

// The test that ends every Read and Write: bad first, then fail, then valid.
bool Healthy(const Archive& ar);

} // namespace ItUnitechnik
