// The extents of an element: the width and height of the box around its
// contours, kept up to date as contours, openings and bars are added.
#include "records/element/element_part.h"

#include <utility>

namespace ItUnitechnik {

void ElementPart::Changed()
{
    updateExtents();
}

void ElementPart::SetExtents(const BoundingBox& box)
{
    extentX = static_cast<std::int32_t>(static_cast<std::uint32_t>(box.max.x) - static_cast<std::uint32_t>(box.min.x));
    extentY = static_cast<std::int32_t>(static_cast<std::uint32_t>(box.max.y) - static_cast<std::uint32_t>(box.min.y));
}

void ElementPart::recomputeExtents()
{
    contourBox_ = contourData.boundingBox();
    contourBoxCount_ = contourData.contours.size();
    SetExtents(contourBox_);
}

void ElementPart::updateExtents()
{
    if (contourBoxCount_ != contourData.contours.size()) {
        recomputeExtents();
        return;
    }
    SetExtents(contourBox_);
}

void ElementPart::ExpectContour(const Contour& contour)
{
    if (contourBoxCount_ == contourData.contours.size()) {
        contourBox_.widen(contour.boundingBox());
        ++contourBoxCount_;
    }
}

ItCollectionImpl<std::vector<Contour>>::iterator
ElementPart::Insert(ItCollectionImpl<std::vector<Contour>>::iterator position, const Contour& contour)
{
    ExpectContour(contour);
    return ItCollectionImpl<std::vector<Contour>>::Insert(position, contour);
}

void ElementPart::Add(const Contour& contour)
{
    ExpectContour(contour);
    ItCollectionImpl<std::vector<Contour>>::Add(contour);
}

void ElementPart::appendContour(Contour contour)
{
    contour.version = contourData.version;
    contour.contourNumber = NextNumber(contourData.contours);
    ExpectContour(contour);
    contourData.contours.push_back(std::move(contour));
    updateExtents();
}

void ElementPart::appendRodstock(Rodstock rodstock)
{
    rodstockData.appendRodstock(rodstock);
    updateExtents();
}

void ElementPart::appendCutout(Cutout cutout)
{
    cutout.version = cutoutData.version;
    cutout.cutoutNumber = NextNumber(cutoutData.cutouts);
    cutoutData.cutouts.push_back(std::move(cutout));
    updateExtents();
}

} // namespace ItUnitechnik
