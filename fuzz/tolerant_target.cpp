// The tolerant reading on the fuzzer's bytes as the bytes of a file; what it
// read writes itself again.
#include "framework/archive.h"
#include "reading/tolerant_reading.h"

#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ItUnitechnik;
    TolerantDocument document = ReadTolerantly(std::string(reinterpret_cast<const char*>(data), size));
    std::wstringbuf output;
    Archive out(&output);
    for (Order& order : document.orders) {
        order.Write(out);
    }
    return 0;
}
