#pragma once

#include "framework/collection.h"
#include "framework/serializable.h"
#include "geometry/edge.h"
#include "geometry/point.h"
#include "records/element/concrete_layer.h"
#include "records/element/plaster.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik {

// One precast element, a slab: the record "SLABDATE" ... "END SLABDATE". Its
// own lines come first, closed by "END"; the nested records follow.
class ElementPart : public Serializable, public ItCollectionImpl<std::vector<ConcreteLayer>> {
public:
    ElementPart();
    ElementPart(const ElementPart& other);
    ElementPart& operator=(const ElementPart& other) = default;

    bool Read(Archive& ar) override;
    bool Write(Archive& ar) override;

    std::int16_t version = 502;     // line 2
    std::int16_t elementNumber = 12; // line A below 600
    std::wstring elementNumberText;  // line A from 600
    std::wstring codeA1;             // line A, "0"
    std::wstring codeA2;             // line A, "00"
    std::int16_t valueA1 = 0;        // line A
    std::int32_t valueA2 = 0;        // line A
    std::wstring codeA3;             // line A, "000"
    std::int16_t valueA3 = 0;        // line A, 3 places below 600, 5 from 600
    std::int16_t valueA4 = 0;        // line A
    std::int16_t valueA5 = 0;        // line A
    std::int16_t valueA6 = 0;        // line A, from 501 (and at 5)
    std::int16_t valueA7 = 0;        // line A, from 501 (and at 5)
    std::wstring codeA4;             // line A, "0000", 501 to 599 (and at 5)
    std::wstring textA40;            // line A, from 600
    double elementMeasure = 0;       // line B
    std::wstring codeB1;             // line B, "000"
    std::wstring codeB2;             // line B, "00"
    std::wstring textB8;             // line B, eight blanks
    double realB1 = 0;               // line B
    double layerProductSum = 0;      // line B
    std::int32_t thickness = 0;      // line B
    std::int32_t doubleWallGap = 0;  // line B
    std::wstring codeB3;             // line B
    std::wstring codeB4;             // line B
    std::int32_t valueB1 = 0;        // line B
    std::int32_t valueB2 = 0;        // line B
    std::int32_t secondThickness = 0; // line B, from 501 (and at 5)
    Plaster firstPlaster;            // plaster line, at 502 only
    Plaster secondPlaster;           // plaster line, at 502 only
    std::vector<ConcreteLayer> concreteLayers; // concrete lines, from 502
    std::int32_t extentX = 0;        // line C
    std::int32_t extentY = 0;        // line C
    std::int32_t valueC1 = 0;        // line C
    std::int32_t valueC2 = 0;
    std::int32_t valueC3 = 0;
    std::int32_t valueC4 = 0;
    std::int32_t valueC5 = 0;
    std::int32_t valueC6 = 0;
    std::int32_t valueC7 = 0;
    std::int32_t valueC8 = 0;
    Vector2d elementVector;          // line C
    std::int32_t valueC9 = 0;        // line C
    std::int32_t valueC10 = 0;       // line C
    std::int32_t valueC11 = -1;      // line C below 600, with valueC12; -1 means absent
    std::int32_t valueC12 = -1;
    Edge firstEdge;                  // edge line, up to 502
    Edge secondEdge;
    std::wstring textD8;             // line D
    std::wstring textD4;             // line D
    std::int32_t valueD1 = 0;        // line D
    std::int32_t valueD2 = 0;        // line D
    std::int16_t valueD3 = 0;        // line D
    std::wstring elementText30;      // line D
    Point3d firstPoint;              // line E
    Point3d secondPoint;             // line E
    Point3d thirdPoint;              // line E
    Point3d fourthPoint;             // line F, from 600
    std::int32_t valueF1 = 0;        // line F, from 600
    std::wstring slabInfo1;          // lines G, from 600
    std::wstring slabInfo2;
    std::wstring slabInfo3;
    std::wstring slabInfo4;

private:
    // Versions up to 500 carry the short lines A and B; the single value 5
    // counts as above 500 here.
    bool HasLongLines() const;
};

} // namespace ItUnitechnik
