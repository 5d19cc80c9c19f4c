#pragma once

#include <cstddef>
#include <string>

// What the field forms tell about the fields they write, for whoever asks:
// the writer itself never complains, so a text cut to its field, a number
// wider than its field or a character that a document file cannot hold would
// otherwise only show at the plant. An Archive has no sink unless one is set
// (Archive::SetFieldSink); without one the forms tell nothing and cost
// nothing.
namespace ItUnitechnik {

enum class FieldProblem {
    // A text longer than its field: only its first characters stand there.
    textCut,
    // A number that needs more places than its field: every later column of
    // the line moves.
    numberTooWide,
    // A character above U+00FF: a document file ends before it.
    unwritableCharacter,
};

struct FieldEvent {
    FieldProblem problem;
    const char* tag;      // the record whose lines the field stands on ("" before the first tag)
    const void* record;   // the record object being written: the innermost RecordScope, or null
    const char* member;   // the member as the record names it ("" when the form names none)
    std::size_t line;     // from 1, in the text the Archive writes
    std::size_t column;   // from 1: where the field begins; for a character, where it stands
    int width;            // the places of the field, a number's sign place included
    std::wstring value;   // a text as the record holds it; a number as it is written
    std::wstring written; // the characters the field put on the line
};

class FieldSink {
public:
    // A field that does not stand in the file as the record holds it.
    virtual void Report(const FieldEvent& event) = 0;

    // Where each record begins and ends (behind its last character), and
    // where each named field begins, for a sink that looks things up by
    // place. Nothing by default.
    virtual void RecordStarts(const void* record, std::size_t line, std::size_t column);
    virtual void RecordEnds(const void* record, std::size_t line, std::size_t column);
    virtual void FieldStarts(const void* record, const char* member, std::size_t line, std::size_t column);

protected:
    FieldSink() = default;
    FieldSink(const FieldSink&) = default;
    FieldSink& operator=(const FieldSink&) = default;
    ~FieldSink() = default;
};

} // namespace ItUnitechnik
