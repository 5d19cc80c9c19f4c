#include "reading/tolerant_reading.h"

#include "reading/loader.h"

namespace ItUnitechnik {

const char* DepartureName(Departure departure)
{
    for (const DepartureInfo& info : kDepartures) {
        if (info.departure == departure) {
            return info.name;
        }
    }
    return "";
}

namespace {

// One reading of the whole text, lines cut short taken or not.
TolerantDocument Attempt(const std::wstring& text, bool linesCutShort)
{
    TolerantDocument document;
    FieldReader in(text);
    in.TakeLinesCutShort(linesCutShort);
    Loader loader(in);
    try {
        loader.Document(document.orders, document.trailingData);
    } catch (const ReadFailure& failure) {
        document.stop = failure.Stop();
    }
    document.departures = loader.Departures();
    if (in.SawSignBehindZeros()) {
        document.departures.insert(Departure::signBehindZeros);
    }
    if (in.SawLineCutShort()) {
        document.departures.insert(Departure::trailingBlanksLost);
    }
    if (in.SawEndForLineEnd()) {
        document.departures.insert(Departure::noFinalLineEnd);
    }
    return document;
}

bool Further(const ReadStop& a, const ReadStop& b)
{
    return a.line > b.line || (a.line == b.line && a.column > b.column);
}

TolerantDocument Read(const std::wstring& text, std::vector<std::size_t> bareLineEnds)
{
    // The text as it stands first: a line feed inside a text is read as
    // the writer wrote it. A file that does not read so may have lost the
    // blanks at the ends of its lines; read again taking them as lost, the
    // reading that got further is the document.
    TolerantDocument document = Attempt(text, false);
    if (!document.Complete()) {
        TolerantDocument again = Attempt(text, true);
        if (again.Complete() || Further(*again.stop, *document.stop)) {
            document = std::move(again);
        }
    }
    document.bareLineEnds = std::move(bareLineEnds);
    if (!document.bareLineEnds.empty()) {
        document.departures.insert(Departure::bareLineFeeds);
    }
    return document;
}

} // namespace

TolerantDocument ReadTolerantly(const std::string& bytes)
{
    // One character per byte; CR LF, the writer's line end, becomes the one
    // line feed the loader reads, so a carriage return inside a text stays.
    std::wstring text;
    text.reserve(bytes.size());
    std::vector<std::size_t> bareLineEnds;
    std::size_t line = 1;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        if (byte == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') {
            continue;
        }
        if (byte == '\n') {
            if (i == 0 || bytes[i - 1] != '\r') {
                bareLineEnds.push_back(line);
            }
            ++line;
        }
        text += static_cast<wchar_t>(byte);
    }
    return Read(text, std::move(bareLineEnds));
}

TolerantDocument ReadTolerantlyText(const std::wstring& text)
{
    return Read(text, {});
}

} // namespace ItUnitechnik
