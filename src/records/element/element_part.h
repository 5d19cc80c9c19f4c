#pragma once

#include "framework/collection.h"
#include "framework/laid_out.h"
#include "framework/layout.h"
#include "geometry/edge.h"
#include "geometry/point.h"
#include "records/element/concrete_layer.h"
#include "records/element/layer.h"
#include "records/element/plaster.h"
#include "records/outline/contour.h"
#include "records/outline/cutout.h"
#include "records/outline/mounting_part.h"
#include "records/reinforcement/braced_girder.h"
#include "records/reinforcement/external_iron.h"
#include "records/reinforcement/reinforcement.h"
#include "records/reinforcement/rodstock.h"

#include <cstdint>
#include <istream>
#include <string>
#include <vector>

namespace ItUnitechnik {

// One precast element, a slab: the record "SLABDATE" ... "END SLABDATE". Its
// own lines come first, closed by "END"; the nested records follow.
class ElementPart : public LaidOut<ElementPart>,
                    public ItCollectionImpl<std::vector<ConcreteLayer>>,
                    public ItCollectionImpl<std::vector<Contour>>,
                    public ItCollectionImpl<std::vector<Cutout>>,
                    public ItCollectionImpl<std::vector<MountingPart>>,
                    public ItCollectionImpl<std::vector<Rodstock>>,
                    public ItCollectionImpl<std::vector<BracedGirder>>,
                    public ItCollectionImpl<std::vector<ExternalIron>>,
                    public ItCollectionImpl<std::vector<Layer>> {
public:
    ElementPart();

    bool Read(Archive& ar) override;

    // The collections' operations by element type; Clear is called through
    // the base of the collection meant.
    using ItCollectionImpl<std::vector<ConcreteLayer>>::Insert;
    using ItCollectionImpl<std::vector<Cutout>>::Insert;
    using ItCollectionImpl<std::vector<MountingPart>>::Insert;
    using ItCollectionImpl<std::vector<Rodstock>>::Insert;
    using ItCollectionImpl<std::vector<BracedGirder>>::Insert;
    using ItCollectionImpl<std::vector<ExternalIron>>::Insert;
    using ItCollectionImpl<std::vector<Layer>>::Insert;
    using ItCollectionImpl<std::vector<ConcreteLayer>>::Add;
    using ItCollectionImpl<std::vector<Cutout>>::Add;
    using ItCollectionImpl<std::vector<MountingPart>>::Add;
    using ItCollectionImpl<std::vector<Rodstock>>::Add;
    using ItCollectionImpl<std::vector<BracedGirder>>::Add;
    using ItCollectionImpl<std::vector<ExternalIron>>::Add;
    using ItCollectionImpl<std::vector<Layer>>::Add;
    using ItCollectionImpl<std::vector<ConcreteLayer>>::RemoveRange;
    using ItCollectionImpl<std::vector<Contour>>::RemoveRange;
    using ItCollectionImpl<std::vector<Cutout>>::RemoveRange;
    using ItCollectionImpl<std::vector<MountingPart>>::RemoveRange;
    using ItCollectionImpl<std::vector<Rodstock>>::RemoveRange;
    using ItCollectionImpl<std::vector<BracedGirder>>::RemoveRange;
    using ItCollectionImpl<std::vector<ExternalIron>>::RemoveRange;
    using ItCollectionImpl<std::vector<Layer>>::RemoveRange;
    using ItCollectionImpl<std::vector<ConcreteLayer>>::Remove;
    using ItCollectionImpl<std::vector<Contour>>::Remove;
    using ItCollectionImpl<std::vector<Cutout>>::Remove;
    using ItCollectionImpl<std::vector<MountingPart>>::Remove;
    using ItCollectionImpl<std::vector<Rodstock>>::Remove;
    using ItCollectionImpl<std::vector<BracedGirder>>::Remove;
    using ItCollectionImpl<std::vector<ExternalIron>>::Remove;
    using ItCollectionImpl<std::vector<Layer>>::Remove;

    // A contour added or inserted can only widen the box of the outline:
    // the element widens the box it keeps by the new contour alone.
    ItCollectionImpl<std::vector<Contour>>::iterator Insert(ItCollectionImpl<std::vector<Contour>>::iterator position,
                                                            const Contour& contour) override;
    void Add(const Contour& contour) override;

    // Every change through any of the element's collections keeps its size.
    void Changed() override;
    // The extents become the width and height of the box around the
    // contours, in 32-bit unsigned differences: with no contour the inverted
    // box gives 1 and 1. This goes through every piece of every contour.
    void recomputeExtents();
    // The same extents, from the box of the contours that the element keeps
    // as they are added; only when the number of contours is no longer the
    // one that box was made for (a removal, or a change straight on
    // contourData.contours) does it go through all of them again. A change
    // to the pieces of a contour already in the element, made straight on
    // that contour, is seen by recomputeExtents alone.
    void updateExtents();
    // Numbers the contour behind those there are, gives it the version of
    // contourData, appends it with no hook and recomputes the extents.
    void appendContour(Contour contour);
    // The same for an opening, on cutoutData.
    void appendCutout(Cutout cutout);
    // Hands a loose bar to rodstockData, which numbers it, and recomputes
    // the extents.
    void appendRodstock(Rodstock rodstock);
    // The version of a new element, given to the element and to each record
    // it holds that has a version of its own (the mats' external irons too).
    void setVersion(std::int16_t newVersion);
    // Versions up to 500 carry the short lines A and B; the single value 5
    // counts as above 500 here.
    bool HasLongLines() const;

    std::int16_t version = 502;                // line 2
    std::int16_t elementNumber = 12;           // line A below 600
    std::wstring elementNumberText;            // line A from 600
    std::wstring codeA1;                       // line A, "0"
    std::wstring codeA2;                       // line A, "00"
    std::int16_t valueA1 = 0;                  // line A
    std::int32_t valueA2 = 0;                  // line A
    std::wstring codeA3;                       // line A, "000"
    std::int16_t valueA3 = 0;                  // line A, 3 places below 600, 5 from 600
    std::int16_t valueA4 = 0;                  // line A
    std::int16_t valueA5 = 0;                  // line A
    std::int16_t valueA6 = 0;                  // line A, from 501 (and at 5)
    std::int16_t valueA7 = 0;                  // line A, from 501 (and at 5)
    std::wstring codeA4;                       // line A, "0000", 501 to 599 (and at 5)
    std::wstring textA40;                      // line A, from 600
    double elementMeasure = 0;                 // line B
    std::wstring codeB1;                       // line B, "000"
    std::wstring codeB2;                       // line B, "00"
    std::wstring textB8;                       // line B, eight blanks
    double realB1 = 0;                         // line B
    double layerProductSum = 0;                // line B
    std::int32_t thickness = 0;                // line B
    std::int32_t doubleWallGap = 0;            // line B
    std::wstring codeB3;                       // line B
    std::wstring codeB4;                       // line B
    std::int32_t valueB1 = 0;                  // line B
    std::int32_t valueB2 = 0;                  // line B
    std::int32_t secondThickness = 0;          // line B, from 501 (and at 5)
    Plaster firstPlaster;                      // plaster line, at 502 only
    Plaster secondPlaster;                     // plaster line, at 502 only
    std::vector<ConcreteLayer> concreteLayers; // concrete lines, from 502
    std::int32_t extentX = 0;                  // line C
    std::int32_t extentY = 0;                  // line C
    std::int32_t valueC1 = 0;                  // line C
    std::int32_t valueC2 = 0;
    std::int32_t valueC3 = 0;
    std::int32_t valueC4 = 0;
    std::int32_t valueC5 = 0;
    std::int32_t valueC6 = 0;
    std::int32_t valueC7 = 0;
    std::int32_t valueC8 = 0;
    Vector2d elementVector;     // line C
    std::int32_t valueC9 = 0;   // line C
    std::int32_t valueC10 = 0;  // line C
    std::int32_t valueC11 = -1; // line C below 600, with valueC12; -1 means absent
    std::int32_t valueC12 = -1;
    Edge firstEdge; // edge line, up to 502
    Edge secondEdge;
    std::wstring textD8;        // line D
    std::wstring textD4;        // line D
    std::int32_t valueD1 = 0;   // line D
    std::int32_t valueD2 = 0;   // line D
    std::int16_t valueD3 = 0;   // line D
    std::wstring elementText30; // line D
    Point3d firstPoint;         // line E
    Point3d secondPoint;        // line E
    Point3d thirdPoint;         // line E
    Point3d fourthPoint;        // line F, from 600
    std::int32_t valueF1 = 0;   // line F, from 600
    std::wstring slabInfo1;     // lines G, from 600
    std::wstring slabInfo2;
    std::wstring slabInfo3;
    std::wstring slabInfo4;
    ContourData contourData;           // behind "END"
    CutoutData cutoutData;             // behind the contours
    MountingPartData mountingPartData; // behind the openings
    RodstockData rodstockData;         // loose bars, behind the outline records
    Reinforcement reinforcement;       // the mats
    BracedGirderData bracedGirderData; // loose girders
    ExternalIronData externalIronData; // external irons, last
    bool hasExternalIron = false;      // whether externalIronData is written
    std::vector<Layer> layers;         // when there are any, the only records behind "END"

private:
    // Counts the contour in the kept box before it lands in the vector. If
    // the vector then fails to take it, the counts differ and the next
    // update goes through all contours again.
    void ExpectContour(const Contour& contour);
    void SetExtents(const BoundingBox& box);

    // The box of the first contourBoxCount_ contours; stands for the box of
    // all of them while their number is contourBoxCount_.
    BoundingBox contourBox_;
    std::size_t contourBoxCount_ = 0;

    // Reads a nested record that may be absent from 600 on; false when the
    // element must give up.
    bool ReadOptional(Archive& ar, Serializable& record) const;
    // Whether the next token is "LAYER___"; the stream is left where it was.
    static bool LayerFollows(Archive& ar);
    // Outline and reinforcement records; false when the element must give up.
    bool ReadOutlineAndReinforcement(Archive& ar);
};

} // namespace ItUnitechnik

#include "records/element/element_part_layout.h"
