#pragma once

#include "geometry/arc.h"
#include "records/reinforcement/braced_girder.h"
#include "records/reinforcement/external_iron.h"
#include "records/reinforcement/rodstock.h"
#include "records/reinforcement/steelmat.h"

#include <cstdint>
#include <vector>

// What the plant reads in members that the format only numbers. The records
// carry a bar's sizes as firstSize, secondSize and thirdSize; which of them is
// the length and which the diameter is the plant's convention, not the
// record's. This is the one table of it: the drawing and the bill of
// materials both take every such member from here, and the README shows the
// same rows.
namespace ItUnitechnik::Drawing {

// One member of one record class and what the plant reads in it.
template <class Record>
struct Convention {
    const char* meaning;
    const char* member; // the member's name, as the record tree names it
    std::int32_t Record::*field;

    std::int32_t Of(const Record& record) const { return record.*field; }
};

struct PlantConventions {
    Convention<Rodstock> barLength{"length of a bar, in mm (a bent bar: of all its segments)", "firstSize",
                                   &Rodstock::firstSize};
    Convention<Rodstock> barDiameter{"diameter of a bar, in mm; drawn as its stroke width", "secondSize",
                                     &Rodstock::secondSize};
    Convention<Rodstock> barRotation{"direction of a bar from its position, degrees counter-clockwise from x",
                                     "rotation", &Rodstock::rotation};
    Convention<BendingFormSegment> segmentLength{"length of one segment of a bent bar, in mm", "length",
                                                 &BendingFormSegment::length};
    Convention<BendingFormSegment> segmentAngle{
        "direction of that segment, degrees counter-clockwise from the bar's direction", "angle",
        &BendingFormSegment::angle};
    Convention<BracedGirder> girderLength{"length of a girder, in mm", "lastNumber", &BracedGirder::lastNumber};
    Convention<BracedGirder> girderHeight{"height of a girder, in mm", "firstSize", &BracedGirder::firstSize};
    Convention<BracedGirder> girderType{"type of a girder, grouped by in the bill", "typeNumber",
                                        &BracedGirder::typeNumber};
    Convention<BracedGirder> girderRotation{"direction of a girder from its position, degrees counter-clockwise from x",
                                            "rotation", &BracedGirder::rotation};
    Convention<Steelmat> matLength{"extent of a mat along x from its corner at positionX, positionY", "firstDimension",
                                   &Steelmat::firstDimension};
    Convention<Steelmat> matWidth{"extent of a mat along y", "secondDimension", &Steelmat::secondDimension};
    Convention<Steelmat> matCornerX{"x of a mat's lower left corner", "positionX", &Steelmat::positionX};
    Convention<Steelmat> matCornerY{"y of a mat's lower left corner", "positionY", &Steelmat::positionY};
    Convention<Arc> arcStart{"where an arc of an outline begins, degrees counter-clockwise from x", "startAngle",
                             &Arc::startAngle};
    Convention<Arc> arcEnd{"where it ends; the arc runs counter-clockwise, and an end equal to the start "
                           "gives the whole circle",
                           "endAngle", &Arc::endAngle};
    Convention<ExternalIron> ironCount{"how many pieces an external iron stands for", "ironCount",
                                       &ExternalIron::ironCount};
    Convention<ExternalIron> ironCode{"code of an external iron, grouped by in the bill", "ironCode",
                                      &ExternalIron::ironCode};
};

inline const PlantConventions kPlant{};

// The rows of the table, for the README and the HTML page: record class,
// member, meaning.
struct ConventionRow {
    const char* record;
    const char* member;
    const char* meaning;
};
std::vector<ConventionRow> ConventionRows();

// The drawn width of a braced girder in plan, in mm: no member of the record
// carries it.
inline constexpr double kGirderDrawnWidth = 80.0;

} // namespace ItUnitechnik::Drawing
