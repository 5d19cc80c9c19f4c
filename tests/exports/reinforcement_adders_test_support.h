// The fixture of the tests of the reinforcement adders: a document with one
// order of version 600, and the calls the tests make through it.
#pragma once

#include "exports/document.h"

#include "itunitechnik.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace ItUnitechnik::ReinforcementAddersTesting {

using Testing::HostText;
using Testing::StringArchive;

class ReinforcementAddersTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        theDocument.orders.clear();
        Start(600);
    }
    void TearDown() override { theDocument.orders.clear(); }

    static void Start(uint16_t version)
    {
        const double placement[9] = {0, 0, 0, 0, 0, 0, 0, 0, 0};
        startOrder(1, 1, placement, version, HostText(u"E"), 0.0, true);
    }
    static ElementPart& Element() { return theDocument.orders.back().elementParts.back(); }

    static int32_t AddMat(const std::u16string& name = u"M")
    {
        const int32_t position[3] = {0, 0, 0};
        return addSteelmat(HostText(name.c_str()), 0, 0, 0, 0, 1, position);
    }

    static int32_t AddCfs(int32_t flagsCode = 0)
    {
        const int32_t position[3] = {0, 0, 0};
        return addCFSRodstock(0, HostText(u"D"), 0, 0, 0, position, 0, 0, HostText(u"X"), 0, 0, 0, 0, flagsCode);
    }

    // The loose bars as the "RODSTOCK" record writes them.
    static std::wstring LooseBarsText()
    {
        StringArchive out;
        EXPECT_TRUE(Element().rodstockData.Write(out.archive));
        return out.Text();
    }
};

} // namespace ItUnitechnik::ReinforcementAddersTesting
