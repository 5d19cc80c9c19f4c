#include "png_image.h"

#include <png.h>

#include <cstdlib>
#include <cstring>

namespace ItUnitechnik::Testing {

PngImage PngImage::Read(const std::string& path)
{
    PngImage image;
    png_image png;
    std::memset(&png, 0, sizeof png);
    png.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&png, path.c_str()) == 0) {
        image.error = png.message;
        return image;
    }
    png.format = PNG_FORMAT_RGBA;
    std::vector<std::uint8_t> pixels(PNG_IMAGE_SIZE(png));
    if (png_image_finish_read(&png, nullptr, pixels.data(), 0, nullptr) == 0) {
        image.error = png.message;
        png_image_free(&png);
        return image;
    }
    image.width_ = static_cast<int>(png.width);
    image.height_ = static_cast<int>(png.height);
    image.rgba_ = std::move(pixels);
    return image;
}

Colour PngImage::At(int x, int y) const
{
    if (x < 0 || y < 0 || x >= width_ || y >= height_) {
        return {-1000, -1000, -1000};
    }
    const std::size_t at =
        (static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)) * 4;
    return {rgba_[at], rgba_[at + 1], rgba_[at + 2]};
}

bool Near(Colour a, Colour b, int tolerance)
{
    return std::abs(a.r - b.r) <= tolerance && std::abs(a.g - b.g) <= tolerance && std::abs(a.b - b.b) <= tolerance;
}

std::string Describe(Colour c)
{
    return "rgb(" + std::to_string(c.r) + ", " + std::to_string(c.g) + ", " + std::to_string(c.b) + ")";
}

} // namespace ItUnitechnik::Testing
