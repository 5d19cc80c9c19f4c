#pragma once

#include <istream>
#include <streambuf>

namespace ItUnitechnik {

// The one stream every record reads and writes through. It does not own its
// buffer. The stream always works in the classic number formats, whatever the
// host did to the global locale, and formats doubles with a facet of its own
// so that the digits do not depend on a C runtime.
class Archive : public std::basic_iostream<wchar_t> {
public:
    explicit Archive(std::basic_streambuf<wchar_t>* buffer);
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;
    ~Archive() override;

    bool spareFlag = false; // set here and never tested by anything
    bool valid = true;      // cleared by a Read that finds a wrong tag
};

// The test that ends every Read and Write: bad first, then fail, then valid.
bool Healthy(const Archive& ar);

} // namespace ItUnitechnik
