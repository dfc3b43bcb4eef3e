#include "tests/hosts/ctl/VantrelctlFixture.h"

#include <gmock/gmock.h>

#include <fstream>

namespace hosttest {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class Vantrelctl : public VantrelctlFixture {
protected:
    void SetUp() override { startServerWithSample(); }
};

TEST_F(Vantrelctl, loginPrintsTheStatusText) {
    EXPECT_EQ(output({"login"}), "Connected to Vantrel Print Management Server\n");
}

TEST_F(Vantrelctl, aLoginIsRememberedButForThePassword) {
    carryOut({"login"});

    const auto outcome = runProgram({VANTRELCTL_PROGRAM, "--settings", folder / "settings.ini", "login"},
                                    {{"VANTREL_PASSWORD", "geheim"}});

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    std::ifstream settings(folder / "settings.ini");
    const std::string text{std::istreambuf_iterator<char>(settings), {}};
    EXPECT_THAT(text, HasSubstr("admin"));
    EXPECT_THAT(text, Not(HasSubstr("geheim")));
}

TEST_F(Vantrelctl, treeShowsWhatStandsBelowAPath) {
    EXPECT_EQ(output({"tree", "Printers", "--depth", "1"}), "Printers\n├── Berlin\n├── Łódź\n└── München\n");
}

TEST_F(Vantrelctl, treeWithoutAPathBeginsAtTheServer) {
    const auto tree = json({"tree", "--depth", "1"});

    EXPECT_EQ(tree.at("name"), "Vantrel Print Server");
    EXPECT_THAT(below("/"), ElementsAre("Printers", "Queues", "Follow Print", "Local Printers", "Drivers", "Alarms",
                                        "Rules", "Migration"));
}

TEST_F(Vantrelctl, treeAsJsonHasNoChildrenBelowTheDepth) {
    const auto tree = json({"tree", "Printers", "--depth", "1"});

    EXPECT_TRUE(tree.contains("children"));
    EXPECT_FALSE(tree.at("children").at(0).contains("children"));
}

TEST_F(Vantrelctl, treeWithoutADepthReadsEverything) {
    const auto tree = json({"tree", "Printers"});

    const auto& berlin = tree.at("children").at(0);
    EXPECT_EQ(berlin.at("name"), "Berlin");
    EXPECT_FALSE(berlin.at("children").empty());
    EXPECT_TRUE(berlin.at("children").at(0).contains("children"));
}

TEST_F(Vantrelctl, showAsJsonHasPathColumnsAndRows) {
    const auto list = json({"show", "Printers"});

    EXPECT_EQ(list, Json::parse(R"({"path": "Printers", "columns": ["Region Name"],
                                    "rows": [["Berlin"], ["Łódź"], ["München"]]})"));
}

TEST_F(Vantrelctl, showAsTableHasTitlesAndRows) {
    EXPECT_EQ(output({"show", "Printers"}), "Region Name\n-----------\nBerlin\nŁódź\nMünchen\n");
}

TEST_F(Vantrelctl, showAsCsvFollowsTheRules) {
    EXPECT_EQ(output({"show", "Printers", "--format", "csv"}), "Region Name\r\nBerlin\r\nŁódź\r\nMünchen\r\n");
}

TEST_F(Vantrelctl, menuAsJsonHasTextsIdsAndSeparators) {
    EXPECT_EQ(json({"menu", "Printers/Berlin"}), Json::parse(R"([
        {"text": "Create region", "status": "To create a new region", "id": 247},
        {"separator": true},
        {"text": "Delete region", "status": "To delete region", "id": 302}])"));
}

TEST_F(Vantrelctl, menuOfARowIsThatOfItsNode) {
    EXPECT_EQ(json({"menu", "Printers", "--row", "Berlin"}), json({"menu", "Printers/Berlin"}));
}

TEST_F(Vantrelctl, globalOptionsMayStandBehindTheCommand) {
    const auto outcome =
        runProgram({VANTRELCTL_PROGRAM, "show", "Printers", "--server", "127.0.0.1", "--port", port, "--user", "admin",
                    "--password-file", folder / "password", "--settings", folder / "settings.ini"});

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
}

TEST_F(Vantrelctl, aCreatedRegionStandsAfterARestart) {
    createRegion("North");
    restartServer();

    EXPECT_THAT(below("Printers"), Contains("North"));
}

TEST_F(Vantrelctl, anEntryCanBeChosenByItsId) {
    carryOut({"run", "Printers", "247", "--set", "Region Name=North", "--press", "OK"});

    EXPECT_THAT(below("Printers"), Contains("North"));
}

TEST_F(Vantrelctl, anEntryOfARowRunsOnItsNode) {
    carryOut({"run", "Printers", "Create region", "--row", "Berlin", "--set", "Region Name=North", "--press", "OK"});

    EXPECT_THAT(below("Printers/Berlin"), Contains("North"));
}

TEST_F(Vantrelctl, aFormThatIsCancelledChangesNothing) {
    carryOut({"run", "Printers", "Create region", "--set", "Region Name=North", "--press", "Cancel"});

    EXPECT_THAT(below("Printers"), Not(Contains("North")));
}

TEST_F(Vantrelctl, aRenamedRegionStandsAfterARestart) {
    createRegion("North");
    carryOut({"rename", "Printers/North", "Far North"});
    restartServer();

    EXPECT_THAT(below("Printers"), Contains("Far North"));
    EXPECT_THAT(below("Printers"), Not(Contains("North")));
}

TEST_F(Vantrelctl, aMovedRegionStandsAfterARestart) {
    createRegion("North");
    createRegion("South");
    carryOut({"move", "Printers/North", "Printers/South"});
    restartServer();

    EXPECT_THAT(below("Printers/South"), ElementsAre("North"));
    EXPECT_THAT(below("Printers"), Not(Contains("North")));
}

TEST_F(Vantrelctl, aRegionCanBeMovedToTheTop) {
    createRegion("North");
    createRegion("South");
    carryOut({"move", "Printers/North", "Printers/South"});

    carryOut({"move", "Printers/South/North", "Printers"});

    EXPECT_THAT(below("Printers"), Contains("North"));
}

TEST_F(Vantrelctl, aMovedPrinterStandsAfterARestart) {
    const auto printer = below("Printers/München").back();
    createRegion("North");
    carryOut({"move", "Printers/München/" + printer, "Printers/North"});
    restartServer();

    EXPECT_THAT(below("Printers/North"), ElementsAre(printer));
    EXPECT_THAT(below("Printers/München"), Not(Contains(printer)));
}

TEST_F(Vantrelctl, aDeletedPrinterStaysAway) {
    createRegion("North");
    const auto printers = json({"call", "6", "str8:", "u32:7", "u16:0"}).at("records");
    ASSERT_FALSE(printers.empty());
    const std::string name = printers.at(0).at("name");

    carryOut({"run", "Printers/München", "Delete Printer", "--row", name, "--answer", "ok"});
    restartServer();

    EXPECT_THAT(below("Printers/München"), Not(Contains(name)));
}

TEST_F(Vantrelctl, aDeletedRegionStaysAway) {
    createRegion("North");
    carryOut({"run", "Printers/North", "Delete region", "--answer", "ok"});
    restartServer();

    EXPECT_THAT(below("Printers"), Not(Contains("North")));
}

TEST_F(Vantrelctl, aQuestionAnsweredWithCancelChangesNothing) {
    createRegion("North");
    carryOut({"run", "Printers/North", "Delete region", "--answer", "cancel"});

    EXPECT_THAT(below("Printers"), Contains("North"));
}

TEST_F(Vantrelctl, callPrintsAListWithFieldNames) {
    const auto reply = json({"call", "0", "u8:0", "u32:0", "u16:0"});

    EXPECT_EQ(reply.at("opcode"), 0);
    EXPECT_EQ(reply.at("name"), "ListRegions");
    EXPECT_TRUE(reply.at("records").at(0).contains("parentId"));
}

TEST_F(Vantrelctl, callPrintsASingleReply) {
    const auto printers = json({"call", "6", "str8:", "u32:7", "u16:0"}).at("records");
    const std::string id = printers.at(0).at("id");

    EXPECT_TRUE(json({"call", "76", "str8:" + id}).at("reply").contains("order"));
}

TEST_F(Vantrelctl, callOfACommandWithoutAReplyPrintsItsName) {
    EXPECT_EQ(json({"call", "1", "u8:0", "u32:0", "str16:North"}),
              Json::parse(R"({"opcode": 1, "name": "CreateRegion"})"));
    EXPECT_THAT(below("Printers"), Contains("North"));
}

TEST_F(Vantrelctl, activityHasALineForEachCommandAndNoPassword) {
    carryOut({"--activity", folder / "activity", "show", "Printers"});

    std::ifstream stream(folder / "activity");
    std::vector<std::string> names;
    for (std::string line; std::getline(stream, line);) {
        EXPECT_THAT(line, Not(HasSubstr("geheim")));
        const auto entry = Json::parse(line);
        names.push_back(entry.at("name"));
        EXPECT_EQ(entry.at("target"), "127.0.0.1:" + port);
        EXPECT_EQ(entry.at("outcome"), "done");
    }
    EXPECT_THAT(names, Contains("Login"));
    EXPECT_THAT(names, Contains("ListRegions"));
}

TEST_F(Vantrelctl, oddNamesSurvive) {
    for (const std::string name : {"a/b", "say \"hi\"", "two\nlines", "back\\slash", " "}) {
        createRegion(name);

        EXPECT_THAT(below("Printers"), Contains(name));
    }
}

TEST_F(Vantrelctl, aNameOutsideTheBasicPlaneIsTaken) {
    const auto before = below("Printers").size();

    createRegion("\xF0\x9F\x96\xA8");
    carryOut({"rename", "Printers/Berlin", "\xF0\x9F\x96\xA8 Berlin"});

    EXPECT_EQ(below("Printers").size(), before + 1);
    EXPECT_THAT(below("Printers"), Not(Contains("Berlin")));
}

TEST_F(Vantrelctl, aSlashInANameIsEscapedInAPath) {
    createRegion("a/b");

    EXPECT_EQ(json({"show", "Printers/a\\/b"}).at("path"), "Printers/a\\/b");
}

TEST_F(Vantrelctl, aLineBreakInANameIsVisibleInTheTree) {
    createRegion("two\nlines");

    EXPECT_THAT(output({"tree", "Printers", "--depth", "1"}), HasSubstr("two␊lines"));
}

} // namespace
} // namespace hosttest
