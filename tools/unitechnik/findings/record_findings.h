#pragma once

#include "findings/findings.h"
#include "records/order/order.h"
#include "tree/flat_records.h"
#include "tree/written_places.h"

#include <optional>
#include <string>
#include <vector>

// What the records of a document show, wherever they came from (the calls of
// a script or a file read tolerantly): the fields the writer cut or pushed
// (from the field sink) and what the tree itself holds (coordinates below
// zero, elements without a contour). Each names its record and member, so
// that a script's check can find the call behind it and a file's check the
// place in the file.
namespace ItUnitechnik::Tool::Check {

struct RecordFinding {
    Code code = Code::textCut;
    std::string tag;              // the record's tag, or that of the record it stands in
    const void* record = nullptr; // the innermost record of the tree known to hold the member
    std::string member;           // the member from that record ("x" of a point)
    std::string path;             // of the list entry that holds it ("orders[0].elementParts[0]")
    std::string name;             // the member from there ("curve.start.x"); a list's name for a count
    bool list = false;            // the member is a count of a list
    bool writtenAsZero = false;   // a coordinate below zero that the version writes as 0
    // Of the record as a whole (a bar that reaches outside): placed at the
    // record's start and named by its path, not by a member. Its member is
    // one the record is made with, by which a script's check finds the call.
    bool whole = false;
    // A script's key is found by the member's value; not so for a 0, which
    // many keys of a call hold.
    bool keyed = true;
    std::string value;            // the value as the tree shows it (tree/flat_records.h)
    std::wstring text;            // a text's whole value, for a text event
    std::optional<Place> written; // where the field stands in the document written
    std::string message;          // what is wrong, without place
};

// The events of a document written in memory, as findings: a cut that drops
// nothing but blanks is none.
std::vector<RecordFinding> FieldFindings(const WrittenDocument& written, const Tree::RecordIndex& index);

// Points of outlines, openings and mounted parts, and the positions of
// mounted parts, bars and girders, below zero; elements without a contour;
// bar sets without a count, diameter or length, or with their bars on one
// another; bars, girders and mounted parts beyond the element's extents, and
// a mat's bars beyond the mat.
std::vector<RecordFinding> TreeFindings(const std::vector<Order>& orders, const Tree::RecordIndex& index);

// Where a tree finding stands in the document written.
std::optional<Place> PlaceOf(const RecordFinding& finding, const WrittenDocument& written);

} // namespace ItUnitechnik::Tool::Check
