// What the tests of the field forms share: the sinks they write to, and the
// fixture that runs each test on every sink.
#pragma once

#include "framework/archive.h"
#include "framework/field_forms.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <sstream>
#include <streambuf>
#include <string>
#include <vector>

namespace ItUnitechnik::FieldFormsTesting {

// Where the forms write. A plain string buffer takes every field through
// the stream; a put area of the library's own kind takes a field straight in
// when it has room for it, and a put area of one character has room for a
// blank only, so that every longer field goes through the stream after all.
// Each sink gets the same characters.
enum class Sink { stringBuffer, roomyArea, oneCharacterArea };

class AreaBuffer : public FieldBuffer {
public:
    explicit AreaBuffer(std::size_t size) : area_(size) { setp(area_.data(), area_.data() + area_.size()); }

    std::wstring Text()
    {
        Take();
        return text_;
    }

protected:
    int_type overflow(int_type c) override
    {
        Take();
        if (!traits_type::eq_int_type(c, traits_type::eof())) {
            *pptr() = traits_type::to_char_type(c);
            pbump(1);
        }
        return traits_type::not_eof(c);
    }

private:
    void Take()
    {
        text_.append(pbase(), pptr());
        setp(area_.data(), area_.data() + area_.size());
    }

    std::vector<wchar_t> area_;
    std::wstring text_;
};

class SinkArchive {
public:
    explicit SinkArchive(Sink sink)
        : area_(sink == Sink::oneCharacterArea ? 1 : 4096),
          archive(sink == Sink::stringBuffer ? static_cast<std::wstreambuf*>(&string_) : &area_), sink_(sink)
    {
    }

    std::wstring Text() { return sink_ == Sink::stringBuffer ? string_.str() : area_.Text(); }

private:
    std::wstringbuf string_;
    AreaBuffer area_;

public:
    Archive archive;

private:
    Sink sink_;
};

class FieldFormsOn : public ::testing::TestWithParam<Sink> {
protected:
    template <class Form>
    std::wstring Written(const Form& form)
    {
        SinkArchive s(GetParam());
        s.archive << form;
        return s.Text();
    }
};

} // namespace ItUnitechnik::FieldFormsTesting
