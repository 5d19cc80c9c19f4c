#include "framework/archive.h"

#include "framework/field_forms.h"
#include "framework/field_trace.h"
#include "framework/real_format.h"

namespace ItUnitechnik {

Archive::Archive(std::basic_streambuf<wchar_t>* buffer) : std::basic_iostream<wchar_t>(buffer)
{
    imbue(ClassicNumberLocale());
    Fields::KeepPlainDigits(*this);
    direct_ = dynamic_cast<FieldBuffer*>(buffer);
    register_callback(ForgetDirect, 0);
}

void Archive::ForgetDirect(event happened, std::ios_base& stream, int /*index*/)
{
    if (happened == imbue_event) {
        if (auto* const archive = dynamic_cast<Archive*>(&stream)) {
            archive->direct_ = nullptr;
        }
    }
}

Archive::~Archive()
{
    if (rdbuf() != nullptr) {
        flush();
    }
}

void Archive::SetFieldSink(FieldSink* sink)
{
    // Changing the buffer resets the stream's state; the state stays what it
    // was.
    const iostate state = rdstate();
    if (trace_ != nullptr) {
        flush();
        rdbuf(trace_->Next());
        trace_.reset();
    }
    if (sink != nullptr) {
        trace_ = std::make_unique<FieldTrace>(rdbuf(), *sink);
        rdbuf(trace_.get());
    }
    clear(state);
}

bool Healthy(const Archive& ar)
{
    if (ar.bad()) {
        return false;
    }
    if (ar.fail()) {
        return false;
    }
    return ar.valid;
}

} // namespace ItUnitechnik
