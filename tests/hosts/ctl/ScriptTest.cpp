#include "hosts/ctl/Script.h"
#include "hosts/ctl/Failure.h"
#include "tests/hosts/ctl/VantrelctlFixture.h"

#include <gmock/gmock.h>

#include <sstream>

namespace hosttest {
namespace {

using testing::ElementsAre;
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

class Script : public VantrelctlFixture {
protected:
    Outcome script(const std::string& text, const Arguments& more = {}) {
        Arguments command{"script", folder.write("script", text)};
        command.insert(command.end(), more.begin(), more.end());
        return ctl(command);
    }
};

TEST_F(Script, manyCommandsRunOverOneLoginAndSeeEachOther) {
    startServerWithSample();

    const auto outcome = script("run Printers 'Create region' --set 'Region Name=North' --press OK\n"
                                "run Printers/North 'Create region' --set 'Region Name=Hall 1' --press OK\n"
                                "tree Printers/North --format json\n",
                                {"--activity", folder / "activity"});

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_THAT(outcome.output, HasSubstr("Hall 1"));
    EXPECT_THAT(below("Printers/North"), ElementsAre("Hall 1"));
    std::ifstream activity(folder / "activity");
    const std::string log{std::istreambuf_iterator<char>(activity), {}};
    EXPECT_NE(log.find("\"Login\""), std::string::npos);
    EXPECT_EQ(log.find("\"GetPublicKey\"", log.rfind("\"Login\"")), std::string::npos) << "there is one login";
}

TEST_F(Script, stopsAtTheFirstFailureWithItsLine) {
    startServerWithSample();

    const auto outcome = script("show Printers/Nowhere\n"
                                "run Printers 'Create region' --set 'Region Name=North' --press OK\n");

    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("Line 1: "));
    EXPECT_THAT(below("Printers"), testing::Not(testing::Contains("North")));
}

TEST_F(Script, goesOnWhenItIsToldToAndSumsUp) {
    startServerWithSample();

    const auto outcome = script("show Printers/Nowhere\n"
                                "run Printers 'Create region' --set Wrong=1 --press OK\n"
                                "run Printers 'Create region' --set 'Region Name=North' --press OK\n",
                                {"--keep-going"});

    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("Line 1: "));
    EXPECT_THAT(outcome.errors, HasSubstr("Line 2: "));
    EXPECT_THAT(outcome.errors, HasSubstr("2 of 3 commands failed"));
    EXPECT_THAT(below("Printers"), testing::Contains("North"));
}

TEST_F(Script, aMistakeAnywhereMeansThatNothingIsDone) {
    startServerWithSample();

    const auto outcome = script("run Printers 'Create region' --set 'Region Name=North' --press OK\nfetch\n");

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(below("Printers"), testing::Not(testing::Contains("North")));
}

TEST_F(Script, aFileThatCannotBeReadIsRefused) {
    startServerWithSample();

    EXPECT_EQ(ctl({"script", folder / "missing"}).status, 2);
    EXPECT_EQ(ctl({"script", folder / ""}).status, 2);
}

TEST_F(Script, withoutAServerThereIsNoConnection) {
    startServerWithSample();
    stopServer();

    EXPECT_EQ(script("show Printers\n").status, 3);
}

} // namespace
} // namespace hosttest
