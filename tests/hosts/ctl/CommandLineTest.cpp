#include "hosts/ctl/CommandLine.h"
#include "hosts/ctl/Failure.h"

#include <gtest/gtest.h>

namespace {

using ctl::CommandKind;
using ctl::Options;
using Kind = ctl::Step::Kind;

std::variant<Options, ctl::Information> parse(std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "vantrelctl");
    return ctl::parseCommandLine(static_cast<int>(arguments.size()), arguments.data());
}

Options options(std::vector<const char*> arguments) {
    return std::get<Options>(parse(std::move(arguments)));
}

TEST(CommandLine, globalOptionsStandBeforeOrBehindTheCommand) {
    const auto before = options({"--server", "host", "--port", "5005", "tree"});
    const auto behind = options({"tree", "--server", "host", "--port", "5005"});

    EXPECT_EQ(before.server, "host");
    EXPECT_EQ(behind.server, "host");
    EXPECT_EQ(behind.port, 5005);
    EXPECT_EQ(behind.command, CommandKind::tree);
}

TEST(CommandLine, stepsKeepTheOrderInWhichTheyWereGiven) {
    const auto run = options({"run", "Printers", "Entry", "--press", "One", "--set", "A=1", "--answer", "ok", "--set",
                              "B=2", "--press", "Two"});

    ASSERT_EQ(run.steps.size(), 5U);
    EXPECT_EQ(run.steps[0].label, u"One");
    EXPECT_EQ(run.steps[1].label, u"A");
    EXPECT_EQ(run.steps[2].kind, Kind::answer);
    EXPECT_EQ(run.steps[3].label, u"B");
    EXPECT_EQ(run.steps[4].label, u"Two");
}

TEST(CommandLine, aStepTakesOneValueOnly) {
    const auto run = options({"run", "--press", "One", "Printers", "Entry"});

    EXPECT_EQ(run.path, "Printers");
    EXPECT_EQ(run.entry, "Entry");
}

TEST(CommandLine, aNameLikeACommandIsAName) {
    EXPECT_EQ(options({"rename", "Printers/x", "login"}).newName, "login");
    EXPECT_EQ(options({"show", "tree"}).path, "tree");
}

TEST(CommandLine, aCallTakesItsFieldsInOrder) {
    const auto call = options({"call", "6", "str8:", "u32:-7", "u16:0"});

    EXPECT_EQ(call.opcode, "6");
    EXPECT_EQ(call.fields, (std::vector<std::string>{"str8:", "u32:-7", "u16:0"}));
}

TEST(CommandLine, formatsAreTakenInAnyCase) {
    EXPECT_EQ(options({"tree", "--format", "JSON"}).format, ctl::Format::json);
    EXPECT_EQ(options({"tree"}).format, ctl::Format::table);
}

TEST(CommandLine, whatMakesNoSenseIsAUsageError) {
    const std::vector<std::vector<const char*>> wrong{{},
                                                      {"--bogus", "tree"},
                                                      {"bogus"},
                                                      {"tree", "a", "b"},
                                                      {"show"},
                                                      {"tree", "--port", "70000"},
                                                      {"tree", "--port", "0"},
                                                      {"tree", "--format", "xml"},
                                                      {"tree", "--depth", "-1"},
                                                      {"run", "p", "e", "--answer", "perhaps"},
                                                      {"run", "p", "e", "--set", "label"},
                                                      {"tree", "--password", "geheim"}};
    for (const auto& arguments : wrong) {
        try {
            parse(arguments);
            ADD_FAILURE() << "taken";
        } catch (const ctl::Failure& failure) {
            EXPECT_EQ(failure.status(), ctl::ExitStatus::usage);
            EXPECT_EQ(std::string(failure.what()).find('\n'), std::string::npos);
        }
    }
}

TEST(CommandLine, helpIsInformation) {
    EXPECT_TRUE(std::holds_alternative<ctl::Information>(parse({"--help"})));
    EXPECT_TRUE(std::holds_alternative<ctl::Information>(parse({"run", "--help"})));
    EXPECT_TRUE(std::holds_alternative<ctl::Information>(parse({"--version"})));
}

} // namespace
