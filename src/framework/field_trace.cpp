#include "framework/field_trace.h"

#include <cstring>
#include <utility>

namespace ItUnitechnik {

void FieldSink::RecordStarts(const void*, std::size_t, std::size_t) {}

void FieldSink::RecordEnds(const void*, std::size_t, std::size_t) {}

void FieldSink::FieldStarts(const void*, const char*, std::size_t, std::size_t) {}

FieldTrace::FieldTrace(std::basic_streambuf<wchar_t>* next, FieldSink& sink) : next_(next), sink_(sink) {}

FieldTrace::~FieldTrace() = default;

FieldTrace::Mark FieldTrace::Begin()
{
    ++openFields_;
    return Mark{line_, column_, kept_.size()};
}

void FieldTrace::End(const Mark& mark, const FieldFacts& facts)
{
    const std::wstring written = kept_.substr(mark.kept);
    if (openFields_ > 0 && --openFields_ == 0) {
        kept_.clear();
    }
    if (facts.member != nullptr) {
        sink_.FieldStarts(record_, facts.member, mark.line, mark.column + 1);
    }

    if (facts.kind == FieldFacts::Kind::text && facts.whole != nullptr && facts.whole->size() > facts.kept) {
        Tell(FieldProblem::textCut, facts, mark.line, mark.column + 1, *facts.whole, written);
    }
    if (facts.kind == FieldFacts::Kind::number && written.size() > static_cast<std::size_t>(facts.width)) {
        Tell(FieldProblem::numberTooWide, facts, mark.line, mark.column + 1, written, written);
    }
    if (facts.kind == FieldFacts::Kind::text || facts.kind == FieldFacts::Kind::character) {
        // The place of the first character a file cannot hold; a line feed
        // inside a text starts a new line of the file.
        std::size_t line = mark.line;
        std::size_t column = mark.column + 1;
        for (const wchar_t c : written) {
            if (static_cast<unsigned long>(c) > 0xFF) {
                Tell(FieldProblem::unwritableCharacter, facts, line, column,
                     facts.whole != nullptr ? *facts.whole : written, written);
                break;
            }
            if (c == L'\n') {
                ++line;
                column = 1;
            } else {
                ++column;
            }
        }
    }
}

void FieldTrace::Tell(FieldProblem problem, const FieldFacts& facts, std::size_t line, std::size_t column,
                      std::wstring value, const std::wstring& written)
{
    FieldEvent event{problem, tag_,   record_,     facts.member != nullptr ? facts.member : "",
                     line,    column, facts.width, std::move(value),
                     written};
    sink_.Report(event);
}

void FieldTrace::Tag(const char* text)
{
    if (std::strncmp(text, "END", 3) != 0) {
        tag_ = text;
    }
}

void FieldTrace::Enter(const void* record, const void*& outerRecord, const char*& outerTag)
{
    outerRecord = record_;
    outerTag = tag_;
    record_ = record;
    sink_.RecordStarts(record, line_, column_ + 1);
}

void FieldTrace::Leave(const void* record, const void* outerRecord, const char* outerTag)
{
    sink_.RecordEnds(record, line_, column_ + 1);
    record_ = outerRecord;
    tag_ = outerTag;
}

void FieldTrace::Note(const wchar_t* text, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (text[i] == L'\n') {
            ++line_;
            column_ = 0;
        } else {
            ++column_;
        }
    }
    if (openFields_ > 0) {
        kept_.append(text, count);
    }
}

// A character the buffer below refused (a document file refuses the first
// one above U+00FF) still belongs to the field that tried to write it.
void FieldTrace::KeepRefused(wchar_t character)
{
    if (openFields_ > 0) {
        kept_.push_back(character);
    }
}

FieldTrace::int_type FieldTrace::overflow(int_type c)
{
    if (traits_type::eq_int_type(c, traits_type::eof())) {
        return traits_type::not_eof(c);
    }
    const wchar_t character = traits_type::to_char_type(c);
    if (next_ == nullptr || traits_type::eq_int_type(next_->sputc(character), traits_type::eof())) {
        KeepRefused(character);
        return traits_type::eof();
    }
    Note(&character, 1);
    return c;
}

std::streamsize FieldTrace::xsputn(const wchar_t* text, std::streamsize count)
{
    if (count <= 0) {
        return 0;
    }
    const std::streamsize taken = next_ == nullptr ? 0 : next_->sputn(text, count);
    if (taken > 0) {
        Note(text, static_cast<std::size_t>(taken));
    }
    if (taken < count) {
        KeepRefused(text[taken]);
    }
    return taken;
}

int FieldTrace::sync()
{
    return next_ == nullptr ? 0 : next_->pubsync();
}

} // namespace ItUnitechnik
