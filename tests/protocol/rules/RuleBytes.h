#pragma once

#include "tests/protocol/RecordBytes.h"

#include <gtest/gtest.h>

// Checks of the bytes of every record and request of the rules.
namespace protocol::test {

// 0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480 on the wire.
inline const std::string uuidFields = "24 00 30 66 38 65 32 61 36 34 2D 35 62 31 64 2D 34 66 30 65 2D 39 63 33 37 2D"
                                      "36 61 32 64 35 31 62 37 65 34 38 30 ";

inline wire::Uuid ordinaryUuid() {
    return wire::parseUuid("0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480");
}

// The record is written as these fields and read back from them, whatever follows them.
template <Record R>
void expectFields(const R& record, const std::string& fields) {
    EXPECT_EQ(hexOf(record), support::toHex(support::dataMessage(support::hex(fields))));
    EXPECT_EQ(fromFields<R>(fields), record);
    EXPECT_EQ(fromFields<R>(support::hex(fields + "AA BB CC")), record);
}

// Every message that ends before its fields do is too short.
template <Record R>
void expectNoShorterMessage(const std::string& fields) {
    const support::Bytes all = support::hex(fields);
    for (std::size_t size = 0; size < all.size(); ++size) {
        try {
            static_cast<void>(fromFields<R>(support::Bytes(all.begin(), all.begin() + static_cast<long>(size))));
            ADD_FAILURE() << size << " bytes were enough";
        } catch (const char* text) {
            EXPECT_STREQ(text, "Reading outside scope");
        }
    }
}

// The texts that a name can be, between the fields before and after it.
template <Record R>
void expectNames(const std::string& before, const std::string& after) {
    const auto nameOf = [&](const support::Bytes& name) {
        return fromFields<R>(support::hex(before) + name + support::hex(after)).name;
    };
    EXPECT_EQ(nameOf(support::hex("00 00")), u"");
    EXPECT_EQ(nameOf(support::hex("05 00 41 00 42 00 43")), u"AB");      // an odd count loses its last byte
    EXPECT_EQ(nameOf(support::hex("04 00 3D D8 00 DE")), u"\U0001FA00"); // U+1F600, moved by the conversion
    EXPECT_EQ(nameOf(support::hex("FE FF") + repeated(32767, "41 00")), std::u16string(32767, u'A'));

    auto record = fromFields<R>(before + "00 00" + after);
    record.name = u"\U0001F600";
    EXPECT_EQ(hexOf(record), support::toHex(support::dataMessage(support::hex(before + "04 00 3E D8 00 DE" + after))));
    record.name = std::u16string(32767, u'A');
    EXPECT_EQ(hexOf(record), support::toHex(support::dataMessage(support::hex(before) + support::hex("FE FF") +
                                                                 repeated(32767, "41 00") + support::hex(after))));
}

} // namespace protocol::test
