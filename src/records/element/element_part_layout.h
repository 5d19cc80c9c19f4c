#pragma once

// The element's lines, line by line as the file has them, and the records
// nested in it. Included by element_part.h behind the class.
namespace ItUnitechnik {

// Line A. From 600 the number is a left-aligned text, and the left adjustment
// it leaves puts the zeros of the next two codes behind them.
template <class IO>
void LayoutLineA(IO& io, ElementPart& element)
{
    if (element.version < 600) {
        io.UInt(3, element.elementNumber, "elementNumber");
    } else {
        io.Text(15, element.elementNumberText, "elementNumberText", Token);
    }
    io.Blank();
    io.ZText(1, element.codeA1, "codeA1", Token);
    io.Blank();
    io.ZText(2, element.codeA2, "codeA2", Token);
    io.Blank();
    io.UInt(2, element.valueA1, "valueA1");
    io.Blank();
    io.UInt(2, element.valueA2, "valueA2");
    io.Blank();
    io.ZText(3, element.codeA3, "codeA3", Token);
    io.Blank();
    io.UInt(element.version < 600 ? 3 : 5, element.valueA3, "valueA3");
    io.Blank();
    io.UInt(3, element.valueA4, "valueA4");
    io.Blank();
    io.UInt(3, element.valueA5, "valueA5");
    if (element.HasLongLines()) {
        io.Blank();
        io.UInt(2, element.valueA6, "valueA6");
        io.Blank();
        io.UInt(2, element.valueA7, "valueA7");
        io.Blank();
        if (element.version < 600) {
            io.ZText(4, element.codeA4, "codeA4", Token);
        } else {
            io.RText(40, element.textA40, "textA40");
        }
    }
    io.EndLine();
}

template <class IO>
void LayoutLineB(IO& io, ElementPart& element)
{
    io.Real(2, 3, element.elementMeasure, "elementMeasure");
    io.Blank();
    io.ZText(3, element.codeB1, "codeB1", Token);
    io.Blank();
    io.ZText(2, element.codeB2, "codeB2", Token);
    io.Blank();
    io.RText(8, element.textB8, "textB8");
    io.Blank();
    io.Real(1, 3, element.realB1, "realB1");
    io.Blank();
    io.Real(5, 1, element.layerProductSum, "layerProductSum");
    io.Blank();
    io.UInt(4, element.thickness, "thickness");
    io.Blank();
    io.UInt(3, element.doubleWallGap, "doubleWallGap");
    io.Blank();
    io.ZText(3, element.codeB3, "codeB3", Token);
    io.Blank();
    io.ZText(3, element.codeB4, "codeB4", Token);
    io.Blank();
    io.UInt(3, element.valueB1, "valueB1");
    io.Blank();
    io.UInt(3, element.valueB2, "valueB2");
    if (element.HasLongLines()) {
        io.Blank();
        io.UInt(4, element.secondThickness, "secondThickness");
    }
    io.EndLine();
}

// The plasters (502 only) and the concrete layers (from 502).
template <class IO>
void LayoutLayers(IO& io, ElementPart& element)
{
    if (element.version == 502) {
        io.Record(element.firstPlaster);
        io.Blank();
        io.Record(element.secondPlaster);
        io.EndLine();
    }
    if (element.version >= 502) {
        const std::size_t count = io.Count(2, element.concreteLayers, "concreteLayers");
        io.EndLine();
        io.Lines(count, element.concreteLayers, [&element] { return ConcreteLayer(element.version); });
    }
}

template <class IO>
void LayoutLineC(IO& io, ElementPart& element)
{
    io.UInt(5, element.extentX, "extentX");
    io.Blank();
    io.UInt(5, element.extentY, "extentY");
    io.Blank();
    io.SInt(4, element.valueC1, "valueC1");
    io.Blank();
    io.SInt(4, element.valueC2, "valueC2");
    io.Blank();
    io.SInt(4, element.valueC3, "valueC3");
    io.Blank();
    io.SInt(4, element.valueC4, "valueC4");
    io.Blank();
    io.UInt(1, element.valueC5, "valueC5");
    io.Blank();
    io.UInt(5, element.valueC6, "valueC6");
    io.Blank();
    io.UInt(1, element.valueC7, "valueC7");
    io.Blank();
    io.UInt(5, element.valueC8, "valueC8");
    io.Blank();
    io.Record(element.elementVector);
    io.Blank();
    io.SInt(2, element.valueC9, "valueC9");
    io.Blank();
    io.SInt(2, element.valueC10, "valueC10");
    // The optional pair: written only when neither is -1, so an absent pair
    // reads as -1 and -1 and is left out again.
    if (element.version < 600 && io.LineGoesOn(element.valueC11 != -1 && element.valueC12 != -1)) {
        io.Blank();
        io.UInt(3, element.valueC11, "valueC11");
        io.Blank();
        io.UInt(3, element.valueC12, "valueC12");
    }
    io.EndLine();
    // The edges, below 503.
    if (element.version < 503) {
        io.Record(element.firstEdge);
        io.Blank();
        io.Record(element.secondEdge);
        io.EndLine();
    }
}

template <class IO>
void LayoutLineD(IO& io, ElementPart& element)
{
    io.RText(8, element.textD8, "textD8");
    io.Blank();
    io.RText(4, element.textD4, "textD4");
    io.Blank();
    io.UInt(4, element.valueD1, "valueD1");
    io.Blank();
    io.UInt(4, element.valueD2, "valueD2");
    io.Blank();
    io.UInt(2, element.valueD3, "valueD3");
    io.Blank();
    io.RText(30, element.elementText30, "elementText30");
    io.EndLine();
}

// Line E: three points, unsigned below 600, signed from 600.
template <class IO>
void LayoutLineE(IO& io, ElementPart& element)
{
    if (element.version < 600) {
        io.Record(element.firstPoint);
        io.Blank();
        io.Record(element.secondPoint);
        io.Blank();
        io.Record(element.thirdPoint);
    } else {
        io.SInt(6, element.firstPoint.x, "firstPoint.x");
        io.Blank();
        io.SInt(6, element.firstPoint.y, "firstPoint.y");
        io.Blank();
        io.SInt(6, element.firstPoint.z, "firstPoint.z");
        io.Blank();
        io.SInt(6, element.secondPoint.x, "secondPoint.x");
        io.Blank();
        io.SInt(6, element.secondPoint.y, "secondPoint.y");
        io.Blank();
        io.SInt(6, element.secondPoint.z, "secondPoint.z");
        io.Blank();
        io.SInt(6, element.thirdPoint.x, "thirdPoint.x");
        io.Blank();
        io.SInt(6, element.thirdPoint.y, "thirdPoint.y");
        io.Blank();
        io.SInt(6, element.thirdPoint.z, "thirdPoint.z");
    }
    io.EndLine();
}

// Line F and the four lines G, from 600.
template <class IO>
void LayoutLinesFG(IO& io, ElementPart& element)
{
    io.SInt(5, element.fourthPoint.x, "fourthPoint.x");
    io.Blank();
    io.SInt(5, element.fourthPoint.y, "fourthPoint.y");
    io.Blank();
    io.SInt(5, element.fourthPoint.z, "fourthPoint.z");
    io.Blank();
    io.UInt(3, element.valueF1, "valueF1");
    io.EndLine();
    io.RText(20, element.slabInfo1, "slabInfo1");
    io.EndLine();
    io.RText(20, element.slabInfo2, "slabInfo2");
    io.EndLine();
    io.RText(20, element.slabInfo3, "slabInfo3");
    io.EndLine();
    io.RText(20, element.slabInfo4, "slabInfo4");
    io.EndLine();
}

// The records behind the element's "END". Layers stand alone: none of the
// element's own outline or reinforcement records is written with them.
template <class IO>
void LayoutNestedRecords(IO& io, ElementPart& element)
{
    if (io.Present(!element.layers.empty(), "LAYER___")) {
        io.Tagged("LAYER___", element.layers);
        return;
    }
    io.Record(element.contourData);
    io.Record(element.cutoutData);
    io.Record(element.mountingPartData);

    // The reinforcement. From 600 each record stands only when it holds
    // something; below 600 a present block stands alone.
    if (element.version >= 600) {
        if (io.Present(!element.rodstockData.bars.empty(), "RODSTOCK")) {
            io.Record(element.rodstockData);
        }
        if (io.Present(!element.bracedGirderData.girders.empty(), "BRGIRDER")) {
            io.Record(element.bracedGirderData);
        }
        if (io.Present(element.reinforcement.present, "REFORCEM")) {
            io.Record(element.reinforcement);
        }
    } else if (io.Present(element.reinforcement.present, "REFORCEM")) {
        io.Record(element.reinforcement);
        return;
    } else {
        io.Record(element.rodstockData);
        io.Record(element.bracedGirderData);
    }
    if (io.Present(element.hasExternalIron, "EXTIRON_")) {
        io.Record(element.externalIronData);
    }
}

template <class IO>
void Layout(IO& io, ElementPart& element)
{
    io.Tag("SLABDATE");
    io.UInt(3, element.version, "version");
    io.EndLine();
    LayoutLineA(io, element);
    LayoutLineB(io, element);
    LayoutLayers(io, element);
    LayoutLineC(io, element);
    LayoutLineD(io, element);
    LayoutLineE(io, element);
    if (element.version >= 600) {
        LayoutLinesFG(io, element);
    }
    io.Tag("END");
    LayoutNestedRecords(io, element);
    io.Tag("END SLABDATE");
}

} // namespace ItUnitechnik
