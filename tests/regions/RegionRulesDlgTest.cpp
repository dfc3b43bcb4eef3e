#include "regions/RegionRulesDlg.h"

#include "rules/AddRuleEntryDlg.h"
#include "tests/regions/RulesFixture.h"

#include <memory>

namespace {

using platform::Answer;
using regions::RegionRulesDlg;
using rules::AddRuleEntryDlg;

class RegionRulesDialog : public RulesFixture {
protected:
    std::unique_ptr<RegionRulesDlg> opened() {
        auto dialog = std::make_unique<RegionRulesDlg>(platform_, 42);
        dialog->open();
        return dialog;
    }
};

TEST_F(RegionRulesDialog, listsTheRulesOfTheRegionInItsOwnWordsForTheirTypes) {
    const std::vector<std::pair<std::uint8_t, wire::WideString>> types{
        {1, u"Rule group"},     {2, u"Page limit"},         {3, u"Price Plan"},     {4, u"Handover"},
        {5, u"Parse printjob"}, {6, u"SNMP Query printer"}, {7, u"Client billing"}, {10, u"Short Id"}};
    for (const auto& [type, word] : types) {
        estate_.entriesOfRegion[42].push_back(samples::entry("e", type, u"Rule"));
    }

    const auto dialog = opened();

    EXPECT_EQ(dialog->title(), u"Region Rules");
    EXPECT_EQ(estate_.requests(1), Strings{"61: 00 00 2A 00 00 00"});
    EXPECT_EQ(dialog->rules.list.columns()[0].title, u"Rule Type");
    EXPECT_EQ(dialog->rules.list.columns()[1].title, u"Rule Name");
    EXPECT_EQ(dialog->rules.list.columns()[2].title, u"Rule Affected");
    ASSERT_EQ(dialog->rules.list.rows().size(), types.size());
    for (std::size_t row = 0; row < types.size(); ++row) {
        EXPECT_EQ(dialog->rules.list.rows()[row].cells, (Names{types[row].second, u"Rule", u"Staff"}));
    }
}

TEST_F(RegionRulesDialog, withNoRulesShowsAnEmptyListWithRemoveDisabled) {
    const auto dialog = opened();

    EXPECT_TRUE(dialog->rules.list.rows().empty());
    EXPECT_FALSE(dialog->rules.removeButton.enabled());
    EXPECT_TRUE(dialog->rules.addButton.enabled());
}

TEST_F(RegionRulesDialog, addsARuleToTheRegionByItsNumberAndListsAgain) {
    const auto dialog = opened();
    platform_.ui.expect<AddRuleEntryDlg>([this](AddRuleEntryDlg& adder) {
        EXPECT_EQ(samples::textsOf(adder.fields.type).front(), u"Rule group");
        samples::choose(adder.fields.type, u"Handover");
        adder.fields.name.userTyped(u"At the desk");
        estate_.entriesOfRegion[42] = {samples::entry("e1", 4, u"At the desk")};
        adder.okButton().userPressed();
    });

    dialog->rules.addButton.userPressed();

    const auto sent = estate_.change<protocol::AddRuleEntryRequest>(1);
    EXPECT_EQ(sent.ownerNumber, 42);
    EXPECT_EQ(sent.ownerId, "");
    EXPECT_EQ(sent.parentId, "");
    ASSERT_EQ(dialog->rules.list.rows().size(), 1U);
    EXPECT_EQ(dialog->rules.list.rows()[0].cells[1], u"At the desk");
}

TEST_F(RegionRulesDialog, listsAgainWhenAddingWasCancelledToo) {
    const auto dialog = opened();
    platform_.ui.expect<AddRuleEntryDlg>([](AddRuleEntryDlg& adder) { adder.cancelButton().userPressed(); });

    dialog->rules.addButton.userPressed();

    EXPECT_EQ(platform_.commands(), (Strings{"ListRuleEntries", "ListAffected", "ListRuleGroups", "ListRuleEntries"}));
}

TEST_F(RegionRulesDialog, removesTheSelectedRuleAfterAQuestion) {
    estate_.entriesOfRegion[42] = {samples::entry("e1", 4, u"At the desk")};
    const auto dialog = opened();
    dialog->rules.list.userSelected(0);
    platform_.ui.expectBox(Answer::ok, u"Are you sure you want to delete this rule entry?");

    dialog->rules.removeButton.userPressed();

    EXPECT_EQ(estate_.changes(1), Strings{"62: 03 02 00 65 31 04 00"});
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().back().style, 1U);
    EXPECT_EQ(platform_.commands().back(), "ListRuleEntries");
}

TEST_F(RegionRulesDialog, sendsNothingOnOk) {
    const auto dialog = opened();

    dialog->okButton().userPressed();

    EXPECT_EQ(dialog->result(), forms::idOk);
    EXPECT_EQ(platform_.commands(), Strings{"ListRuleEntries"});
}

} // namespace
