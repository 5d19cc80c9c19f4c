#pragma once

#include "framework/layout_writer.h"
#include "framework/serializable.h"

namespace ItUnitechnik {

// A record whose lines are its layout: its Write puts that layout on the
// Archive, so the layout beside the class is all a reader of the record needs
// to see. Its Read stays its own, because a record reads by its own steps.
template <class Record>
class LaidOut : public Serializable {
public:
    bool Write(Archive& ar) override { return WriteLayout(ar, static_cast<Record&>(*this)); }

protected:
    ~LaidOut() = default;
};

} // namespace ItUnitechnik
