#pragma once

#include <tinyxml2.h>

#include <string>
#include <vector>

// Reading back what the renderer wrote, as a browser would take it: path
// data into commands and points, transforms into matrices, arcs into their
// centres. Only what the drawing uses is read: M, L, A and Z, translate and
// scale.
namespace ItUnitechnik::Testing {

struct Point {
    double x = 0.0;
    double y = 0.0;
};

// The numbers of an attribute such as viewBox, separated by blanks or commas.
std::vector<double> NumbersOf(const char* text);

struct PathCommand {
    char command = 0;
    std::vector<double> numbers;
};
std::vector<PathCommand> ParsePath(const char* data);

// The points a path's M, L and A commands end at, in order.
std::vector<Point> PathPoints(const char* data);

// x' = a x + e, y' = d y + f: what translate and scale make.
struct Affine {
    double a = 1.0;
    double d = 1.0;
    double e = 0.0;
    double f = 0.0;
    Point Apply(Point p) const { return {a * p.x + e, d * p.y + f}; }
    Affine Then(const Affine& outer) const; // this first, then outer
};
Affine ParseTransform(const char* text);

// The transform from an element's own coordinates to the root's: its own
// and those of every group it stands in.
Affine ToRoot(const tinyxml2::XMLElement* element);

const tinyxml2::XMLElement* FindById(const tinyxml2::XMLElement* root, const std::string& id);

// Every element below `root` with this name, in document order.
std::vector<const tinyxml2::XMLElement*> All(const tinyxml2::XMLElement* root, const char* name);

// An arc command as its centre and angles: the conversion from endpoints
// that every SVG reader makes (for a circle's arc with no axis rotation).
struct ArcCentre {
    Point centre;
    double radius = 0.0;
    double startDegrees = 0.0;
    double sweepDegrees = 0.0; // positive towards +y of the path's coordinates
    Point At(double fraction) const;
};
ArcCentre CentreOf(Point from, const PathCommand& arc);

} // namespace ItUnitechnik::Testing
