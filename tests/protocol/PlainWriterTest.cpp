#include "protocol/PlainWriter.h"

#include "tests/support/Bytes.h"
#include "wire/Message.h"

#include <gtest/gtest.h>

namespace protocol {
namespace {

struct Written {
    support::Bytes bytes;
    bool plain = false;
};

template <class Text>
Written writtenPlainly(const Text& text) {
    support::Bytes memory(text.size() * sizeof(text[0]) + 2, 0xEE);
    PlainWriter writer(memory.data());
    writer.text(text);
    return {memory, writer.plain()};
}

support::Bytes ofMessage(wire::WideStringView text) {
    wire::Message message;
    message.beginMessage(0);
    message.putWideString(text);
    const auto bytes = message.bytes().subspan(wire::Message::headerSize);
    return {bytes.begin(), bytes.end()};
}

wire::WideString letters(std::size_t count) {
    wire::WideString text;
    for (std::size_t index = 0; index < count; ++index) {
        text.push_back(static_cast<char16_t>(u'a' + index % 26));
    }
    return text;
}

TEST(PlainWriter, wideTextOfEveryLengthIsWrittenAsAMessageWritesIt) {
    for (std::size_t count = 0; count < 70; ++count) {
        const Written written = writtenPlainly(wire::WideStringView(letters(count)));
        EXPECT_TRUE(written.plain) << count;
        EXPECT_EQ(written.bytes, ofMessage(letters(count))) << count;
    }
}

TEST(PlainWriter, narrowTextOfEveryLengthIsCopied) {
    for (std::size_t count = 0; count < 70; ++count) {
        const std::string text(count, 'q');
        support::Bytes expected{static_cast<std::uint8_t>(count), 0};
        expected.insert(expected.end(), count, 'q');
        EXPECT_EQ(writtenPlainly(std::string_view(text)).bytes, expected) << count;
    }
}

TEST(PlainWriter, aZeroOrASurrogateIsNoticedAtEveryPlace) {
    for (const char16_t strange : {u'\0', char16_t{0xD800}, char16_t{0xDBFF}, char16_t{0xDC00}, char16_t{0xDFFF}}) {
        for (std::size_t count = 1; count < 40; ++count) {
            for (std::size_t place = 0; place < count; ++place) {
                wire::WideString text = letters(count);
                text[place] = strange;
                EXPECT_FALSE(writtenPlainly(wire::WideStringView(text)).plain) << count << " at " << place;
            }
        }
    }
}

TEST(PlainWriter, theNeighboursOfSurrogatesArePlain) {
    for (const char16_t unit : {char16_t{1}, char16_t{0xD7FF}, char16_t{0xE000}, char16_t{0xFFFF}}) {
        for (std::size_t count = 1; count < 20; ++count) {
            EXPECT_TRUE(writtenPlainly(wire::WideStringView(wire::WideString(count, unit))).plain)
                << static_cast<int>(unit);
        }
    }
}

TEST(PlainWriter, aByteOrderMarkIsNoticedOnlyInFront) {
    EXPECT_FALSE(writtenPlainly(wire::WideStringView(u"\uFEFFabc")).plain);
    EXPECT_FALSE(writtenPlainly(wire::WideStringView(u"\uFFFE")).plain);
    EXPECT_TRUE(writtenPlainly(wire::WideStringView(u"a\uFEFF")).plain);
}

TEST(PlainWriter, whatWasNoticedStaysNoticed) {
    support::Bytes memory(64);
    PlainWriter writer(memory.data());
    writer.text(wire::WideStringView(u"a\U0001F600"));
    writer.text(wire::WideStringView(u"plain"));

    EXPECT_FALSE(writer.plain());
}

} // namespace
} // namespace protocol
