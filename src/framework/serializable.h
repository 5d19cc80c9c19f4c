#pragma once

namespace ItUnitechnik {

class Archive;

// Every record of the format reads and writes itself through an Archive.
// No virtual destructor: records are never deleted through this interface.
class Serializable {
public:
    virtual bool Read(Archive& ar) = 0;
    virtual bool Write(Archive& ar) = 0;

protected:
    Serializable() = default;
    Serializable(const Serializable&) = default;
    Serializable& operator=(const Serializable&) = default;
    ~Serializable() = default;
};

} // namespace ItUnitechnik
