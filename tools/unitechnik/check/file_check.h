#pragma once

#include "findings/findings.h"
#include "reading/tolerant_reading.h"

#include <optional>
#include <string>
#include <vector>

namespace ItUnitechnik::Tool::Check {

// The check of a Unitechnik file: read tolerantly, then what a plant would
// trip over, at the file's own lines and columns: where the reading stopped
// (a line it cannot read, the file ending inside a record, bytes behind the
// last order), lines not ended by CR LF, and what its records hold (numbers
// wider than their fields, coordinates below zero, elements without a
// contour). The places of the records come from writing them again in
// memory: the tolerant reading reads a file the way the writer wrote it.
std::vector<Finding> CheckFile(const std::string& path, const std::string& bytes);

// Where the tolerant reading stopped, as a finding (UT201, UT203 or UT204);
// nothing for a document read to its end.
std::optional<Finding> StopFinding(const std::string& path, const TolerantDocument& document);

} // namespace ItUnitechnik::Tool::Check
