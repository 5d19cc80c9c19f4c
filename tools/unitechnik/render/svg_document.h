#pragma once

#include "render/scene.h"

#include <string>
#include <vector>

// The SVG of one element or of several stacked from top to bottom. Units are
// the file's millimetres. Each element's drawing is one group that turns y
// upwards (the only flip); texts in it turn back, so they stand upright.
// Below each drawing stand a legend and a title block.
namespace ItUnitechnik::Drawing {

struct SvgOptions {
    bool captions = false;      // a line "Order ..., element ..." above each drawing
    bool xmlDeclaration = true; // false for an SVG inside an HTML page
};

std::string SvgDocument(const std::vector<Scene>& scenes, const SvgOptions& options = {});

// "Order ..., element ...: text", the caption of an element.
std::string Heading(const Scene& scene);

// The lines of a scene's title block: order, element and its text, version,
// extents, then the external irons.
std::vector<std::string> TitleLines(const Scene& scene);

// The colours and lines of every shape class, as the SVG carries them.
const char* DrawingStyle();

} // namespace ItUnitechnik::Drawing
