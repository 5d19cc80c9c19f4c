#pragma once

#include <cstdint>
#include <string>
#include <vector>

// A PNG file read with libpng into 8-bit RGBA.
namespace ItUnitechnik::Testing {

struct Colour {
    int r = 0;
    int g = 0;
    int b = 0;
};

class PngImage {
public:
    // An empty image (width 0) when the file cannot be read as PNG; `error`
    // says why.
    static PngImage Read(const std::string& path);

    int Width() const { return width_; }
    int Height() const { return height_; }
    std::string error;

    Colour At(int x, int y) const;

private:
    int width_ = 0;
    int height_ = 0;
    std::vector<std::uint8_t> rgba_;
};

// Each channel within `tolerance` of the other colour's.
bool Near(Colour a, Colour b, int tolerance);

std::string Describe(Colour c);

} // namespace ItUnitechnik::Testing
