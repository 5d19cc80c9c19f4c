// Copies and moves of an element, with its outline and reinforcement or with
// layers, and of an order.
#include "records/element/element_part.h"

#include "records/copies_and_moves_filled_outline.h"
#include "records/copies_and_moves_filled_reinforcement.h"
#include "records/copies_and_moves_test_support.h"
#include "records/order/order.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <utility>
#include <vector>

namespace ItUnitechnik {
namespace {

using CopiesAndMovesTesting::ExpectCopiesAndMovesOfItsOwn;
using CopiesAndMovesTesting::FilledBar;
using CopiesAndMovesTesting::FilledBars;
using CopiesAndMovesTesting::FilledConcreteLayer;
using CopiesAndMovesTesting::FilledContour;
using CopiesAndMovesTesting::FilledContours;
using CopiesAndMovesTesting::FilledCutout;
using CopiesAndMovesTesting::FilledCutouts;
using CopiesAndMovesTesting::FilledGirder;
using CopiesAndMovesTesting::FilledGirders;
using CopiesAndMovesTesting::FilledIron;
using CopiesAndMovesTesting::FilledIrons;
using CopiesAndMovesTesting::FilledLayer;
using CopiesAndMovesTesting::FilledPart;
using CopiesAndMovesTesting::FilledParts;
using CopiesAndMovesTesting::FilledReinforcement;
using CopiesAndMovesTesting::Kind;
using CopiesAndMovesTesting::Written;

// Every member of the element off its default; the layers stay empty, since
// an element writes either them or its own outline and reinforcement.
ElementPart FilledElement()
{
    ElementPart e;
    e.version = 600;
    e.elementNumber = 77;
    e.elementNumberText = L"77";
    e.codeA1 = L"1";
    e.codeA2 = L"2";
    e.valueA1 = 3;
    e.valueA2 = 4;
    e.codeA3 = L"5";
    e.valueA3 = 6;
    e.valueA4 = 7;
    e.valueA5 = 8;
    e.valueA6 = 9;
    e.valueA7 = 10;
    e.codeA4 = L"11";
    e.textA40 = L"text A";
    e.elementMeasure = 1.25;
    e.codeB1 = L"12";
    e.codeB2 = L"13";
    e.textB8 = L"text B";
    e.realB1 = 0.5;
    e.layerProductSum = 1.2;
    e.thickness = 200;
    e.doubleWallGap = 20;
    e.codeB3 = L"14";
    e.codeB4 = L"15";
    e.valueB1 = 16;
    e.valueB2 = 17;
    e.secondThickness = 180;
    e.firstPlaster.plasterNumber = 1;
    e.firstPlaster.plasterName = L"Plaster";
    e.firstPlaster.firstValue = 1.5;
    e.firstPlaster.secondValue = 2.5;
    e.secondPlaster = e.firstPlaster;
    e.secondPlaster.plasterNumber = 2;
    e.concreteLayers.push_back(FilledConcreteLayer(1));
    e.concreteLayers.push_back(FilledConcreteLayer(2));
    e.extentX = 3000;
    e.extentY = 1500;
    e.valueC1 = 1;
    e.valueC2 = 2;
    e.valueC3 = 3;
    e.valueC4 = 4;
    e.valueC5 = 5;
    e.valueC6 = 6;
    e.valueC7 = 7;
    e.valueC8 = 8;
    e.elementVector = Vector2d(9, 10);
    e.valueC9 = 11;
    e.valueC10 = 12;
    e.valueC11 = 13;
    e.valueC12 = 14;
    e.firstEdge = Edge(Point2d(1, 2), Point2d(3, 4));
    e.secondEdge = Edge(Point2d(5, 6), Point2d(7, 8));
    e.textD8 = L"text D8";
    e.textD4 = L"D4";
    e.valueD1 = 15;
    e.valueD2 = 16;
    e.valueD3 = 17;
    e.elementText30 = L"Floor slab";
    e.firstPoint = Point3d(1, 2, 3);
    e.secondPoint = Point3d(4, 5, 6);
    e.thirdPoint = Point3d(7, 8, 9);
    e.fourthPoint = Point3d(10, 11, 12);
    e.valueF1 = 13;
    e.slabInfo1 = L"info 1";
    e.slabInfo2 = L"info 2";
    e.slabInfo3 = L"info 3";
    e.slabInfo4 = L"info 4";
    e.contourData = FilledContours();
    e.cutoutData = FilledCutouts();
    e.mountingPartData = FilledParts();
    e.rodstockData = FilledBars();
    e.reinforcement = FilledReinforcement();
    e.bracedGirderData = FilledGirders();
    e.externalIronData = FilledIrons();
    e.hasExternalIron = true;
    return e;
}

std::vector<std::size_t> ElementSizes(const ElementPart& e)
{
    return {e.concreteLayers.size(),         e.contourData.contours.size(), e.cutoutData.cutouts.size(),
            e.mountingPartData.parts.size(), e.rodstockData.bars.size(),    e.bracedGirderData.girders.size(),
            e.externalIronData.irons.size()};
}

void AddToEachOutlineAndReinforcementList(ElementPart& e)
{
    e.Add(FilledConcreteLayer(3));
    e.Add(FilledContour(3));
    e.Add(FilledCutout(3));
    e.Add(FilledPart(3));
    e.Add(FilledBar(3));
    e.Add(FilledGirder(3));
    e.Add(FilledIron(3));
}

// The lines that only the older versions write, and the rest, at 502.
void ExpectTheSameAt502(ElementPart& result, ElementPart& original)
{
    result.version = 502;
    original.version = 502;
    EXPECT_EQ(Written(result), Written(original));
    result.version = 600;
    original.version = 600;
}

TEST(CopiesAndMoves, ElementPart)
{
    Kind<ElementPart> kind{
        FilledElement,
        [] { return ElementPart(); },
        AddToEachOutlineAndReinforcementList,
        ElementSizes,
    };
    kind.expectSameUnwritten = ExpectTheSameAt502;
    ExpectCopiesAndMovesOfItsOwn(kind);
}

TEST(CopiesAndMoves, ElementPartWithLayers)
{
    Kind<ElementPart> kind{
        [] {
            ElementPart e = FilledElement();
            e.layers.push_back(FilledLayer());
            return e;
        },
        [] { return ElementPart(); },
        [](ElementPart& e) {
            AddToEachOutlineAndReinforcementList(e);
            e.Add(FilledLayer());
        },
        [](const ElementPart& e) {
            std::vector<std::size_t> sizes = ElementSizes(e);
            sizes.push_back(e.layers.size());
            return sizes;
        },
    };
    kind.expectSameUnwritten = ExpectTheSameAt502;
    ExpectCopiesAndMovesOfItsOwn(kind);
}

Order FilledOrder()
{
    Order order;
    order.version = 600;
    order.date.version = 600;
    order.orderNumber = L"12345678";
    order.orderText5 = L"TXT05";
    order.orderText4 = L"TX04";
    order.orderText8 = L"TEXT0008";
    order.orderValue2 = 4;
    order.legacyText2 = L"LT";
    order.legacyText40 = L"legacy text";
    order.orderText2 = L"T2";
    order.project.projectText1 = L"project 1";
    order.project.projectText2 = L"project 2";
    order.project.projectText3 = L"project 3";
    order.project.projectText4 = L"project 4";
    order.firstAddress.addressText1 = L"address 1";
    order.firstAddress.addressText2 = L"address 2";
    order.firstAddress.addressText3 = L"addr 3";
    order.firstAddress.addressText4 = L"address 4";
    order.secondAddress = order.firstAddress;
    order.secondAddress.addressText1 = L"second address";
    order.date.day = 24;
    order.date.month = 12;
    order.date.year = 2024;
    order.orderText40 = L"order text 40";
    order.elementParts.push_back(FilledElement());
    return order;
}

TEST(CopiesAndMoves, Order)
{
    Kind<Order> kind{
        FilledOrder,
        [] { return Order(); },
        [](Order& o) { o.Add(ElementPart()); },
        [](const Order& o) { return std::vector<std::size_t>{o.elementParts.size()}; },
    };
    // The legacy texts stand in the file up to 502 only.
    kind.expectSameUnwritten = [](Order& result, Order& original) {
        EXPECT_EQ(result.legacyText2, original.legacyText2);
        EXPECT_EQ(result.legacyText40, original.legacyText40);
        EXPECT_EQ(result.date.version, original.date.version);
    };
    ExpectCopiesAndMovesOfItsOwn(kind);
}

TEST(CopiesAndMoves, AnOrderStoresItsVersionIntoTheDateWhenCopiedOrMoved)
{
    Order order = FilledOrder();
    order.date.version = 499;
    Order copied(order);
    EXPECT_EQ(copied.date.version, 600);
    Order moved(std::move(copied));
    EXPECT_EQ(moved.date.version, 600);
    Order assigned;
    assigned.version = 501;
    order.date.version = 499;
    assigned = order;
    EXPECT_EQ(assigned.date.version, 600);
    order.date.version = 499;
    Order moveAssigned;
    moveAssigned = std::move(order);
    EXPECT_EQ(moveAssigned.date.version, 600);
}

} // namespace
} // namespace ItUnitechnik
