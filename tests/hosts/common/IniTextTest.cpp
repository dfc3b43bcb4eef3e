#include "hosts/common/IniText.h"

#include <gtest/gtest.h>

namespace common {
namespace {

// The value after it was written and read back.
wire::WideString roundTrip(const wire::WideString& value) {
    auto written = IniText::parse("[vantrel]\n").value();
    EXPECT_TRUE(written.setValue("Name", value));
    const auto read = IniText::parse(written.text());
    return read ? read->value("Name").value_or(u"(none)") : u"(unreadable)";
}

TEST(IniText, plainValuesStandAsAPersonWouldWriteThem) {
    auto settings = IniText::parse("[vantrel]\n").value();
    settings.setValue("ServerName", u"print.example.org");
    settings.setValue("DomainName", u"a=b; c \U0001F5A8 ä");
    EXPECT_EQ(settings.text(),
              "[vantrel]\nServerName=print.example.org\nDomainName=a=b; c \xF0\x9F\x96\xA8 \xC3\xA4\n");
}

TEST(IniText, oddValuesAreEscaped) {
    auto settings = IniText::parse("").value();
    settings.setValue("Name", u" a\n\\b ");
    EXPECT_EQ(settings.text(), "Name=\\u0020a\\u000A\\\\b\\u0020\n");
}

TEST(IniText, anyValueSurvives) {
    const wire::WideString lone{u'x', 0xDC00, 0xD800, u'y', 0xD83D};
    for (const wire::WideString& value :
         {wire::WideString(u""), wire::WideString(u" "), wire::WideString(u"  both ends  "),
          wire::WideString(u"two\r\nlines\n"), wire::WideString(u"\ttab\t"), wire::WideString(u"key=value;comment#"),
          wire::WideString(u"[section]"), wire::WideString(u"\\u0041"), wire::WideString(u"\\"),
          wire::WideString(u"\"quoted\""), wire::WideString(u"Grüße Ωмир 字 \U0001F5A8"), wire::WideString(u"\0a\0", 3),
          wire::WideString(u"\uFEFF\uFFFD\u0085\u2028\u00A0"), lone, wire::WideString(65535, u'ж')}) {
        EXPECT_EQ(roundTrip(value), value);
    }
}

TEST(IniText, whatAPersonWroteAroundTheValuesStays) {
    const auto settings = IniText::parse("; mine\r\n\r\n[vantrel]\r\n  ServerPort =  5005 \r\n# end");
    ASSERT_TRUE(settings.has_value());
    EXPECT_EQ(settings->value("ServerPort"), u"5005");
    auto changed = *settings;
    changed.setValue("ServerPort", u"5006");
    changed.setValue("UserName", u"eva");
    EXPECT_EQ(changed.text(), "; mine\n\n[vantrel]\nServerPort=5006\n# end\nUserName=eva\n");
}

TEST(IniText, aNameThatIsNotThereHasNoValue) {
    const auto settings = IniText::parse("A=1\n\n;B=2\n").value();
    EXPECT_FALSE(settings.value("B").has_value());
    EXPECT_FALSE(settings.value("").has_value());
    EXPECT_FALSE(settings.value("a").has_value());
}

TEST(IniText, aNameThatCannotStandInTheFileIsRefused) {
    auto settings = IniText::parse("A=1\n").value();
    for (const auto* name : {"", "a=b", "a b", "a\nb", ";a", "[a]", "\xC3\xA4"}) {
        EXPECT_FALSE(settings.setValue(name, u"x")) << name;
    }
    EXPECT_EQ(settings.text(), "A=1\n");
}

TEST(IniText, whatIsNotOfThisFormIsRefused) {
    using namespace std::string_literals;
    for (const auto& text : {"no equals sign"s, "=value"s, "a b=c"s, "A=\\"s, "A=\\x"s, "A=\\u12"s, "A=\\u12G4"s,
                             "A=\\u+123"s, "A=\xFF\xFE"s, "; \xC3"s, "A=1\0"s, "A=a\rb"s, "[open"s,
                             "\x7F"
                             "ELF"s}) {
        EXPECT_FALSE(IniText::parse(text).has_value()) << text;
    }
}

} // namespace
} // namespace common
