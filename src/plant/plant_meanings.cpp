#include "plant/plant_meanings.h"

namespace ItUnitechnik::Plant {

const std::vector<Row>& Rows()
{
    static const std::vector<Row> rows = {
        kBar.count.row,
        kBar.diameter.row,
        kBar.length.row,
        kBar.x.row,
        kBar.y.row,
        kBar.pitch.row,
        kBar.rotation.row,
        kBar.z.row,
        kBar.grade.row,
        kBar.article.row,
        kBar.spacerType.row,
        kBar.spacerStart.row,
        kBar.spacerPitch.row,
        kSegment.length.row,
        kSegment.turn.row,
        kGirder.count.row,
        kGirder.type.row,
        kGirder.length.row,
        kGirder.x.row,
        kGirder.y.row,
        kGirder.spacing.row,
        kGirder.rotation.row,
        kGirder.height.row,
        kGirder.chordDiameter.row,
        kGirder.weight.row,
        kGirder.installationHeight.row,
        kMat.type.row,
        kMat.length.row,
        kMat.width.row,
        kMat.x.row,
        kMat.y.row,
        kMat.z.row,
        kPart.name.row,
        kPart.height.row,
        kPart.installationHeight.row,
        kOpening.area.row,
        kElement.area.row,
        kLayer.kind.row,
        kLayer.thickness.row,
        kLayer.name.row,
        kLayer.unitWeight.row,
        kLayer.volume.row,
        kIron.count.row,
        kIron.weight.row,
        kIron.name.row,
        kIron.code.row,
        kArc.start.row,
        kArc.end.row,
    };
    return rows;
}

} // namespace ItUnitechnik::Plant
