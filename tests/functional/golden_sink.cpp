// A golden scenario run once more, with each of its documents also written
// through an Archive that has a field sink. Every endDocument of the scenario
// comes here (the link wraps it): the library writes the file as always, then
// the same orders are written to the same path with a sink set, and the two
// must be the same bytes. golden_check then compares what is left with the
// golden files, so the files written with the sink are the golden ones too.
#include "exports/document.h"
#include "exports/host_text.h"
#include "framework/archive.h"
#include "framework/document_file_buffer.h"
#include "framework/field_sink.h"
#include "platform/platform.h"
#include "support/test_support.h"

#include "itunitechnik.h"

#include <iostream>
#include <string>

extern "C" int scenario_main(int argc, char** argv);
extern "C" int32_t __real_endDocument(const it_char16* path);
extern "C" int32_t __wrap_endDocument(const it_char16* path);

namespace {

using namespace ItUnitechnik;

class Counter final : public FieldSink {
public:
    void Report(const FieldEvent&) override { ++events; }
    std::size_t events = 0;
};

int documents = 0;
int differences = 0;
std::size_t events = 0;

} // namespace

int32_t __wrap_endDocument(const it_char16* path)
{
    const int32_t result = __real_endDocument(path);
    const std::wstring wide = FromHost(path);
    const std::string name = Platform::ToUtf8(wide);
    const std::string plain = Testing::ReadFileBytes(name);
    Counter sink;
    {
        DocumentFileBuffer buffer(wide);
        {
            Archive ar(&buffer);
            ar.SetFieldSink(&sink);
            for (Order& order : theDocument.orders) {
                order.Write(ar);
            }
        }
        buffer.Close();
    }
    const std::string traced = Testing::ReadFileBytes(name);
    ++documents;
    events += sink.events;
    if (traced != plain) {
        ++differences;
        std::cerr << name << ": written with a field sink: " << Testing::DescribeDifference(plain, traced);
    }
    return result;
}

int main(int argc, char** argv)
{
    const int result = scenario_main(argc, argv);
    std::cerr << documents << " documents written with a field sink, " << events << " fields told, " << differences
              << " differences\n";
    if (result != 0) {
        return result;
    }
    return differences == 0 ? 0 : 1;
}
