#include "svg/plant_conventions.h"

namespace ItUnitechnik::Drawing {

namespace {

template <class Record>
ConventionRow Row(const char* record, const Convention<Record>& convention)
{
    return {record, convention.member, convention.meaning};
}

} // namespace

std::vector<ConventionRow> ConventionRows()
{
    const PlantConventions& p = kPlant;
    return {
        Row("Rodstock", p.barLength),
        Row("Rodstock", p.barDiameter),
        Row("Rodstock", p.barRotation),
        Row("BendingFormSegment", p.segmentLength),
        Row("BendingFormSegment", p.segmentAngle),
        Row("BracedGirder", p.girderLength),
        Row("BracedGirder", p.girderHeight),
        Row("BracedGirder", p.girderType),
        Row("BracedGirder", p.girderRotation),
        Row("Steelmat", p.matLength),
        Row("Steelmat", p.matWidth),
        Row("Steelmat", p.matCornerX),
        Row("Steelmat", p.matCornerY),
        Row("Arc", p.arcStart),
        Row("Arc", p.arcEnd),
        Row("ExternalIron", p.ironCount),
        Row("ExternalIron", p.ironCode),
    };
}

} // namespace ItUnitechnik::Drawing
