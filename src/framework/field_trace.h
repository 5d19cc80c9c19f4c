#pragma once

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/field_sink.h"

#include <cstddef>
#include <streambuf>
#include <string>
#include <type_traits>

// The field forms on an Archive that has a field sink. Every form applied to
// an Archive goes through the inserter below: without a sink it is the form's
// own inserter and nothing else; with one, the Archive writes through a
// FieldTrace, which counts lines and columns as the characters pass, and the
// inserter tells the sink what the field did. One place for every record: no
// record checks its own fields.
namespace ItUnitechnik {

// What the inserter needs to know of a form to judge what it wrote.
struct FieldFacts {
    enum class Kind { text, number, character, other };
    Kind kind = Kind::other;
    const char* member = nullptr;
    int width = 0;                       // places of the field, a sign place included
    const std::wstring* whole = nullptr; // a text: the value as the record holds it
    std::size_t kept = 0;                // a text: the characters the form kept of it
};

inline FieldFacts FactsOf(const TextForm& form)
{
    FieldFacts facts;
    facts.kind = FieldFacts::Kind::text;
    facts.member = form.member;
    facts.width = form.width;
    facts.whole = form.whole;
    facts.kept = form.value.size();
    return facts;
}

template <class T>
FieldFacts FactsOf(const IntegerForm<T>& form)
{
    FieldFacts facts;
    facts.kind = FieldFacts::Kind::number;
    facts.member = form.member;
    // A signed field has one place more: its sign.
    facts.width = form.kind == IntegerForm<T>::Kind::signedField ? form.width + 1 : form.width;
    return facts;
}

inline FieldFacts FactsOf(const RealForm& form)
{
    FieldFacts facts;
    facts.kind = FieldFacts::Kind::number;
    facts.member = form.member;
    facts.width = form.places + form.decimals + 1;
    return facts;
}

inline FieldFacts FactsOf(const CharForm& form)
{
    FieldFacts facts;
    facts.kind = FieldFacts::Kind::character;
    facts.member = form.member;
    facts.width = 1;
    return facts;
}

template <class T>
struct IsFieldForm : std::false_type {
};
template <>
struct IsFieldForm<TextForm> : std::true_type {
};
template <class T>
struct IsFieldForm<IntegerForm<T>> : std::true_type {
};
template <>
struct IsFieldForm<RealForm> : std::true_type {
};
template <>
struct IsFieldForm<CharForm> : std::true_type {
};
template <>
struct IsFieldForm<LiteralForm> : std::true_type {
};
template <>
struct IsFieldForm<BlankForm> : std::true_type {
};
template <>
struct IsFieldForm<BlanksForm> : std::true_type {
};
template <>
struct IsFieldForm<EndLineForm> : std::true_type {
};
template <>
struct IsFieldForm<TagForm> : std::true_type {
};

// Forms that carry a value; the others (literals, blanks, line ends, tags)
// are only counted.
template <class T>
struct IsValueForm : std::false_type {
};
template <>
struct IsValueForm<TextForm> : std::true_type {
};
template <class T>
struct IsValueForm<IntegerForm<T>> : std::true_type {
};
template <>
struct IsValueForm<RealForm> : std::true_type {
};
template <>
struct IsValueForm<CharForm> : std::true_type {
};

// Forms with a way of their own straight into an Archive's put area.
template <class T>
struct IsDirectForm : std::false_type {
};
template <>
struct IsDirectForm<TextForm> : std::true_type {
};
template <class T>
struct IsDirectForm<IntegerForm<T>> : std::true_type {
};
template <>
struct IsDirectForm<BlankForm> : std::true_type {
};
template <>
struct IsDirectForm<EndLineForm> : std::true_type {
};

// The buffer that an Archive with a field sink writes through. Every
// character goes on to the Archive's own buffer unchanged; on the way the
// trace counts lines and columns and keeps the characters of the field being
// written, and it knows the record being written: the last tag that opened a
// record, and the innermost RecordScope.
class FieldTrace : public std::basic_streambuf<wchar_t> {
public:
    FieldTrace(std::basic_streambuf<wchar_t>* next, FieldSink& sink);
    FieldTrace(const FieldTrace&) = delete;
    FieldTrace& operator=(const FieldTrace&) = delete;
    ~FieldTrace() override;

    std::basic_streambuf<wchar_t>* Next() const { return next_; }

    // Where a field begins: its line and column, and where its characters
    // begin among those kept.
    struct Mark {
        std::size_t line;
        std::size_t column; // characters on the line before the field
        std::size_t kept;
    };
    Mark Begin();
    // The field has been written: tell the sink where it stands and what it
    // did, if anything.
    void End(const Mark& mark, const FieldFacts& facts);

    // A tag that opens a record (not one of the "END" tags).
    void Tag(const char* text);
    // A record's Write begins and ends; the record and tag around it come
    // back at its end.
    void Enter(const void* record, const void*& outerRecord, const char*& outerTag);
    void Leave(const void* record, const void* outerRecord, const char* outerTag);

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const wchar_t* text, std::streamsize count) override;
    int sync() override;

private:
    void Note(const wchar_t* text, std::size_t count);
    void KeepRefused(wchar_t character);
    void Tell(FieldProblem problem, const FieldFacts& facts, std::size_t line, std::size_t column, std::wstring value,
              const std::wstring& written);

    std::basic_streambuf<wchar_t>* next_;
    FieldSink& sink_;
    std::size_t line_ = 1;
    std::size_t column_ = 0;
    std::size_t openFields_ = 0;
    std::wstring kept_;
    const char* tag_ = "";
    const void* record_ = nullptr;
};

// Names the record whose fields follow, for the Archive's field sink: a
// record's Write opens one before its first field. Nothing happens on an
// Archive without a sink.
class RecordScope {
public:
    RecordScope(Archive& ar, const void* record) : trace_(ar.Trace()), record_(record)
    {
        if (trace_ != nullptr) {
            trace_->Enter(record_, outerRecord_, outerTag_);
        }
    }
    ~RecordScope()
    {
        if (trace_ != nullptr) {
            trace_->Leave(record_, outerRecord_, outerTag_);
        }
    }
    RecordScope(const RecordScope&) = delete;
    RecordScope& operator=(const RecordScope&) = delete;

private:
    FieldTrace* trace_;
    const void* record_;
    const void* outerRecord_ = nullptr;
    const char* outerTag_ = "";
};

// Every form applied to an Archive. The result stays the Archive, so that
// the next form of a chain comes here too.
template <class Form, std::enable_if_t<IsFieldForm<Form>::value, int> = 0>
Archive& operator<<(Archive& ar, const Form& form)
{
    std::wostream& os = ar;
    FieldTrace* const trace = ar.Trace();
    if (trace == nullptr) {
        if constexpr (IsDirectForm<Form>::value) {
            PutField(ar, form, ar.Direct());
        } else {
            os << form;
        }
        return ar;
    }
    if constexpr (std::is_same<Form, TagForm>::value) {
        trace->Tag(form.text);
    }
    if constexpr (IsValueForm<Form>::value) {
        const FieldTrace::Mark mark = trace->Begin();
        os << form;
        trace->End(mark, FactsOf(form));
    } else {
        os << form;
    }
    return ar;
}

} // namespace ItUnitechnik
