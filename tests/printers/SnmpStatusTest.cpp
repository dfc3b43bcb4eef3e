#include "printers/SnmpStatus.h"

#include "wire/Text.h"

#include <gtest/gtest.h>

namespace {

std::string textOf(std::uint8_t status) {
    return wire::toUtf8(printers::snmpStatusText(status));
}

TEST(SnmpStatus, hasAWordForEachSmallNumber) {
    EXPECT_EQ(textOf(0), "");
    EXPECT_EQ(textOf(1), "WARNING:Low Paper");
    EXPECT_EQ(textOf(2), "WARNING:Low Toner");
    EXPECT_EQ(textOf(3), "WARNING:Service Needed");
    EXPECT_EQ(textOf(4), "ERROR:No Paper");
    EXPECT_EQ(textOf(5), "ERROR:No Toner");
    EXPECT_EQ(textOf(6), "ERROR:Offline");
    EXPECT_EQ(textOf(7), "ERROR:Door Open");
    EXPECT_EQ(textOf(8), "ERROR:Paper Jam");
    EXPECT_EQ(textOf(9), "ERROR:No Contact");
}

TEST(SnmpStatus, ofTheDigit4IsSnmpStatusInTheTree) {
    EXPECT_EQ(textOf(0x34), "SNMP status");
}

TEST(SnmpStatus, ofAnyOtherByteIsSnmpStatus) {
    EXPECT_EQ(textOf(10), "SNMP status");
    EXPECT_EQ(textOf('0'), "SNMP status");
    EXPECT_EQ(textOf(255), "SNMP status");
}

} // namespace
