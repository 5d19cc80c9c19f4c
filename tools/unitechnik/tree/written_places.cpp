#include "tree/written_places.h"

#include "framework/archive.h"

#include <streambuf>

namespace ItUnitechnik::Tool::Check {

bool operator<(const Place& a, const Place& b)
{
    return a.line != b.line ? a.line < b.line : a.column < b.column;
}

std::optional<Place> WrittenDocument::RecordStart(const void* record) const
{
    const auto found = records.find(record);
    if (found == records.end()) {
        return std::nullopt;
    }
    return found->second.first;
}

std::optional<Place> WrittenDocument::RecordEnd(const void* record) const
{
    const auto found = records.find(record);
    if (found == records.end()) {
        return std::nullopt;
    }
    return found->second.second;
}

std::optional<Place> WrittenDocument::Field(const void* record, const std::string& member) const
{
    const auto found = fields.find({record, member});
    if (found == fields.end()) {
        return std::nullopt;
    }
    return found->second;
}

namespace {

// Takes every character and keeps none: the trace counts them on the way.
// Unlike a document file it takes a character above U+00FF too, so that
// whatever follows one is still looked at.
class NoFile final : public std::basic_streambuf<wchar_t> {
protected:
    int_type overflow(int_type c) override { return traits_type::not_eof(c); }
    std::streamsize xsputn(const wchar_t*, std::streamsize count) override { return count; }
};

class Collector final : public FieldSink {
public:
    Collector(WrittenDocument& document, bool places) : document_(document), places_(places) {}

    void Report(const FieldEvent& event) override
    {
        WrittenEvent copy;
        copy.problem = event.problem;
        copy.tag = event.tag;
        copy.member = event.member;
        copy.place = Place{event.line, event.column};
        copy.width = event.width;
        copy.value = event.value;
        copy.written = event.written;
        copy.records = open_;
        document_.events.push_back(std::move(copy));
    }

    void RecordStarts(const void* record, std::size_t line, std::size_t column) override
    {
        open_.push_back(record);
        if (places_) {
            // A record written twice (a copy at the same place) keeps its first start.
            document_.records.emplace(record, std::make_pair(Place{line, column}, Place{line, column}));
        }
    }

    void RecordEnds(const void* record, std::size_t line, std::size_t column) override
    {
        if (!open_.empty()) {
            open_.pop_back();
        }
        if (places_) {
            const auto found = document_.records.find(record);
            if (found != document_.records.end()) {
                found->second.second = Place{line, column};
            }
        }
    }

    void FieldStarts(const void* record, const char* member, std::size_t line, std::size_t column) override
    {
        if (places_) {
            document_.fields.emplace(std::make_pair(record, std::string(member)), Place{line, column});
        }
    }

private:
    WrittenDocument& document_;
    bool places_;
    std::vector<const void*> open_;
};

} // namespace

WrittenDocument WriteInMemory(std::vector<Order>& orders, bool places)
{
    WrittenDocument document;
    Collector collector(document, places);
    NoFile nowhere;
    Archive ar(&nowhere);
    ar.SetFieldSink(&collector);
    for (Order& order : orders) {
        order.Write(ar);
    }
    ar.SetFieldSink(nullptr);
    return document;
}

} // namespace ItUnitechnik::Tool::Check
