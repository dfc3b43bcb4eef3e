#include "hosts/ctl/Script.h"
#include "hosts/ctl/Failure.h"

#include <gmock/gmock.h>

#include <sstream>

namespace hosttest {
namespace {

using testing::HasSubstr;

std::vector<ctl::ScriptLine> read(const std::string& text, ctl::Format format = ctl::Format::table) {
    std::istringstream stream(text);
    return ctl::readScript(stream, format);
}

std::string refusalOf(const std::string& text) {
    try {
        read(text);
    } catch (const ctl::Failure& failure) {
        EXPECT_EQ(failure.status(), ctl::ExitStatus::usage);
        return failure.what();
    }
    return {};
}

TEST(ReadScript, eachLineIsACommandWithItsNumber) {
    const auto lines = read("# a comment\nlogin\n\nshow \"Printers\"  # another\n");

    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].number, 2U);
    EXPECT_EQ(lines[0].options.command, ctl::CommandKind::login);
    EXPECT_EQ(lines[1].number, 4U);
    EXPECT_EQ(lines[1].options.path, "Printers");
}

TEST(ReadScript, theFormatIsThatOfTheScriptUnlessTheLineTellsIt) {
    const auto lines = read("show Printers\nshow Printers --format csv", ctl::Format::json);

    EXPECT_EQ(lines[0].options.format, ctl::Format::json);
    EXPECT_EQ(lines[1].options.format, ctl::Format::csv);
}

TEST(ReadScript, aMistakeIsToldWithItsLine) {
    EXPECT_THAT(refusalOf("login\nfetch Printers"), HasSubstr("Line 2: There is no command \"fetch\""));
    EXPECT_THAT(refusalOf("show 'Printers"), HasSubstr("Line 1: A ' is not closed"));
}

TEST(ReadScript, aLineHasNoConnectionOfItsOwn) {
    EXPECT_THAT(refusalOf("show Printers --server other"), HasSubstr("Line 1: "));
    EXPECT_THAT(refusalOf("script more"), HasSubstr("Line 1: "));
    EXPECT_THAT(refusalOf("--help"), HasSubstr("Line 1: "));
}

} // namespace
} // namespace hosttest
