#pragma once

#include <type_traits>

// Every member of every record, under the member's own name, in the order of
// the record class (record_fields.h, with geometry_fields.h and
// reinforcement_fields.h). One table serves every view of the record tree: JSON both
// ways, the differences of two files, the fields shown on a drawing. A visitor
// has these operations, each on a const member when the visitor only reads:
//   Field(name, member)        a number, boolean, text or character
//   Record(name, member)       a nested record, whose Fields follow
//   Records(name, vector, make) a list of records; make() gives a fresh element
//   Points(name, vector)       a list of points, each a record
//   Numbers(name, vector)      a list of integers
//   FixedRecords(name, array)  a row of records of a fixed length
//   Curve(name, geoData)       the curve a piece of outline owns, of its class
namespace ItUnitechnik::Tree {

// Each table serves a visitor that fills the record (R is the record's class)
// and one that only reads it (R is the const class).
template <class R, class Record>
using For = std::enable_if_t<std::is_same_v<std::remove_const_t<R>, Record>>;

// Record as const as R is.
template <class R, class Record>
using Like = std::conditional_t<std::is_const_v<R>, const Record, Record>;

} // namespace ItUnitechnik::Tree
