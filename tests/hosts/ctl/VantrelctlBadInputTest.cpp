#include "tests/hosts/ctl/VantrelctlFixture.h"
#include "tests/support/ScriptedServer.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace hosttest {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class VantrelctlBadInput : public VantrelctlFixture {
protected:
    void SetUp() override { startServerWithSample(); }

    // Checks the exit status and that one line says why.
    void expectFailure(const Outcome& outcome, int status, const std::string& why) const {
        EXPECT_EQ(outcome.status, status) << outcome.errors;
        EXPECT_EQ(outcome.output, "");
        EXPECT_THAT(outcome.errors, StartsWith("vantrelctl: "));
        EXPECT_THAT(outcome.errors, HasSubstr(why));
        EXPECT_EQ(std::ranges::count(outcome.errors, '\n'), 1) << outcome.errors;
    }
};

// Needs no server.
class VantrelctlAlone : public VantrelctlBadInput {
protected:
    void SetUp() override {
        keep("password", "geheim\n");
        port = "1";
    }
};

TEST_F(VantrelctlBadInput, aWrongPasswordEndsWith3) {
    keep("password", "falsch\n");

    expectFailure(ctl({"tree"}), 3, "Invalid username or password!");
}

TEST_F(VantrelctlBadInput, anUnknownNodeIsRefusedWithTheChoices) {
    expectFailure(ctl({"show", "Printers/Nowhere"}), 1, "there is \"Berlin\", \"Łódź\", \"München\"");
}

TEST_F(VantrelctlBadInput, anUnknownEntryIsRefusedWithTheChoices) {
    expectFailure(ctl({"run", "Printers", "Destroy"}), 1, "there is \"Create region\"");
}

TEST_F(VantrelctlBadInput, anUnknownRowIsRefusedWithTheChoices) {
    expectFailure(ctl({"menu", "Printers", "--row", "Nowhere"}), 1, "there is \"Berlin\"");
}

TEST_F(VantrelctlBadInput, anUnknownLabelIsRefusedWithTheChoices) {
    expectFailure(ctl({"run", "Printers", "Create region", "--set", "Colour=red"}), 1, "there is \"Region Name\"");
}

TEST_F(VantrelctlBadInput, aFormThatIsLeftOpenIsCancelled) {
    expectFailure(ctl({"run", "Printers", "Create region", "--set", "Region Name=North"}), 1, "was left open");

    EXPECT_THAT(below("Printers"), Not(Contains("North")));
}

TEST_F(VantrelctlBadInput, aDisabledButtonIsNotPressed) {
    expectFailure(ctl({"run", "Printers", "Create region", "--press", "OK"}), 1, "\"OK\" is disabled");
}

TEST_F(VantrelctlBadInput, aStepThatIsLeftOverIsAnError) {
    expectFailure(ctl({"run", "Printers", "Create region", "--press", "Cancel", "--answer", "ok"}), 1,
                  "--answer \"ok\"");
}

TEST_F(VantrelctlBadInput, aQuestionWithoutAnAnswerChangesNothing) {
    createRegion("North");

    expectFailure(ctl({"run", "Printers/North", "Delete region"}), 1,
                  "Are you sure you want to delete the selected region?");
    EXPECT_THAT(below("Printers"), Contains("North"));
}

TEST_F(VantrelctlBadInput, aRegionThatIsNotEmptyStays) {
    expectFailure(ctl({"run", "Printers/Berlin", "Delete region", "--answer", "ok"}), 1, "Cannot delete");

    EXPECT_THAT(below("Printers"), Contains("Berlin"));
}

TEST_F(VantrelctlBadInput, aNameThatIsTakenIsNotTakenAgain) {
    createRegion("North");

    expectFailure(ctl({"run", "Printers", "Create region", "--set", "Region Name=North", "--press", "OK"}), 1,
                  "did not carry out");
}

TEST_F(VantrelctlBadInput, aRenameToATakenNameIsNotCarriedOut) {
    createRegion("North");

    expectFailure(ctl({"rename", "Printers/North", "Berlin"}), 1, "did not carry out the command RenameRegion");
    EXPECT_THAT(below("Printers"), Contains("North"));
}

TEST_F(VantrelctlBadInput, aPrinterOffersNoRename) {
    const auto printer = below("Printers/München").back();

    expectFailure(ctl({"rename", "Printers/München/" + printer, "Other"}), 1, "can't be renamed");
}

TEST_F(VantrelctlBadInput, aRegionIsNotMovedBelowItself) {
    const auto inner = below("Printers/Berlin").front();

    expectFailure(ctl({"move", "Printers/Berlin", "Printers/Berlin/" + inner}), 1,
                  "did not carry out the command MoveRegion");
    EXPECT_THAT(below("Printers"), Contains("Berlin"));
}

TEST_F(VantrelctlBadInput, aPrinterDoesNotGoToTheTop) {
    const auto printer = below("Printers/München").back();

    expectFailure(ctl({"move", "Printers/München/" + printer, "Printers"}), 1, "does not take");
}

TEST_F(VantrelctlBadInput, aTextThatNoCommandCanCarryIsRefused) {
    expectFailure(ctl({"rename", "Printers/Berlin", std::string(32768, 'x')}), 2, "32767");

    EXPECT_THAT(below("Printers"), Contains("Berlin"));
}

TEST_F(VantrelctlBadInput, anOutputThatCantBeWrittenIsAnError) {
    const auto outcome = runProgramInto("/dev/full", withConnection({"tree", "--depth", "1"}));

    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("can't be written"));
}

TEST_F(VantrelctlAlone, aServerThatIsDownEndsWith3) {
    port = std::to_string(support::ScriptedServer::unusedPort());

    expectFailure(ctl({"tree"}), 3, "Server unavailable");
}

TEST_F(VantrelctlAlone, aServerThatSendsGarbageEndsWith3) {
    support::ScriptedServer server([](auto& connection) {
        connection.expectFrame();
        connection.send(support::Bytes(64, 0xEE));
        connection.close();
    });
    port = std::to_string(server.port());

    expectFailure(ctl({"login"}), 3, "Server unavailable");
}

TEST_F(VantrelctlAlone, aServerThatClosesEndsWith3) {
    support::ScriptedServer server([](auto& connection) { connection.close(); });
    port = std::to_string(server.port());

    expectFailure(ctl({"login"}), 3, "Server unavailable");
}

TEST_F(VantrelctlAlone, withoutAServerEndsWith3) {
    expectFailure(runProgram({VANTRELCTL_PROGRAM, "--settings", folder / "none.ini", "tree"}), 3, "--server HOST");
}

TEST_F(VantrelctlAlone, withoutAPasswordEndsWith3) {
    expectFailure(runProgram({VANTRELCTL_PROGRAM, "--settings", folder / "none.ini", "--server", "127.0.0.1", "--port",
                              "1", "--user", "admin", "tree"},
                             {{"VANTREL_PASSWORD", ""}}),
                  3, "VANTREL_PASSWORD");
}

TEST_F(VantrelctlAlone, aPasswordTooLongForALoginEndsWith3) {
    keep("password", std::string(123, 'x'));

    expectFailure(ctl({"login"}), 3, "longer than the 122 characters");
}

TEST_F(VantrelctlAlone, settingsThatAreGarbageAreNoSettings) {
    keep("settings.ini", "\xFF\xFE garbage");

    expectFailure(runProgram({VANTRELCTL_PROGRAM, "--settings", folder / "settings.ini", "tree"}), 3, "--server HOST");
}

TEST_F(VantrelctlAlone, anUnknownOptionEndsWith2) {
    expectFailure(ctl({"tree", "--colour"}), 2, "--colour");
}

TEST_F(VantrelctlAlone, anUnknownCommandEndsWith2) {
    expectFailure(ctl({"destroy"}), 2, "destroy");
}

TEST_F(VantrelctlAlone, anUnknownOpcodeEndsWith2) {
    expectFailure(ctl({"call", "999"}), 2, "999");
}

TEST_F(VantrelctlAlone, aFieldOfNoKindEndsWith2) {
    expectFailure(ctl({"call", "6", "u9:1"}), 2, "u8 u16 u32 i32 i64 f32 bool str8 str16 uuid none");
}

TEST_F(VantrelctlAlone, anActivityFileThatCantBeWrittenIsAnError) {
    expectFailure(ctl({"--activity", "/dev/null/x", "tree"}), 1, "/dev/null/x");
}

TEST_F(VantrelctlAlone, helpNamesEveryCommand) {
    const auto outcome = runProgram({VANTRELCTL_PROGRAM, "--help"});

    EXPECT_EQ(outcome.status, 0);
    for (const auto* const command : {"login", "tree", "show", "menu", "run", "rename", "move", "call", "commands"}) {
        EXPECT_THAT(outcome.output, HasSubstr(command));
    }
}

TEST_F(VantrelctlAlone, helpOfACommandHasAnExample) {
    EXPECT_THAT(runProgram({VANTRELCTL_PROGRAM, "run", "--help"}).output, HasSubstr("Example:"));
}

TEST_F(VantrelctlAlone, versionIsPrinted) {
    EXPECT_EQ(runProgram({VANTRELCTL_PROGRAM, "--version"}).output, "vantrelctl 1.0.2\n");
}

TEST_F(VantrelctlAlone, commandsNeedsNoServer) {
    const auto outcome = runProgram({VANTRELCTL_PROGRAM, "commands", "--format", "json"});

    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(Json::parse(outcome.output).size(), 79U);
}

} // namespace
} // namespace hosttest
