#pragma once

#include "geometry/arc.h"
#include "records/element/concrete_layer.h"
#include "records/element/element_part.h"
#include "records/outline/cutout.h"
#include "records/outline/mounting_part.h"
#include "records/reinforcement/bending_form_free.h"
#include "records/reinforcement/braced_girder.h"
#include "records/reinforcement/external_iron.h"
#include "records/reinforcement/rodstock.h"
#include "records/reinforcement/steelmat.h"

#include <cstdint>
#include <string>
#include <vector>

// What a precast plant reads in the members that the format only numbers.
// The records carry a bar as firstSize, secondSize, thirdSize and positionZ;
// that a bar record is a set of `count` parallel bars of one diameter and
// length, `pitch` apart, is how plants read the columns and how design hosts
// fill them. This is the one table of it: the drawing, the bill of
// materials, the record tree, the checks and the docs take every such member
// from here, and nowhere else says which member means what.
namespace ItUnitechnik::Plant {

namespace Detail {

template <class T>
struct MemberOf;
template <class Record, class Value>
struct MemberOf<Value Record::*> {
    using RecordType = Record;
    using ValueType = Value;
};

template <auto... Path>
struct Last;
template <auto Only>
struct Last<Only> {
    using Type = typename MemberOf<decltype(Only)>::ValueType;
};
template <auto First, auto Second, auto... Rest>
struct Last<First, Second, Rest...> : Last<Second, Rest...> {
};

// A member reached from its record along a path of members:
// &Rodstock::position, &Point2d::x.
template <auto First, auto... Rest>
struct FieldPath {
    using Record = typename MemberOf<decltype(First)>::RecordType;
    using Value = typename Last<First, Rest...>::Type;

    static Value Get(const Record& record) { return ((record.*First).*....*Rest); }
    static void Set(Record& record, Value value) { ((record.*First).*....*Rest) = value; }
};

} // namespace Detail

// One row of the table: where the member stands and what the plant reads.
struct Row {
    const char* record;  // the record class: "Rodstock"
    const char* member;  // the member, as the record tree names it: "firstSize", "position.x"
    const char* name;    // the plant's name of it: "count"
    const char* meaning; // what it is
    const char* unit;    // "mm", "degrees", "kg", "m²", ...; empty for a count or a name
};

// A row with the member's value in reach, read and written.
template <class Record, class Value>
struct Meaning {
    Row row;
    Value (*get)(const Record&);
    void (*set)(Record&, Value);

    Value operator()(const Record& record) const { return get(record); }
};

template <auto... Path>
constexpr auto Member(const char* record, const char* member, const char* name, const char* meaning, const char* unit)
{
    using Field = Detail::FieldPath<Path...>;
    return Meaning<typename Field::Record, typename Field::Value>{
        {record, member, name, meaning, unit}, &Field::Get, &Field::Set};
}

// A bar record, loose in the element's "RODSTOCK" or one of a mat's bars: a
// set of identical parallel bars. A mesh wire is a set of count 1, pitch 0.
struct BarMeanings {
    Meaning<Rodstock, std::int32_t> count =
        Member<&Rodstock::firstSize>("Rodstock", "firstSize", "count", "number of bars in the set", "");
    Meaning<Rodstock, std::int32_t> diameter =
        Member<&Rodstock::secondSize>("Rodstock", "secondSize", "diameter", "diameter of the bars", "mm");
    Meaning<Rodstock, std::int32_t> length = Member<&Rodstock::thirdSize>(
        "Rodstock", "thirdSize", "length", "length of one bar; of a bent bar, the sum of its segments", "mm");
    Meaning<Rodstock, std::int32_t> x = Member<&Rodstock::position, &Point2d::x>(
        "Rodstock", "position.x", "x", "start of the first bar; in a mat, from the mat's origin", "mm");
    Meaning<Rodstock, std::int32_t> y = Member<&Rodstock::position, &Point2d::y>(
        "Rodstock", "position.y", "y", "start of the first bar; in a mat, from the mat's origin", "mm");
    Meaning<Rodstock, std::int32_t> pitch = Member<&Rodstock::positionZ>(
        "Rodstock", "positionZ", "pitch",
        "distance between neighbouring bars, signed: bar i starts at the start + i x pitch x (-sin a, cos a)", "mm");
    Meaning<Rodstock, std::int32_t> rotation = Member<&Rodstock::rotation>(
        "Rodstock", "rotation", "rotation", "direction a of the bars, counter-clockwise from +x", "degrees");
    Meaning<Rodstock, std::int32_t> z =
        Member<&Rodstock::auxSixth>("Rodstock", "auxSixth", "z", "height of the bars above the pallet", "mm");
    Meaning<Rodstock, std::wstring> grade =
        Member<&Rodstock::designation>("Rodstock", "designation", "grade", "steel grade (\"500\" for B500)", "");
    Meaning<Rodstock, std::wstring> article =
        Member<&Rodstock::extraDesignation>("Rodstock", "extraDesignation", "article", "article number", "");
    Meaning<Rodstock, std::int32_t> spacerType =
        Member<&Rodstock::auxFirst>("Rodstock", "auxFirst", "spacer_type", "spacer type", "");
    Meaning<Rodstock, std::int32_t> spacerStart =
        Member<&Rodstock::auxFourth>("Rodstock", "auxFourth", "spacer_start", "where the first spacer stands", "mm");
    Meaning<Rodstock, std::int32_t> spacerPitch =
        Member<&Rodstock::auxFifth>("Rodstock", "auxFifth", "spacer_pitch", "distance between spacers", "mm");
};

// One segment of a bar bent by a free form (bending kind '2').
struct SegmentMeanings {
    Meaning<BendingFormSegment, std::int32_t> length = Member<&BendingFormSegment::length>(
        "BendingFormSegment", "length", "length", "length of this leg of the bent bar", "mm");
    Meaning<BendingFormSegment, std::int32_t> turn = Member<&BendingFormSegment::angle>(
        "BendingFormSegment", "angle", "turn",
        "signed turn from this leg to the next in the vertical plane through the bar's direction (0 on the last "
        "leg); in plan a leg shows its length x cos(the turns of the legs before it)",
        "degrees");
};

// A braced girder record, made by addSet of kind 5 from g0 ... g9: a group
// of identical parallel girders.
struct GirderMeanings {
    Meaning<BracedGirder, std::int32_t> count = Member<&BracedGirder::typeNumber>(
        "BracedGirder", "typeNumber", "count", "number of girders in the group (g0)", "");
    Meaning<BracedGirder, std::wstring> type =
        Member<&BracedGirder::designation>("BracedGirder", "designation", "type", "girder type", "");
    Meaning<BracedGirder, std::int32_t> length =
        Member<&BracedGirder::firstSize>("BracedGirder", "firstSize", "length", "length of one girder (g1)", "mm");
    Meaning<BracedGirder, std::int32_t> x = Member<&BracedGirder::position, &Point2d::x>(
        "BracedGirder", "position.x", "x", "start of the first girder's axis (g2)", "mm");
    Meaning<BracedGirder, std::int32_t> y = Member<&BracedGirder::position, &Point2d::y>(
        "BracedGirder", "position.y", "y", "start of the first girder's axis (g3)", "mm");
    Meaning<BracedGirder, std::int32_t> spacing = Member<&BracedGirder::positionZ>(
        "BracedGirder", "positionZ", "spacing",
        "distance between the girders of the group, signed, along (-sin a, cos a) as for bars (g4)", "mm");
    Meaning<BracedGirder, std::int32_t> rotation =
        Member<&BracedGirder::rotation>("BracedGirder", "rotation", "rotation",
                                        "direction a of the girders, counter-clockwise from +x (g5)", "degrees");
    Meaning<BracedGirder, std::int32_t> height =
        Member<&BracedGirder::auxNumber>("BracedGirder", "auxNumber", "height", "height of the girder (g6)", "mm");
    Meaning<BracedGirder, std::int32_t> chordDiameter = Member<&BracedGirder::shortNumber>(
        "BracedGirder", "shortNumber", "chord_diameter", "diameter of the upper chord (g7)", "mm");
    Meaning<BracedGirder, double> weight = Member<&BracedGirder::scaledValue>(
        "BracedGirder", "scaledValue", "weight", "weight of one girder, as the file carries it (g8 / 1000)", "kg");
    Meaning<BracedGirder, std::int32_t> installationHeight = Member<&BracedGirder::lastNumber>(
        "BracedGirder", "lastNumber", "installation_height", "height of the girder above the pallet (g9)", "mm");
};

// A mat: its bars and girders stand relative to its origin.
struct MatMeanings {
    Meaning<Steelmat, std::wstring> type = Member<&Steelmat::name>("Steelmat", "name", "type", "mat type", "");
    Meaning<Steelmat, std::int32_t> length =
        Member<&Steelmat::firstDimension>("Steelmat", "firstDimension", "length", "length of the mat, along x", "mm");
    Meaning<Steelmat, std::int32_t> width =
        Member<&Steelmat::secondDimension>("Steelmat", "secondDimension", "width", "width of the mat, along y", "mm");
    Meaning<Steelmat, std::int32_t> x =
        Member<&Steelmat::positionX>("Steelmat", "positionX", "x", "the mat's origin, its lower left corner", "mm");
    Meaning<Steelmat, std::int32_t> y =
        Member<&Steelmat::positionY>("Steelmat", "positionY", "y", "the mat's origin, its lower left corner", "mm");
    Meaning<Steelmat, std::int32_t> z =
        Member<&Steelmat::positionZ>("Steelmat", "positionZ", "z", "height of the mat's origin above the pallet", "mm");
};

// A mounted part, made by addSet of kind 3: its two values, then its
// footprint's edges.
struct PartMeanings {
    Meaning<MountingPart, std::wstring> name =
        Member<&MountingPart::partName>("MountingPart", "partName", "name", "the part's name", "");
    Meaning<MountingPart, std::int32_t> height = Member<&MountingPart::setValue1>(
        "MountingPart", "setValue1", "height", "height (thickness) of the part: addSet's first value", "mm");
    Meaning<MountingPart, std::int32_t> installationHeight = Member<&MountingPart::setValue2>(
        "MountingPart", "setValue2", "installation_height", "height above the pallet: addSet's second value", "mm");
};

struct OpeningMeanings {
    Meaning<Cutout, double> area =
        Member<&Cutout::cutoutValue>("Cutout", "cutoutValue", "area", "area of the opening", "m²");
};

struct ElementMeanings {
    Meaning<ElementPart, double> area =
        Member<&ElementPart::elementMeasure>("ElementPart", "elementMeasure", "area", "area of the element", "m²");
};

// A concrete layer: unit weight times net volume is its mass.
struct LayerMeanings {
    Meaning<ConcreteLayer, std::int16_t> kind =
        Member<&ConcreteLayer::layerKind>("ConcreteLayer", "layerKind", "kind", "0 concrete, 2 insulation", "");
    Meaning<ConcreteLayer, std::int32_t> thickness = Member<&ConcreteLayer::layerThickness>(
        "ConcreteLayer", "layerThickness", "thickness", "thickness of the layer (addLayer takes it in metres)", "mm");
    Meaning<ConcreteLayer, std::wstring> name =
        Member<&ConcreteLayer::layerName>("ConcreteLayer", "layerName", "name", "the layer's material", "");
    Meaning<ConcreteLayer, double> unitWeight =
        Member<&ConcreteLayer::firstFactor>("ConcreteLayer", "firstFactor", "unit_weight", "unit weight", "kg/dm³");
    Meaning<ConcreteLayer, double> volume =
        Member<&ConcreteLayer::secondFactor>("ConcreteLayer", "secondFactor", "volume", "net volume", "dm³");
};

// An external iron: counted and weighed, with no place on the drawing.
struct IronMeanings {
    Meaning<ExternalIron, std::int32_t> count =
        Member<&ExternalIron::ironCount>("ExternalIron", "ironCount", "count", "number of pieces", "");
    Meaning<ExternalIron, double> weight =
        Member<&ExternalIron::ironValue>("ExternalIron", "ironValue", "weight", "weight of the pieces together", "kg");
    Meaning<ExternalIron, std::wstring> name =
        Member<&ExternalIron::ironText>("ExternalIron", "ironText", "name", "the item's name", "");
    Meaning<ExternalIron, std::int32_t> code =
        Member<&ExternalIron::ironCode>("ExternalIron", "ironCode", "code", "the item's code", "");
};

// An arc of an outline.
struct ArcMeanings {
    Meaning<Arc, std::int32_t> start = Member<&Arc::startAngle>(
        "Arc", "startAngle", "start", "where the arc begins, counter-clockwise from +x", "degrees");
    Meaning<Arc, std::int32_t> end = Member<&Arc::endAngle>(
        "Arc", "endAngle", "end",
        "where it ends; the arc runs counter-clockwise, and an end equal to the start gives the whole circle",
        "degrees");
};

inline const BarMeanings kBar{};
inline const SegmentMeanings kSegment{};
inline const GirderMeanings kGirder{};
inline const MatMeanings kMat{};
inline const PartMeanings kPart{};
inline const OpeningMeanings kOpening{};
inline const ElementMeanings kElement{};
inline const LayerMeanings kLayer{};
inline const IronMeanings kIron{};
inline const ArcMeanings kArc{};

// Every row, record by record in the order above: for the docs, the page,
// and hosts that fill records by the plant's names.
const std::vector<Row>& Rows();

// The weight of steel bars: 7850 kg/m³, so d² x 0.0061654 kg per metre for a
// diameter d in mm.
inline constexpr double kSteelKgPerMetrePerMm2 = 0.0061654;

} // namespace ItUnitechnik::Plant
