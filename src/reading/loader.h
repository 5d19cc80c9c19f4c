#pragma once

#include "reading/departures.h"
#include "reading/field_reader.h"
#include "records/element/element_part.h"
#include "records/order/order.h"

#include <set>
#include <string>

// The tolerant reading's loader: one function a record, each the mirror of the
// record's Write, field by field in the same order. A child is appended to its
// list before it is read, so that a reading that stops keeps what it had.
namespace ItUnitechnik {

class Loader {
public:
    explicit Loader(FieldReader& in) : in_(in) {}

    void Document(std::vector<Order>& orders, bool& trailingData);
    const std::set<Departure>& Departures() const { return departures_; }

private:
    // Orders.
    void LoadOrder(Order& order);
    void LoadProject(Project& project);
    void LoadAddress(Address& address);
    void LoadDate(Date& date);
    void LoadLot(Lot& lot);

    // Elements.
    void LoadElement(ElementPart& element);
    void LoadElementLines(ElementPart& element);
    void LoadElementRecords(ElementPart& element);
    void LoadLayer(Layer& layer);
    void LoadConcreteLayer(ConcreteLayer& layer);
    void LoadPlaster(Plaster& plaster);

    // Geometry and outlines.
    void LoadPoint2d(Point2d& point, std::int32_t version);
    void LoadGeoData(GeoData& element);
    void LoadGeoDataLines(std::vector<GeoData>& elements, std::int32_t version);
    void LoadContours(ContourData& data);
    void LoadCutouts(CutoutData& data);
    void LoadParts(MountingPartData& data);
    void LoadPart(MountingPart& part);

    // Reinforcement.
    void LoadReinforcement(Reinforcement& block);
    void LoadSteelmat(Steelmat& mat);
    void LoadRodstocks(RodstockData& data);
    void LoadRodstock(Rodstock& bar);
    void LoadGirders(BracedGirderData& data);
    void LoadGirder(BracedGirder& girder);
    void LoadIrons(ExternalIronData& data);
    void LoadBendingForm(BendingForm& form);
    void LoadFreeForm(BendingFormFree& form);
    void LoadSpacers(SpacerData& spacers);
    void LoadWeldingPoints(WeldingPointData& points);
    void LoadAnchorBars(AnchorBarData& bars);

    // A count in front of a list: zero or more. Each element is appended
    // before it is read, so a count beyond what the file holds ends the
    // reading at the file's end and makes no room in advance.
    std::size_t Count(std::int64_t value);
    // The record's tag and version lines; the record's tag is where a stop
    // is placed.
    std::int16_t Head(const char* tag);
    // The frame of a list record: its tag and version, the count of its
    // elements in `countWidth(version)` places, each element ended by a line
    // end, and "END". `make(version)` gives an element, `load` reads it.
    template <class T, class Width, class Make, class Load>
    std::int16_t List(const char* tag, Width countWidth, std::vector<T>& elements, Make make, Load load)
    {
        const std::int16_t version = Head(tag);
        const std::size_t count = Count(in_.UInt<std::int64_t>(countWidth(version)));
        in_.EndLine();
        for (std::size_t i = 0; i < count; ++i) {
            elements.push_back(make(version));
            load(elements.back());
            in_.EndLine();
        }
        in_.Tag("END");
        return version;
    }
    // A code the records' Read takes as a token: note when it holds a blank.
    std::wstring Code(int width);
    void Note(Departure departure) { departures_.insert(departure); }

    FieldReader& in_;
    std::set<Departure> departures_;
};

} // namespace ItUnitechnik
