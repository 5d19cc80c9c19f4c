#pragma once

#include "render/field_list.h"
#include "render/geometry_paths.h"
#include "tree/element_places.h"

#include <string>
#include <vector>

// One element as the drawing and the page see it: each record that has a
// place on the drawing becomes an item with an id, its fields and its SVG
// shapes; the external irons, which have no place, are items without shapes.
namespace ItUnitechnik::Drawing {

struct Item {
    std::string id; // names the record and its number: "contour-1", "steelmat-1-rodstock-2"
    std::string
        kind; // the class of its group: contour, cutout, mountingpart, steelmat, rodstock, bracedgirder, externaliron
    std::string label;       // "Contour 1", "Mat 1, bar 2"
    std::string summary;     // what a person looks for first
    FieldList fields;        // every field of the record
    std::string shapes;      // SVG elements in the file's coordinates; empty for what is not drawn
    std::vector<Item> parts; // a mat's bars and girders
};

struct Scene {
    ElementPlace place;
    std::string idPrefix;    // in front of every id of the scene
    std::vector<Item> items; // in drawing order
    std::vector<Item> irons; // external irons: listed, not drawn
    BoxD box;                // of everything drawn, in the file's coordinates
    double margin = 0.0;     // around the box, in mm
    double textSize = 0.0;   // of the drawing's texts, in mm
};

// The element's records as items. Ids begin with `idPrefix` (empty for a
// single element); records of layers and lots are named by those as well.
Scene MakeScene(const ElementPlace& place, const std::string& idPrefix = "");

// The prefix of the ids of an element among several: "order-1-element-2-".
std::string PlacePrefix(const ElementPlace& place);

} // namespace ItUnitechnik::Drawing
