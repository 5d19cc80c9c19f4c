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

TolerantDocument Read(std::wstring text, std::vector<std::size_t> bareLineEnds)
{
    TolerantDocument document;
    document.bareLineEnds = std::move(bareLineEnds);
    FieldReader in(std::move(text));
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
    return Read(std::move(text), std::move(bareLineEnds));
}

TolerantDocument ReadTolerantlyText(const std::wstring& text)
{
    return Read(text, {});
}

} // namespace ItUnitechnik
