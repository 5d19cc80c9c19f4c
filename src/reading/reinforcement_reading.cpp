#include "reading/loader.h"

namespace ItUnitechnik {

void Loader::LoadReinforcement(Reinforcement& block)
{
    block.version = Head("REFORCEM");
    block.firstText = in_.Text(10);
    in_.Blank();
    block.secondText = in_.Text(4);
    in_.Blank();
    block.thirdText = in_.Text(8);
    in_.Blank();
    block.matFlag = in_.UInt<std::int16_t>(1);
    in_.EndLine();
    in_.Tag("END");
    while (in_.NextLineIs("STEELMAT")) {
        block.mats.emplace_back();
        LoadSteelmat(block.mats.back());
        in_.EndLine();
    }
    block.hasExternalIrons = in_.NextLineIs("EXTIRON_");
    if (block.hasExternalIrons) {
        LoadIrons(block.externalIrons);
    } else {
        Note(Departure::blockWithoutIrons);
    }
    in_.SetRecord("REFORCEM");
    in_.Tag("END REFORCEM");
    block.present = true;
}

void Loader::LoadSteelmat(Steelmat& mat)
{
    mat.version = Head("STEELMAT");
    mat.number = in_.UInt<std::int16_t>(2);
    in_.Blank();
    mat.positionX = in_.SInt<std::int32_t>(5);
    in_.Blank();
    mat.positionY = in_.SInt<std::int32_t>(5);
    in_.Blank();
    mat.positionZ = in_.SInt<std::int32_t>(5);
    in_.Blank();
    mat.firstFlag = in_.Digit();
    in_.Blank();
    mat.secondFlag = in_.Digit();
    in_.Blank();
    mat.name = in_.Text(20);
    in_.Blank();
    mat.firstDimension = in_.UInt<std::int32_t>(5);
    in_.Blank();
    mat.secondDimension = in_.UInt<std::int32_t>(5);
    in_.Blank();
    // Its low 16 bits were written; they are what the mat writes again.
    mat.matKind = in_.UInt<std::int16_t>(1);
    in_.EndLine();
    if (mat.version >= 600) {
        mat.extraTextA = in_.Text(20);
        in_.EndLine();
        mat.extraTextB = in_.Text(20);
        in_.EndLine();
    }
    in_.Tag("END");
    LoadRodstocks(mat.rodstocks);
    LoadGirders(mat.girders);
    // The block ends this line.
    in_.SetRecord("STEELMAT");
    in_.Literal("END STEELMAT");
}

void Loader::LoadRodstocks(RodstockData& data)
{
    data.version = List(
        "RODSTOCK", [](std::int16_t) { return 3; }, data.bars, [](std::int16_t version) { return Rodstock(version); },
        [this](Rodstock& bar) { LoadRodstock(bar); });
}

void Loader::LoadRodstock(Rodstock& bar)
{
    bar.number = in_.UInt<std::int32_t>(3);
    in_.Blank();
    bar.code = Code(3);
    in_.Blank();
    bar.rodKind = in_.UInt<std::int32_t>(1);
    in_.Blank();
    bar.designation = in_.Text(bar.version >= 600 ? 10 : 3);
    in_.Blank();
    bar.firstSize = in_.UInt<std::int32_t>(5);
    in_.Blank();
    bar.secondSize = in_.UInt<std::int32_t>(3);
    in_.Blank();
    bar.thirdSize = in_.UInt<std::int32_t>(5);
    in_.Blank();
    bar.position.x = in_.SInt<std::int32_t>(5);
    in_.Blank();
    bar.position.y = in_.SInt<std::int32_t>(5);
    in_.Blank();
    bar.positionZ = in_.SInt<std::int32_t>(5);
    in_.Blank();
    bar.rotation = in_.SInt<std::int32_t>(3);
    in_.Blank();
    bar.extraDesignation = in_.Text(10);
    in_.Blank();
    bar.mountFlag = in_.Digit();
    in_.EndLine();

    for (std::int32_t* value : {&bar.auxFirst, &bar.auxSecond, &bar.auxThird}) {
        *value = in_.UInt<std::int32_t>(3);
        in_.Blank();
    }
    for (std::int32_t* value : {&bar.auxFourth, &bar.auxFifth, &bar.auxSixth}) {
        *value = in_.UInt<std::int32_t>(5);
        in_.Blank();
    }
    bar.hasWeldingPoints = in_.Digit();
    bar.hasSpacers = in_.Digit();
    bar.bendingKind = in_.Char();

    if (bar.bendingKind == L'1') {
        in_.EndLine();
        LoadBendingForm(bar.firstForm);
        in_.Blank();
        LoadBendingForm(bar.secondForm);
        in_.Blank();
        bar.formAngle = in_.SInt<std::int32_t>(3);
    } else if (bar.bendingKind == L'2') {
        in_.EndLine();
        LoadFreeForm(bar.freeForm);
    }
    if (bar.hasSpacers) {
        in_.EndLine();
        LoadSpacers(bar.spacers);
    }
    if (bar.hasWeldingPoints) {
        in_.EndLine();
        LoadWeldingPoints(bar.weldingPoints);
    }
}

void Loader::LoadGirders(BracedGirderData& data)
{
    data.version = List(
        "BRGIRDER", [](std::int16_t) { return 3; }, data.girders, [](std::int16_t) { return BracedGirder(); },
        [this](BracedGirder& girder) { LoadGirder(girder); });
}

void Loader::LoadGirder(BracedGirder& girder)
{
    girder.number = in_.UInt<std::int32_t>(3);
    in_.Blank();
    girder.code = Code(3);
    in_.Blank();
    girder.typeNumber = in_.UInt<std::int32_t>(5);
    in_.Blank();
    girder.designation = in_.Text(10);
    in_.Blank();
    girder.firstSize = in_.UInt<std::int32_t>(5);
    in_.Blank();
    girder.position.x = in_.SInt<std::int32_t>(5);
    in_.Blank();
    girder.position.y = in_.SInt<std::int32_t>(5);
    in_.Blank();
    girder.positionZ = in_.SInt<std::int32_t>(5);
    in_.Blank();
    girder.rotation = in_.SInt<std::int32_t>(3);
    in_.Blank();
    girder.mountFlag = in_.Digit();
    in_.EndLine();

    girder.firstCode = Code(3);
    in_.Blank();
    girder.secondCode = Code(3);
    in_.Blank();
    girder.auxNumber = in_.UInt<std::int32_t>(3);
    in_.Blank();
    girder.scaledValue = in_.Real(2, 3);
    in_.Blank();
    girder.shortNumber = in_.UInt<std::int32_t>(2);
    in_.Blank();
    girder.thirdCode = Code(3);
    in_.Blank();
    girder.lastNumber = in_.UInt<std::int32_t>(5);
    in_.Blank();
    girder.hasWeldingPoints = in_.Digit();
    in_.Literal("0");
    girder.hasAnchorBars = in_.Digit();

    if (girder.hasWeldingPoints) {
        in_.EndLine();
        LoadWeldingPoints(girder.weldingPoints);
    }
    if (girder.hasAnchorBars) {
        in_.EndLine();
        LoadAnchorBars(girder.anchorBars);
    }
}

void Loader::LoadIrons(ExternalIronData& data)
{
    data.version = List(
        "EXTIRON_", [](std::int16_t) { return 3; }, data.irons, [](std::int16_t) { return ExternalIron(); },
        [this](ExternalIron& iron) {
            iron.ironNumber = in_.UInt<std::int32_t>(3);
            in_.Blank();
            iron.ironCode = in_.UInt<std::int32_t>(2);
            in_.Blank();
            iron.ironCount = in_.UInt<std::int32_t>(5);
            in_.Blank();
            iron.ironValue = in_.Real(3, 3);
            in_.Blank();
            iron.ironText = in_.Text(30);
        });
}

void Loader::LoadBendingForm(BendingForm& form)
{
    form.formCode = in_.TextAtLeast(3);
    for (std::int32_t* value : {&form.formValueA, &form.formValueB, &form.formValueC, &form.formValueD}) {
        in_.Blank();
        *value = in_.UInt<std::int32_t>(5);
    }
    in_.Blank();
    form.formValueE = in_.UInt<std::int32_t>(3);
}

void Loader::LoadFreeForm(BendingFormFree& form)
{
    form.formCode = Code(3);
    in_.Blank();
    const std::size_t count = Count(in_.UInt<std::int64_t>(2));
    if (count == 0) {
        in_.EndLine();
    }
    for (std::size_t i = 0; i < count; ++i) {
        in_.EndLine();
        form.parts.emplace_back(0);
        BendingFormPart& part = form.parts.back();
        part.partNumber = in_.UInt<std::int32_t>(2);
        in_.Blank();
        const std::size_t segments = Count(in_.UInt<std::int64_t>(2));
        for (std::size_t s = 0; s < segments; ++s) {
            in_.Blank();
            part.segments.emplace_back();
            part.segments.back().length = in_.UInt<std::int32_t>(5);
            in_.Blank();
            part.segments.back().angle = in_.SInt<std::int32_t>(3);
        }
    }
}

void Loader::LoadSpacers(SpacerData& spacers)
{
    spacers.spacerCode = in_.UInt<std::int32_t>(3);
    in_.Blank();
    const std::size_t count = Count(in_.UInt<std::int64_t>(3));
    if (count == 0) {
        in_.EndLine();
    }
    for (std::size_t i = 0; i < count; ++i) {
        in_.EndLine();
        spacers.positions.emplace_back();
        SpacerPosition& position = spacers.positions.back();
        bool first = true;
        for (std::int32_t* value :
             {&position.value1, &position.value2, &position.value3, &position.value4, &position.value5,
              &position.value6, &position.value7, &position.value8, &position.value9, &position.value10}) {
            if (!first) {
                in_.Blank();
            }
            first = false;
            *value = in_.UInt<std::int32_t>(5);
        }
    }
}

void Loader::LoadWeldingPoints(WeldingPointData& points)
{
    points.weldValueA = in_.UInt<std::int32_t>(3);
    in_.Blank();
    points.weldValueB = in_.UInt<std::int32_t>(3);
    in_.Blank();
    points.weldValueC = in_.UInt<std::int32_t>(3);
    in_.Blank();
    points.weldLetter = in_.Char();
    points.weldFlag = in_.Digit();
    Note(Departure::weldingFlagBesideCount);
    const std::size_t count = Count(in_.UInt<std::int64_t>(3));
    if (count == 0) {
        in_.EndLine();
    }
    for (std::size_t i = 0; i < count; ++i) {
        in_.EndLine();
        points.points.emplace_back();
        bool first = true;
        for (WeldingIntersection& intersection : points.points.back().intersections) {
            if (!first) {
                in_.Blank();
            }
            first = false;
            intersection.offset = in_.UInt<std::int32_t>(5);
            in_.Blank();
            intersection.weldCode = in_.UInt<std::int32_t>(3);
        }
    }
}

void Loader::LoadAnchorBars(AnchorBarData& bars)
{
    bars.anchorCode = in_.UInt<std::int32_t>(3);
    in_.Blank();
    const std::size_t count = Count(in_.UInt<std::int64_t>(3));
    if (count == 0) {
        in_.EndLine();
    }
    for (std::size_t i = 0; i < count; ++i) {
        in_.EndLine();
        bars.bars.emplace_back();
        AnchorBar& bar = bars.bars.back();
        bar.firstType = in_.UInt<std::int32_t>(3);
        in_.Blank();
        bar.secondType = in_.UInt<std::int32_t>(3);
        in_.Blank();
        bar.firstLength = in_.UInt<std::int32_t>(5);
        in_.Blank();
        bar.secondLength = in_.UInt<std::int32_t>(5);
        in_.Blank();
    }
}

} // namespace ItUnitechnik
