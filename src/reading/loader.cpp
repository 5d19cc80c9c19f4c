#include "reading/loader.h"

#include "framework/read_idioms.h"
#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"

#include <cstring>
#include <memory>
#include <utility>

namespace ItUnitechnik {
namespace {

bool HasBlank(const std::wstring& text)
{
    return text.find(L' ') != std::wstring::npos;
}

// Runs `notes` once the record is read, or has stopped being read.
template <class Notes>
class NotedAfter {
public:
    explicit NotedAfter(Notes notes) : notes_(notes) {}
    NotedAfter(const NotedAfter&) = delete;
    NotedAfter& operator=(const NotedAfter&) = delete;
    ~NotedAfter() { notes_(); }

private:
    Notes notes_;
};

// The curve of a piece, of the piece's version. In place before it is read,
// so that a reading that stops keeps it.
template <class C>
C& PlacedCurve(GeoData& piece)
{
    auto owned = std::make_unique<C>(piece.version);
    C& curve = *owned;
    piece.curve = std::move(owned);
    return curve;
}

} // namespace

void Loader::Document(std::vector<Order>& orders, bool& trailingData)
{
    while (!in_.AtEnd()) {
        if (!in_.NextLineIs("HEADER__")) {
            // Anything but an order behind the orders read so far.
            trailingData = !orders.empty();
            in_.SetRecord("");
            in_.FailHere("\"HEADER__\" or the end of the file");
        }
        orders.emplace_back();
        Load(orders.back());
    }
}

void Loader::Tag(const char* tag)
{
    if (std::strncmp(tag, "END ", 4) == 0) {
        in_.SetRecord(tag + 4);
    } else if (std::strcmp(tag, "END") != 0) {
        in_.SetRecord(tag);
    }
    in_.Tag(tag);
}

void Loader::Literal(const char* text)
{
    // "END STEELMAT" closes its mat without a line end of its own.
    if (std::strncmp(text, "END ", 4) == 0) {
        in_.SetRecord(text + 4);
    }
    in_.Literal(text);
}

void Loader::Constant(wchar_t value)
{
    const char text[2] = {static_cast<char>(value), '\0'};
    in_.Literal(text);
}

std::size_t Loader::Count(std::int64_t value)
{
    // Each element of a list stands on a line of its own at the least.
    if (value < 0) {
        in_.Fail("a count of zero or more");
    }
    return static_cast<std::size_t>(value);
}

std::wstring Loader::Code(int width)
{
    std::wstring code = in_.Text(width);
    if (HasBlank(code)) {
        Note(Departure::textsByPlace);
    }
    return code;
}

void Loader::Load(Order& order)
{
    const NotedAfter notes([&] {
        std::wstring trimmed = order.orderNumber;
        Trim(trimmed);
        trimmed.resize(order.orderNumber.size(), L' ');
        if (trimmed != order.orderNumber) {
            Note(Departure::orderNumberUntrimmed);
        }
        if (order.version > 502 && order.version < 600) {
            Note(Departure::orderLineFrom503);
        }
        if (order.version >= 600 && order.orderText40.find_first_not_of(L' ') != std::wstring::npos) {
            Note(Departure::orderTextOwnLine);
        }
    });
    Layout(*this, order);
    if (order.elementParts.empty()) {
        Note(Departure::orderWithoutElements);
    }
}

void Loader::Load(ElementPart& element)
{
    // An absent optional pair on line C reads as -1 and -1.
    element.valueC11 = -1;
    element.valueC12 = -1;
    const NotedAfter notes([&] {
        if (element.version >= 600) {
            // As the records' Read does: the number follows from its text.
            element.elementNumber = static_cast<std::int16_t>(WideToInt(element.elementNumberText));
        }
    });
    Layout(*this, element);
    const bool loose = !element.rodstockData.bars.empty() || !element.bracedGirderData.girders.empty();
    if (element.version >= 600 && element.reinforcement.present && (loose || element.hasExternalIron)) {
        Note(Departure::reinforcementInWriterOrder);
    }
}

void Loader::Load(Lot& lot)
{
    Layout(*this, lot);
    if (lot.version >= 600) {
        Note(Departure::lotTextBehindBlank);
    }
}

void Loader::Load(MountingPart& part)
{
    Layout(*this, part);
    if (!part.geoData.empty()) {
        Note(Departure::partWithPieces);
    }
}

void Loader::Load(Reinforcement& block)
{
    Layout(*this, block);
    if (!block.hasExternalIrons) {
        Note(Departure::blockWithoutIrons);
    }
    block.present = true;
}

void Loader::Load(WeldingPointData& points)
{
    Note(Departure::weldingFlagBesideCount);
    Layout(*this, points);
}

// A piece of outline is a curve of its own class, chosen by the kind
// character in front of it and owned through a pointer; each curve is read in
// its own layout.
void Loader::Load(GeoData& piece)
{
    piece.elementKind = in_.Char();
    in_.Blank();
    switch (piece.elementKind) {
    case L'S':
        Record(PlacedCurve<LineSegment>(piece));
        break;
    case L'K':
        Record(PlacedCurve<Circle>(piece));
        break;
    case L'B':
        Record(PlacedCurve<Arc>(piece));
        Note(Departure::arcFlagsDecimal);
        break;
    case L'P':
        Record(PlacedCurve<Polygon>(piece));
        break;
    default:
        in_.Fail("the kind of an outline piece: B, K, P or S");
    }
}

} // namespace ItUnitechnik
