#include "records/reinforcement/bending_form_free.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

bool BendingFormSegment::Read(Archive& ar)
{
    ar >> length >> angle;
    return Healthy(ar);
}

bool BendingFormPart::Read(Archive& ar)
{
    std::int32_t count = 0;
    ar >> partNumber >> count;
    // Appended whatever the stream says: a short line leaves a segment of
    // 0, 0 behind. The loop ends once the stream has failed, so a count from
    // the file takes no more than the file holds.
    for (std::int32_t i = 0; i < count && !ar.fail(); ++i) {
        BendingFormSegment segment(0, 0);
        segment.Read(ar);
        segments.push_back(segment);
    }
    return Healthy(ar);
}

bool BendingFormFree::Read(Archive& ar)
{
    formCode = ReadToken(ar);
    std::int32_t count = 0;
    ar >> count;
    ReadElements(
        ar, count, [&] { return BendingFormPart(); }, parts);
    return Healthy(ar);
}

void BendingFormFree::buildFromSegments(const std::vector<BendingFormSegment>& entries)
{
    formCode = L"000";
    parts.clear();
    BendingFormPart current(1);
    std::size_t handled = 0;
    for (const BendingFormSegment& entry : entries) {
        current.segments.push_back(entry);
        ++handled;
        if (handled % 6 == 0) {
            parts.push_back(current);
            current = BendingFormPart(current.partNumber + 1);
        }
    }
    if (handled % 6 != 0) {
        parts.push_back(current);
    }
}

} // namespace ItUnitechnik
