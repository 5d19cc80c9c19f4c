#include "bom/bill_of_materials.h"

#include "plant/plant_text.h"
#include "plant/plant_view.h"
#include "tree/element_places.h"

#include <nlohmann/json.hpp>

#include "framework/float_chars.h"
#include <algorithm>

#include <charconv>
#include <cmath>
#include <map>

namespace ItUnitechnik::Bom {

namespace {

// Grams are the finest the bill shows: a weight is kept to three decimals of
// a kg, so the JSON's numbers do not carry the noise of the sums.
double ToGrams(double kilograms)
{
    return std::round(kilograms * 1000.0) / 1000.0;
}

// Adds the records of one element into groups that keep their order.
class Collector {
public:
    void Element(const ElementPart& element)
    {
        for (const Rodstock& bar : element.rodstockData.bars) {
            Bar(Plant::BarSetOf(bar));
        }
        for (const BracedGirder& girder : element.bracedGirderData.girders) {
            Girder(Plant::GirderGroupOf(girder));
        }
        Block(element.reinforcement);
        for (const ExternalIron& iron : element.externalIronData.irons) {
            Iron(iron);
        }
        for (const MountingPart& part : element.mountingPartData.parts) {
            ++parts_[Plant::Trimmed(Plant::kPart.name(part))];
        }
        for (const Layer& layer : element.layers) {
            Block(layer.reinforcement);
            for (const MountingPart& part : layer.mountingPartData.parts) {
                ++parts_[Plant::Trimmed(Plant::kPart.name(part))];
            }
        }
        for (const ConcreteLayer& layer : element.concreteLayers) {
            const Plant::ConcreteLayerView view = Plant::LayerOf(layer);
            layers_.push_back({layer.layerNumber, Plant::LayerKindName(view.kind), Plant::Trimmed(view.name),
                               view.thickness, ToGrams(view.Mass())});
        }
    }

    // Each line's weight is rounded once, from its exact sum; the element's
    // steel is the sum of the lines as shown.
    void Into(ElementBill& bill) const
    {
        for (auto [key, line] : bars_) {
            line.weight = ToGrams(line.weight);
            bill.bars.push_back(line);
            bill.steelWeight += line.weight;
        }
        for (auto [key, line] : girders_) {
            line.weight = ToGrams(line.weight);
            bill.girders.push_back(line);
            bill.steelWeight += line.weight;
        }
        for (const auto& [key, line] : mats_) {
            bill.mats.push_back(line);
        }
        for (auto [key, line] : irons_) {
            line.weight = ToGrams(line.weight);
            bill.irons.push_back(line);
            bill.steelWeight += line.weight;
        }
        for (const auto& [name, count] : parts_) {
            bill.parts.push_back({name, count});
        }
        bill.layers = layers_;
        for (const LayerLine& layer : layers_) {
            bill.concreteMass += layer.mass;
        }
        bill.steelWeight = ToGrams(bill.steelWeight);
        bill.concreteMass = ToGrams(bill.concreteMass);
    }

private:
    void Block(const Reinforcement& reinforcement)
    {
        for (const Steelmat& mat : reinforcement.mats) {
            const Plant::Mat view = Plant::MatOf(mat);
            MatLine& line = mats_[Plant::Trimmed(view.type)];
            line.type = Plant::Trimmed(view.type);
            ++line.count;
            for (const Plant::BarSet& set : view.bars) {
                Bar(set);
            }
            for (const Plant::GirderGroup& group : view.girders) {
                Girder(group);
            }
        }
        if (reinforcement.hasExternalIrons) {
            for (const ExternalIron& iron : reinforcement.externalIrons.irons) {
                Iron(iron);
            }
        }
    }

    void Bar(const Plant::BarSet& set)
    {
        const std::string grade = Plant::Trimmed(set.grade);
        BarLine& line = bars_[{grade, set.diameter}];
        line.grade = grade;
        line.diameter = set.diameter;
        line.count += set.count;
        line.totalLength += Plant::TotalLength(set);
        line.weight += Plant::Weight(set);
    }

    void Girder(const Plant::GirderGroup& group)
    {
        const std::string type = Plant::Trimmed(group.type);
        GirderLine& line = girders_[type];
        line.type = type;
        line.count += group.count;
        line.totalLength += static_cast<std::int64_t>(group.count) * group.length;
        line.weight += static_cast<double>(group.count) * group.weight;
    }

    void Iron(const ExternalIron& iron)
    {
        const Plant::Iron view = Plant::IronOf(iron);
        const std::string name = Plant::Trimmed(view.name);
        IronLine& line = irons_[name];
        line.name = name;
        line.count += view.count;
        // A weight that is not a number adds nothing.
        line.weight += std::isfinite(view.weight) ? view.weight : 0.0;
    }

    std::map<std::pair<std::string, std::int32_t>, BarLine> bars_;
    std::map<std::string, GirderLine> girders_;
    std::map<std::string, MatLine> mats_;
    std::map<std::string, IronLine> irons_;
    std::map<std::string, std::int64_t> parts_;
    std::vector<LayerLine> layers_;
};

} // namespace

ElementBill BillOf(const Order& order, const ElementPart& element)
{
    ElementBill bill;
    bill.order = Drawing::OrderNumberText(order);
    bill.element = Drawing::ElementNumberText(element);
    bill.text = Plant::Trimmed(element.elementText30);
    Collector collector;
    collector.Element(element);
    collector.Into(bill);
    return bill;
}

std::vector<ElementBill> BillOfDocument(const std::vector<Order>& orders)
{
    std::vector<ElementBill> bills;
    for (const Drawing::ElementPlace& place : Drawing::ElementPlaces(orders)) {
        bills.push_back(BillOf(*place.order, *place.element));
    }
    return bills;
}

double FileSteelWeight(const std::vector<ElementBill>& bills)
{
    double total = 0.0;
    for (const ElementBill& bill : bills) {
        total += bill.steelWeight;
    }
    return ToGrams(total);
}

double FileConcreteMass(const std::vector<ElementBill>& bills)
{
    double total = 0.0;
    for (const ElementBill& bill : bills) {
        total += bill.concreteMass;
    }
    return ToGrams(total);
}

} // namespace ItUnitechnik::Bom
