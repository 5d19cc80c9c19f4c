#pragma once

#include "framework/serializable.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <string>

namespace ItUnitechnik::Testing {

// The text a record writes; its Write must report success.
inline std::wstring Written(Serializable& record)
{
    StringArchive s;
    EXPECT_TRUE(record.Write(s.archive));
    return s.Text();
}

} // namespace ItUnitechnik::Testing
