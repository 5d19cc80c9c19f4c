#include "svg_reading.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstring>

namespace ItUnitechnik::Testing {

namespace {

constexpr double kPi = 3.14159265358979323846;

bool Separator(char c)
{
    return c == ' ' || c == ',' || c == '\n' || c == '\t' || c == '\r';
}

// Reads one number at `p`, moving past it; false when none stands there.
bool ReadNumber(const char*& p, const char* end, double& value)
{
    while (p < end && Separator(*p)) {
        ++p;
    }
    const auto result = std::from_chars(p, end, value);
    if (result.ec != std::errc()) {
        return false;
    }
    p = result.ptr;
    return true;
}

double Degrees(double ux, double uy, double vx, double vy)
{
    return std::atan2(ux * vy - uy * vx, ux * vx + uy * vy) * 180.0 / kPi;
}

} // namespace

std::vector<double> NumbersOf(const char* text)
{
    std::vector<double> numbers;
    if (text == nullptr) {
        return numbers;
    }
    const char* p = text;
    const char* end = text + std::strlen(text);
    double value = 0.0;
    while (ReadNumber(p, end, value)) {
        numbers.push_back(value);
    }
    return numbers;
}

std::vector<PathCommand> ParsePath(const char* data)
{
    std::vector<PathCommand> commands;
    if (data == nullptr) {
        return commands;
    }
    const char* p = data;
    const char* end = data + std::strlen(data);
    while (p < end) {
        if (Separator(*p)) {
            ++p;
            continue;
        }
        if (!std::isalpha(static_cast<unsigned char>(*p))) {
            return {}; // a number where a command should stand
        }
        PathCommand command;
        command.command = *p++;
        double value = 0.0;
        while (ReadNumber(p, end, value)) {
            command.numbers.push_back(value);
        }
        commands.push_back(command);
    }
    return commands;
}

std::vector<Point> PathPoints(const char* data)
{
    std::vector<Point> points;
    for (const PathCommand& command : ParsePath(data)) {
        const std::size_t n = command.numbers.size();
        if ((command.command == 'M' || command.command == 'L') && n == 2) {
            points.push_back({command.numbers[0], command.numbers[1]});
        } else if (command.command == 'A' && n == 7) {
            points.push_back({command.numbers[5], command.numbers[6]});
        }
    }
    return points;
}

Affine Affine::Then(const Affine& outer) const
{
    return {outer.a * a, outer.d * d, outer.a * e + outer.e, outer.d * f + outer.f};
}

Affine ParseTransform(const char* text)
{
    Affine total;
    if (text == nullptr) {
        return total;
    }
    std::string rest = text;
    // SVG applies the rightmost transform first.
    std::vector<Affine> steps;
    std::size_t at = 0;
    while ((at = rest.find_first_not_of(' ', at)) != std::string::npos) {
        const std::size_t open = rest.find('(', at);
        const std::size_t close = rest.find(')', open);
        if (open == std::string::npos || close == std::string::npos) {
            break;
        }
        const std::string name = rest.substr(at, open - at);
        const std::vector<double> n = NumbersOf(rest.substr(open + 1, close - open - 1).c_str());
        Affine step;
        if (name == "translate" && !n.empty()) {
            step.e = n[0];
            step.f = n.size() > 1 ? n[1] : 0.0;
        } else if (name == "scale" && !n.empty()) {
            step.a = n[0];
            step.d = n.size() > 1 ? n[1] : n[0];
        } else {
            step.a = std::nan(""); // a transform the drawing does not use
        }
        steps.push_back(step);
        at = close + 1;
    }
    for (auto step = steps.rbegin(); step != steps.rend(); ++step) {
        total = total.Then(*step);
    }
    return total;
}

Affine ToRoot(const tinyxml2::XMLElement* element)
{
    Affine total;
    for (const tinyxml2::XMLElement* e = element; e != nullptr; e = e->Parent() ? e->Parent()->ToElement() : nullptr) {
        total = total.Then(ParseTransform(e->Attribute("transform")));
    }
    return total;
}

const tinyxml2::XMLElement* FindById(const tinyxml2::XMLElement* root, const std::string& id)
{
    if (root == nullptr) {
        return nullptr;
    }
    const char* own = root->Attribute("id");
    if (own != nullptr && id == own) {
        return root;
    }
    for (const tinyxml2::XMLElement* child = root->FirstChildElement(); child != nullptr;
         child = child->NextSiblingElement()) {
        if (const tinyxml2::XMLElement* found = FindById(child, id)) {
            return found;
        }
    }
    return nullptr;
}

std::vector<const tinyxml2::XMLElement*> All(const tinyxml2::XMLElement* root, const char* name)
{
    std::vector<const tinyxml2::XMLElement*> found;
    for (const tinyxml2::XMLElement* child = root->FirstChildElement(); child != nullptr;
         child = child->NextSiblingElement()) {
        if (std::strcmp(child->Name(), name) == 0) {
            found.push_back(child);
        }
        const std::vector<const tinyxml2::XMLElement*> below = All(child, name);
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

ArcCentre CentreOf(Point from, const PathCommand& arc)
{
    ArcCentre result;
    if (arc.command != 'A' || arc.numbers.size() != 7) {
        return result;
    }
    const double r = arc.numbers[0];
    const bool large = arc.numbers[3] != 0.0;
    const bool positive = arc.numbers[4] != 0.0;
    const Point to{arc.numbers[5], arc.numbers[6]};
    // The conversion of SVG's implementation notes, with rx = ry = r and no
    // rotation of the axes.
    const double x1 = (from.x - to.x) / 2.0;
    const double y1 = (from.y - to.y) / 2.0;
    double square = (r * r * r * r - r * r * y1 * y1 - r * r * x1 * x1) / (r * r * y1 * y1 + r * r * x1 * x1);
    square = square < 0.0 ? 0.0 : square;
    const double coefficient = (large != positive ? 1.0 : -1.0) * std::sqrt(square);
    const double cx1 = coefficient * y1;
    const double cy1 = -coefficient * x1;
    result.centre = {cx1 + (from.x + to.x) / 2.0, cy1 + (from.y + to.y) / 2.0};
    result.radius = r;
    result.startDegrees = Degrees(1.0, 0.0, (x1 - cx1) / r, (y1 - cy1) / r);
    double sweep = Degrees((x1 - cx1) / r, (y1 - cy1) / r, (-x1 - cx1) / r, (-y1 - cy1) / r);
    if (!positive && sweep > 0.0) {
        sweep -= 360.0;
    } else if (positive && sweep < 0.0) {
        sweep += 360.0;
    }
    result.sweepDegrees = sweep;
    return result;
}

Point ArcCentre::At(double fraction) const
{
    const double angle = (startDegrees + sweepDegrees * fraction) * kPi / 180.0;
    return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
}

} // namespace ItUnitechnik::Testing
