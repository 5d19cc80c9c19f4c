#include "reading/loader.h"

#include "framework/read_idioms.h"

namespace ItUnitechnik {

void Loader::LoadElement(ElementPart& element)
{
    element.version = Head("SLABDATE");
    LoadElementLines(element);
    in_.Tag("END");
    LoadElementRecords(element);
    in_.SetRecord("SLABDATE");
    in_.Tag("END SLABDATE");
}

void Loader::LoadElementLines(ElementPart& element)
{
    const std::int16_t version = element.version;
    // The single value 5 counts as above 500 for the long lines A and B.
    const bool longLines = version > 500 || version == 5;

    // Line A.
    if (version < 600) {
        element.elementNumber = in_.UInt<std::int16_t>(3);
    } else {
        element.elementNumberText = Code(15);
        // As the records' Read does: the number follows from its text.
        element.elementNumber = static_cast<std::int16_t>(WideToInt(element.elementNumberText));
    }
    in_.Blank();
    element.codeA1 = Code(1);
    in_.Blank();
    element.codeA2 = Code(2);
    in_.Blank();
    element.valueA1 = in_.UInt<std::int16_t>(2);
    in_.Blank();
    element.valueA2 = in_.UInt<std::int32_t>(2);
    in_.Blank();
    element.codeA3 = Code(3);
    in_.Blank();
    element.valueA3 = in_.UInt<std::int16_t>(version < 600 ? 3 : 5);
    in_.Blank();
    element.valueA4 = in_.UInt<std::int16_t>(3);
    in_.Blank();
    element.valueA5 = in_.UInt<std::int16_t>(3);
    if (longLines) {
        in_.Blank();
        element.valueA6 = in_.UInt<std::int16_t>(2);
        in_.Blank();
        element.valueA7 = in_.UInt<std::int16_t>(2);
        in_.Blank();
        if (version < 600) {
            element.codeA4 = Code(4);
        } else {
            element.textA40 = in_.Text(40);
        }
    }
    in_.EndLine();

    // Line B.
    element.elementMeasure = in_.Real(2, 3);
    in_.Blank();
    element.codeB1 = Code(3);
    in_.Blank();
    element.codeB2 = Code(2);
    in_.Blank();
    element.textB8 = in_.Text(8);
    in_.Blank();
    element.realB1 = in_.Real(1, 3);
    in_.Blank();
    element.layerProductSum = in_.Real(5, 1);
    in_.Blank();
    element.thickness = in_.UInt<std::int32_t>(4);
    in_.Blank();
    element.doubleWallGap = in_.UInt<std::int32_t>(3);
    in_.Blank();
    element.codeB3 = Code(3);
    in_.Blank();
    element.codeB4 = Code(3);
    in_.Blank();
    element.valueB1 = in_.UInt<std::int32_t>(3);
    in_.Blank();
    element.valueB2 = in_.UInt<std::int32_t>(3);
    if (longLines) {
        in_.Blank();
        element.secondThickness = in_.UInt<std::int32_t>(4);
    }
    in_.EndLine();

    if (version == 502) {
        LoadPlaster(element.firstPlaster);
        in_.Blank();
        LoadPlaster(element.secondPlaster);
        in_.EndLine();
    }

    if (version >= 502) {
        const std::size_t count = Count(in_.UInt<std::int64_t>(2));
        in_.EndLine();
        for (std::size_t i = 0; i < count; ++i) {
            element.concreteLayers.emplace_back(version);
            LoadConcreteLayer(element.concreteLayers.back());
            in_.EndLine();
        }
    }

    // Line C.
    element.extentX = in_.UInt<std::int32_t>(5);
    in_.Blank();
    element.extentY = in_.UInt<std::int32_t>(5);
    for (std::int32_t* value : {&element.valueC1, &element.valueC2, &element.valueC3, &element.valueC4}) {
        in_.Blank();
        *value = in_.SInt<std::int32_t>(4);
    }
    in_.Blank();
    element.valueC5 = in_.UInt<std::int32_t>(1);
    in_.Blank();
    element.valueC6 = in_.UInt<std::int32_t>(5);
    in_.Blank();
    element.valueC7 = in_.UInt<std::int32_t>(1);
    in_.Blank();
    element.valueC8 = in_.UInt<std::int32_t>(5);
    in_.Blank();
    element.elementVector.x = in_.UInt<std::int32_t>(6);
    in_.Blank();
    element.elementVector.y = in_.UInt<std::int32_t>(6);
    in_.Blank();
    element.valueC9 = in_.SInt<std::int32_t>(2);
    in_.Blank();
    element.valueC10 = in_.SInt<std::int32_t>(2);
    // The optional pair: written only when neither is -1, so an absent pair
    // reads as -1 and -1 and is left out again.
    element.valueC11 = -1;
    element.valueC12 = -1;
    if (version < 600 && !in_.AtLineEnd()) {
        in_.Blank();
        element.valueC11 = in_.UInt<std::int32_t>(3);
        in_.Blank();
        element.valueC12 = in_.UInt<std::int32_t>(3);
    }
    in_.EndLine();

    if (version < 503) {
        LoadPoint2d(element.firstEdge.first, 0);
        in_.Blank();
        LoadPoint2d(element.firstEdge.second, 0);
        in_.Blank();
        LoadPoint2d(element.secondEdge.first, 0);
        in_.Blank();
        LoadPoint2d(element.secondEdge.second, 0);
        in_.EndLine();
    }

    // Line D.
    element.textD8 = in_.Text(8);
    in_.Blank();
    element.textD4 = in_.Text(4);
    in_.Blank();
    element.valueD1 = in_.UInt<std::int32_t>(4);
    in_.Blank();
    element.valueD2 = in_.UInt<std::int32_t>(4);
    in_.Blank();
    element.valueD3 = in_.UInt<std::int16_t>(2);
    in_.Blank();
    element.elementText30 = in_.Text(30);
    in_.EndLine();

    // Line E: three points, unsigned below 600, signed from 600.
    bool first = true;
    for (Point3d* point : {&element.firstPoint, &element.secondPoint, &element.thirdPoint}) {
        for (std::int32_t* coordinate : {&point->x, &point->y, &point->z}) {
            if (!first) {
                in_.Blank();
            }
            first = false;
            *coordinate = version < 600 ? in_.UInt<std::int32_t>(6) : in_.SInt<std::int32_t>(6);
        }
    }
    in_.EndLine();

    if (version >= 600) {
        // Line F.
        element.fourthPoint.x = in_.SInt<std::int32_t>(5);
        in_.Blank();
        element.fourthPoint.y = in_.SInt<std::int32_t>(5);
        in_.Blank();
        element.fourthPoint.z = in_.SInt<std::int32_t>(5);
        in_.Blank();
        element.valueF1 = in_.UInt<std::int32_t>(3);
        in_.EndLine();
        // Lines G.
        for (std::wstring* text : {&element.slabInfo1, &element.slabInfo2, &element.slabInfo3, &element.slabInfo4}) {
            *text = in_.Text(20);
            in_.EndLine();
        }
    }
}

void Loader::LoadElementRecords(ElementPart& element)
{
    if (in_.NextLineIs("LAYER___")) {
        // Layers stand alone behind "END".
        while (in_.NextLineIs("LAYER___")) {
            element.layers.emplace_back();
            LoadLayer(element.layers.back());
        }
        return;
    }

    LoadContours(element.contourData);
    LoadCutouts(element.cutoutData);
    LoadParts(element.mountingPartData);

    if (element.version >= 600) {
        // Each record stands only when it holds something, in the writer's
        // order: loose bars, girders, the block, the irons.
        const bool loose = in_.NextLineIs("RODSTOCK") || in_.NextLineIs("BRGIRDER");
        if (in_.NextLineIs("RODSTOCK")) {
            LoadRodstocks(element.rodstockData);
        }
        if (in_.NextLineIs("BRGIRDER")) {
            LoadGirders(element.bracedGirderData);
        }
        if (in_.NextLineIs("REFORCEM")) {
            LoadReinforcement(element.reinforcement);
            if (loose || in_.NextLineIs("EXTIRON_")) {
                Note(Departure::reinforcementInWriterOrder);
            }
        }
    } else if (in_.NextLineIs("REFORCEM")) {
        // Below 600 a present block stands alone.
        LoadReinforcement(element.reinforcement);
        return;
    } else {
        LoadRodstocks(element.rodstockData);
        LoadGirders(element.bracedGirderData);
    }
    element.hasExternalIron = in_.NextLineIs("EXTIRON_");
    if (element.hasExternalIron) {
        LoadIrons(element.externalIronData);
    }
}

void Loader::LoadLayer(Layer& layer)
{
    layer.version = Head("LAYER___");
    layer.layerValue1 = in_.UInt<std::int32_t>(1);
    in_.Blank();
    layer.layerValue2 = in_.UInt<std::int32_t>(6);
    in_.Blank();
    layer.layerValue3 = in_.UInt<std::int32_t>(6);
    in_.Blank();
    layer.layerValue4 = in_.UInt<std::int32_t>(6);
    in_.Blank();
    layer.lotCount = in_.UInt<std::int32_t>(2);
    in_.EndLine();
    in_.Tag("END");
    // The lots stand as they are, whatever the count says.
    while (in_.NextLineIs("LOT_____")) {
        layer.lots.emplace_back();
        LoadLot(layer.lots.back());
    }
    LoadParts(layer.mountingPartData);
    LoadReinforcement(layer.reinforcement);
    in_.SetRecord("LAYER___");
    in_.Tag("END LAYER___");
}

void Loader::LoadConcreteLayer(ConcreteLayer& layer)
{
    layer.layerNumber = in_.UInt<std::int32_t>(2);
    in_.Blank();
    layer.layerKind = in_.UInt<std::int16_t>(2);
    in_.Blank();
    layer.layerThickness = in_.UInt<std::int32_t>(3);
    in_.Blank();
    layer.layerName = in_.Text(layer.version < 600 ? 8 : 20);
    in_.Blank();
    layer.firstFactor = in_.Real(1, 3);
    in_.Blank();
    layer.secondFactor = in_.Real(5, 1);
    if (layer.version >= 600) {
        in_.Blank();
        layer.layerText20 = in_.Text(20);
    }
}

void Loader::LoadPlaster(Plaster& plaster)
{
    plaster.plasterNumber = in_.UInt<std::int32_t>(3);
    in_.Blank();
    plaster.plasterName = in_.Text(8);
    in_.Blank();
    plaster.firstValue = in_.Real(1, 3);
    in_.Blank();
    plaster.secondValue = in_.Real(5, 1);
}

} // namespace ItUnitechnik
