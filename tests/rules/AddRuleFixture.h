#pragma once

#include "rules/AddRuleEntryDlg.h"
#include "tests/rules/RuleSamples.h"
#include "tests/support/RuleEstate.h"
#include "tests/support/TestPlatform.h"

#include <memory>

// The dialog that creates rule entries, over an estate with two of each kind of object.
class AddRuleFixture : public ::testing::Test {
protected:
    using AddRuleEntryDlg = rules::AddRuleEntryDlg;
    using Names = std::vector<wire::WideString>;
    using Strings = std::vector<std::string>;

    static constexpr const char* firstShortId = "0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480";
    static constexpr const char* secondShortId = "7c1d9f02-93ab-4c55-8a41-0d3e6f7b2a19";

    AddRuleFixture() {
        estate_.affected = {samples::affected("a1", u"Guests"), samples::affected("a2", u"Staff")};
        estate_.groups = {samples::group("group1", u"Students"), samples::group("group2", u"Teachers")};
        estate_.limits = {samples::limit("limit1", u"Ten pages"), samples::limit("limit2", u"Hundred pages")};
        estate_.plans = {samples::plan("plan1", u"Standard"), samples::plan("plan2", u"Cheap")};
        estate_.shortIds = {samples::shortId(firstShortId, u"A day"), samples::shortId(secondShortId, u"A week")};
    }

    rules::RuleEntryPlace place(std::string parentId = {}) {
        return {.entries = entries_, .ownerId = "g1", .ownerNumber = 0, .parentId = std::move(parentId)};
    }
    // Open dialogs.
    std::unique_ptr<AddRuleEntryDlg> inGroup(std::string parentId = {}) {
        auto dialog =
            std::make_unique<AddRuleEntryDlg>(platform_, AddRuleEntryDlg::Mode::group, place(std::move(parentId)));
        dialog->open();
        return dialog;
    }
    std::unique_ptr<AddRuleEntryDlg> onRegion(std::string parentId = {}) {
        auto dialog = std::make_unique<AddRuleEntryDlg>(
            platform_, AddRuleEntryDlg::Mode::place,
            rules::RuleEntryPlace{
                .entries = entries_, .ownerId = {}, .ownerNumber = 42, .parentId = std::move(parentId)});
        dialog->open();
        return dialog;
    }

    void expectRefusal(AddRuleEntryDlg& dialog, const wire::WideString& text) {
        platform_.ui.expectBox(platform::Answer::ok, text);
        dialog.okButton().userPressed();
        EXPECT_FALSE(dialog.ended());
        EXPECT_EQ(platform_.ui.boxes().back().caption, u"Required field is Empty!");
        EXPECT_EQ(estate_.changes(0), Strings{});
    }

    support::TestPlatform platform_;
    support::RuleEstate estate_{platform_.platform().hooks};
    std::vector<protocol::RuleEntryRecord> entries_;
};
