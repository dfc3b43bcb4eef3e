#include "shell/ListParts.h"

#include "tests/shell/ShellFixture.h"

namespace shelltest {
namespace {

using shell::ListPart;

const std::vector<wire::WideString> partTitles{u"Printer Name", u"Jobs In Queue", u"SNMP Status"};

// A list of printers; all columns but the name show the status, and the jobs sort by their number.
class ListParts : public testing::Test {
protected:
    void add(const wire::WideString& status, std::optional<std::int64_t> jobs = 0) {
        const auto name = "P" + std::to_string(pane.unfilteredCount());
        nodes.push_back(std::make_shared<LeafNode>(
            platform, estate,
            Estate::Entry{.key = name, .name = wire::toWide(name), .number = status, .leaf = true, .time = jobs}));
        pane.InsertItem(nodes.back()->resultFields());
        pane.commit();
    }
    void addInState(std::optional<console::RowState> state) {
        const auto name = "P" + std::to_string(pane.unfilteredCount());
        nodes.push_back(std::make_shared<LeafNode>(
            platform, estate,
            Estate::Entry{.key = name, .name = wire::toWide(name), .leaf = true, .state = std::move(state)}));
        pane.InsertItem(nodes.back()->resultFields());
        pane.commit();
    }
    std::shared_ptr<FolderNode> addRegion() {
        auto region = std::make_shared<FolderNode>(platform, estate, Estate::Entry{.key = "r", .name = u"Region"});
        pane.InsertItem(region->resultFields());
        pane.commit();
        return region;
    }
    // "3 with errors [snmp:error]", ...
    Lines parts() const {
        Lines lines;
        for (const ListPart& part : shell::summarize(pane).parts) {
            lines.push_back(std::to_string(part.count) + ' ' + wire::toUtf8(part.text) + " [" +
                            wire::toUtf8(part.filter) + ']');
        }
        return lines;
    }
    // Whether each filter shows as many rows as its part counts.
    void expectFiltersFit() {
        for (const ListPart& part : shell::summarize(pane).parts) {
            pane.filter(part.filter);
            EXPECT_EQ(static_cast<std::int64_t>(pane.rowCount()), part.count) << wire::toUtf8(part.filter);
        }
        pane.filter(u"");
    }

    Estate estate;
    shell::TaskQueue tasks;
    QuietUserInterface ui{tasks};
    support::MemorySettingsStore settings;
    platform::Platform platform{.ui = ui, .settings = settings};
    shell::Observers observers;
    shell::ResultPane pane{observers};
    std::vector<std::shared_ptr<LeafNode>> nodes;
};

TEST_F(ListParts, areStatesErrorsFirstAndThenSums) {
    pane.setTitles(partTitles);
    add(u"Printing", 2);
    add(u"WARNING:Low Toner", 15);
    add(u"ERROR:No Paper");
    add(u"Idle");
    add(u"ERROR:Paper Jam");
    add(u"");
    add(u"Idle");

    EXPECT_EQ(parts(), (Lines{"2 with errors [snmp:error]", "1 with a warning [snmp:warning]", "2 Idle [snmp:=Idle]",
                              "1 Printing [snmp:=Printing]", "17 jobs [jobs:>0]"}));
}

TEST_F(ListParts, areTheStatesThatTheRowsHaveBesideTheirColumns) {
    using console::RowState;
    using console::Severity;
    pane.setTitles({u"Printer Name", u"Model"});
    addInState(RowState{Severity::error, {u"Error: No Paper", u"Idle"}});
    addInState(RowState{Severity::error, {u"Error: Offline", u""}});
    addInState(RowState{Severity::warning, {u"Warning: Low Toner", u"Printing"}});
    addInState(RowState{Severity::none, {u"OK", u"Idle"}});
    addInState(std::nullopt);

    EXPECT_EQ(parts(), (Lines{"2 with errors [state:error]", "1 with a warning [state:warning]", "1 OK [state:OK]"}));
    expectFiltersFit();
    const auto errors = shell::summarize(pane).parts.front();
    EXPECT_EQ(shell::toggled(u"p", errors, pane.titles()), u"p state:error");
    EXPECT_EQ(shell::toggled(u"p state:error", errors, pane.titles()), u"p");
}

TEST_F(ListParts, haveFiltersThatShowWhatTheyCount) {
    pane.setTitles({u"Printer Name", u"Number", u"Printer Status"});
    add(u"Connecting \"the\" client");
    add(u"WARNING:Low Toner");
    add(u"-off:line");
    add(u"ERROR:No Paper");
    add(u"Idle");
    add(u">=Idle");

    EXPECT_EQ(parts().size(), 6U);
    expectFiltersFit();
}

TEST_F(ListParts, areOfAllRowsWhateverTheFilterHides) {
    pane.setTitles(partTitles);
    add(u"Idle");
    add(u"Printing", 1);
    pane.filter(u"snmp:=Idle");

    EXPECT_EQ(parts(), (Lines{"1 Idle [snmp:=Idle]", "1 Printing [snmp:=Printing]", "1 job [jobs:>0]"}));
}

TEST_F(ListParts, leaveOutAStateThatOnlyRepeatsTheTitle) {
    pane.setTitles(partTitles);
    add(u"SNMP status");

    EXPECT_EQ(parts(), Lines());
}

TEST_F(ListParts, leaveOutAColumnWithManyTexts) {
    pane.setTitles(partTitles);
    for (int row = 0; row < 100; ++row) {
        add(u"State " + wire::toWide(std::to_string(row)));
    }

    EXPECT_EQ(parts(), Lines());
}

TEST_F(ListParts, areOnlyOfColumnsWithAStatusOrANumberOfThings) {
    pane.setTitles({u"Model name", u"Number of clients", u"Location"});
    add(u"Berlin", 3);

    EXPECT_EQ(parts(), (Lines{"3 clients [clients:>0]"}));
}

TEST_F(ListParts, sumNothingThatIsNoNumberOfThings) {
    pane.setTitles(partTitles);
    add(u"", std::numeric_limits<std::int64_t>::max());
    add(u"", std::numeric_limits<std::int64_t>::min());
    add(u"", std::nullopt);
    add(u"", 4);

    EXPECT_EQ(parts(), (Lines{"4 jobs [jobs:>0]"}));
}

TEST_F(ListParts, nameTheRowsByTheTitleOfTheirNames) {
    EXPECT_EQ(shell::summarize(pane).noun, u"row");
    pane.setTitles(partTitles);
    add(u"Idle");
    EXPECT_EQ(shell::summarize(pane).noun, u"printer");
    pane.setTitles({u"Queue"});
    EXPECT_EQ(shell::summarize(pane).noun, u"row");
}

TEST_F(ListParts, callRowsOfSeveralKindsJustRows) {
    pane.setTitles(partTitles);
    add(u"Idle");
    const auto region = addRegion();

    EXPECT_EQ(shell::summarize(pane).noun, u"row");
}

TEST_F(ListParts, areCountedAgainOnlyWhenRowsChange) {
    pane.setTitles(partTitles);
    add(u"Idle");
    auto before = pane.revision();

    pane.filter(u"x");
    pane.sort(shell::SortOrder{.column = 1});
    pane.commit();
    EXPECT_EQ(pane.revision(), before);

    nodes.front()->entry.number = u"Printing";
    pane.UpdateItem(nodes.front()->resultFields().itemID);
    pane.commit();
    EXPECT_NE(pane.revision(), before);
    before = pane.revision();
    add(u"Idle");
    EXPECT_NE(pane.revision(), before);
}

TEST(ListPart, isPutIntoTheFilterAndTakenOut) {
    const ListPart errors{.column = 2, .filter = u"snmp:error"};
    const ListPart idle{.column = 2, .filter = u"snmp:=Idle"};
    const ListPart jobs{.column = 1, .filter = u"jobs:>0"};

    EXPECT_EQ(shell::toggled(u"", errors, partTitles), u"snmp:error");
    EXPECT_EQ(shell::toggled(u"hall", errors, partTitles), u"hall snmp:error");
    EXPECT_EQ(shell::toggled(u"snmp:error  hall", errors, partTitles), u"hall");
    EXPECT_EQ(shell::toggled(u"hall snmp:error", errors, partTitles), u"hall");
    EXPECT_EQ(shell::toggled(u"a \"SNMP Status\":ERROR b", errors, partTitles), u"a b") << "it means the same";
    EXPECT_EQ(shell::toggled(u"hall snmp:error", idle, partTitles), u"hall snmp:=Idle") << "no row has two states";
    EXPECT_EQ(shell::toggled(u"snmp:error", jobs, partTitles), u"snmp:error jobs:>0");
    EXPECT_EQ(shell::toggled(u"-snmp:error", idle, partTitles), u"-snmp:error snmp:=Idle");
    EXPECT_EQ(shell::toggled(u"\"hall 1", errors, partTitles), u"snmp:error \"hall 1");
    EXPECT_TRUE(shell::asksFor(u"x snmpstatus:Error", errors, partTitles));
    EXPECT_FALSE(shell::asksFor(u"-snmp:error", errors, partTitles));
    EXPECT_FALSE(shell::asksFor(u"snmp:errors", errors, partTitles));
}

} // namespace
} // namespace shelltest
