#include "rules/RuleObjectList.h"

#include "protocol/rules/PageLimit.h"
#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleEntry.h"
#include "protocol/rules/ShortId.h"
#include "rules/NewPricePlanDlg.h"
#include "rules/PageLimitDlg.h"
#include "rules/ShortIdDlg.h"
#include "tests/rules/AddRuleFixture.h"

namespace {

using platform::Answer;
using rules::NewPricePlanDlg;
using rules::PageLimitDlg;
using rules::ShortIdDlg;

class ObjectsOfARule : public AddRuleFixture {
protected:
    // A dialog inside a rule group that shows the type, and its list of objects.
    rules::RuleObjectList& listFor(std::u16string_view type) {
        dialog_ = inGroup();
        samples::choose(dialog_->fields.type, type);
        return dialog_->fields.object;
    }
    void pressOk() {
        dialog_->fields.name.userTyped(u"Rule");
        dialog_->okButton().userPressed();
    }
    std::string targetSent() { return estate_.change<protocol::AddRuleEntryRequest>(1).entry.targetId; }

    std::unique_ptr<AddRuleEntryDlg> dialog_;
};

TEST_F(ObjectsOfARule, arePageLimitsWithTheLastSelected) {
    auto& object = listFor(u"Page limit");

    EXPECT_EQ(object.list.label(), u"Limits");
    EXPECT_EQ(samples::textsOf(object.list), (Names{u"Ten pages", u"Hundred pages", u"<New>"}));
    EXPECT_EQ(object.list.selectedText(), u"Hundred pages");
    EXPECT_TRUE(object.editButton.visible());
    EXPECT_TRUE(object.deleteButton.visible());
    EXPECT_TRUE(dialog_->fields.affected.list.visible());
    pressOk();
    EXPECT_EQ(targetSent(), "limit2");
}

TEST_F(ObjectsOfARule, arePricePlansWithTheLastSelected) {
    auto& object = listFor(u"Price plan");

    EXPECT_EQ(object.list.label(), u"Plans");
    EXPECT_EQ(samples::textsOf(object.list), (Names{u"Standard", u"Cheap", u"<New>"}));
    EXPECT_EQ(object.list.selectedText(), u"Cheap");
    EXPECT_TRUE(object.editButton.visible());
    pressOk();
    EXPECT_EQ(targetSent(), "plan2");
}

TEST_F(ObjectsOfARule, areShortIdsByTheTextOfTheirIds) {
    auto& object = listFor(u"Short Id");

    EXPECT_EQ(object.list.label(), u"Short Ids");
    EXPECT_EQ(samples::textsOf(object.list), (Names{u"A day", u"A week", u"<New>"}));
    samples::choose(object.list, u"A day");
    pressOk();
    EXPECT_EQ(targetSent(), firstShortId);
}

TEST_F(ObjectsOfARule, areRuleGroupsToChooseFromAndNoMore) {
    const auto dialog = onRegion();
    const auto& fields = dialog->fields;

    EXPECT_EQ(fields.object.list.label(), u"Rule group");
    EXPECT_EQ(samples::textsOf(fields.object.list), (Names{u"Students", u"Teachers"}));
    EXPECT_EQ(fields.object.list.selection(), 0U);
    EXPECT_FALSE(fields.object.editButton.visible());
    EXPECT_FALSE(fields.object.deleteButton.visible());
    EXPECT_FALSE(fields.affected.list.visible());
    EXPECT_FALSE(fields.affected.editButton.visible());
    EXPECT_FALSE(fields.affected.deleteButton.visible());
}

TEST_F(ObjectsOfARule, areHiddenForATypeThatPointsAtNothing) {
    auto& object = listFor(u"Parse print job");

    EXPECT_FALSE(object.list.visible());
    EXPECT_FALSE(object.editButton.visible());
    EXPECT_FALSE(object.deleteButton.visible());
    EXPECT_TRUE(object.list.items().empty());
    EXPECT_TRUE(dialog_->fields.affected.list.visible());
    samples::choose(dialog_->fields.type, u"Page limit");
    EXPECT_TRUE(object.list.visible());
}

TEST_F(ObjectsOfARule, aCancelledNewLimitLeavesNewSelectedAndTheFieldBlank) {
    auto& object = listFor(u"Page limit");
    platform_.ui.expect<PageLimitDlg>([](PageLimitDlg& editor) {
        EXPECT_EQ(editor.title(), u"New Page Limit Rule");
        editor.cancelButton().userPressed();
    });

    samples::choose(object.list, u"<New>");

    EXPECT_EQ(object.list.selectedText(), u"<New>");
    dialog_->fields.name.userTyped(u"Quota");
    expectRefusal(*dialog_, u"Limit field should not be blank!");
    EXPECT_EQ(dialog_->focus(), &object.list);
}

TEST_F(ObjectsOfARule, aCancelledNewPlanOrShortIdLeavesTheFieldBlankToo) {
    auto& plans = listFor(u"Price plan");
    platform_.ui.expect<NewPricePlanDlg>([](NewPricePlanDlg& editor) { editor.cancelButton().userPressed(); });
    samples::choose(plans.list, u"<New>");
    dialog_->fields.name.userTyped(u"Prices");
    expectRefusal(*dialog_, u"Plan field should not be blank!");

    auto& shortIds = listFor(u"Short Id");
    platform_.ui.expect<ShortIdDlg>([](ShortIdDlg& editor) { editor.cancelButton().userPressed(); });
    samples::choose(shortIds.list, u"<New>");
    dialog_->fields.name.userTyped(u"Times");
    expectRefusal(*dialog_, u"Short id field should not be blank!");
}

TEST_F(ObjectsOfARule, withoutAnyObjectNothingIsSelected) {
    estate_.limits.clear();
    auto& object = listFor(u"Page limit");

    EXPECT_EQ(samples::textsOf(object.list), Names{u"<New>"});
    EXPECT_EQ(object.list.selection(), std::nullopt);
    dialog_->fields.name.userTyped(u"Quota");
    expectRefusal(*dialog_, u"Limit field should not be blank!");
}

TEST_F(ObjectsOfARule, aNewLimitIsSelectedOnceItIsMade) {
    auto& object = listFor(u"Page limit");
    platform_.ui.expect<PageLimitDlg>([this](PageLimitDlg& editor) {
        editor.name.userTyped(u"Five pages");
        estate_.limits.insert(estate_.limits.begin(), samples::limit(editor.record().id, u"Five pages"));
        editor.okButton().userPressed();
    });

    samples::choose(object.list, u"<New>");

    EXPECT_EQ(object.list.selectedText(), u"Five pages");
    EXPECT_EQ(object.list.selection(), 0U);
}

TEST_F(ObjectsOfARule, aNewPlanIsSelectedOnceItIsMade) {
    auto& object = listFor(u"Price plan");
    platform_.ui.expect<NewPricePlanDlg>([this](NewPricePlanDlg& editor) {
        editor.name.userTyped(u"Free");
        estate_.plans.insert(estate_.plans.begin(), samples::plan(editor.record().id, u"Free"));
        editor.okButton().userPressed();
    });

    samples::choose(object.list, u"<New>");

    EXPECT_EQ(object.list.selectedText(), u"Free");
}

TEST_F(ObjectsOfARule, theEntryPointsAtAPlanFromTheMomentWhenItIsWritten) {
    auto& object = listFor(u"Price plan");
    std::string made;
    platform_.ui.expect<NewPricePlanDlg>([&](NewPricePlanDlg& editor) {
        editor.name.userTyped(u"Free");
        editor.okButton().userPressed();
        made = editor.record().id;
    });
    platform_.ui.expect<NewPricePlanDlg>([](NewPricePlanDlg& editor) { editor.okButton().userPressed(); });

    samples::choose(object.list, u"<New>");
    const auto added = estate_.change<protocol::UpdateRuleEntryRequest>(2);
    object.editButton.userPressed();
    const auto edited = estate_.change<protocol::UpdateRuleEntryRequest>(4);

    EXPECT_EQ(added.action, 88);
    EXPECT_EQ(added.entry.targetId, made);
    EXPECT_EQ(added.entry.id, dialog_->record().id);
    EXPECT_EQ(edited.entry.targetId, "plan2");
    const Strings commands = platform_.commands();
    EXPECT_EQ(Strings(commands.end() - 5, commands.end()),
              (Strings{"ListPriceEntries", "WritePricePlan", "WriteRuleObject", "ListPricePlans", "ListPricePlans"}));
}

TEST_F(ObjectsOfARule, theEntryIsNotMadeToPointAtALimitThatIsWritten) {
    auto& object = listFor(u"Page limit");
    platform_.ui.expect<PageLimitDlg>([](PageLimitDlg& editor) {
        editor.name.userTyped(u"Five pages");
        editor.okButton().userPressed();
    });

    samples::choose(object.list, u"<New>");

    const Strings commands = platform_.commands();
    EXPECT_EQ(Strings(commands.end() - 3, commands.end()),
              (Strings{"WriteRuleObject", "ListPageLimits", "ListPageLimits"}));
    EXPECT_EQ(estate_.changes(1).size(), 1U);
    EXPECT_EQ(object.list.selectedText(), u"Hundred pages"); // the server has not listed it
}

TEST_F(ObjectsOfARule, anEditedLimitStaysSelectedWhereverItThenStands) {
    auto& object = listFor(u"Page limit");
    platform_.ui.expect<PageLimitDlg>([this](PageLimitDlg& editor) {
        estate_.limits = {samples::limit("limit2", u"Hundred pages"), samples::limit("limit1", u"Ten pages")};
        editor.okButton().userPressed();
    });

    object.editButton.userPressed();

    EXPECT_EQ(object.list.selection(), 0U);
    EXPECT_EQ(object.list.selectedText(), u"Hundred pages");
}

TEST_F(ObjectsOfARule, aNewShortIdIsSelectedOnceItIsMadeWhereverItStands) {
    auto& object = listFor(u"Short Id");
    platform_.ui.expect<ShortIdDlg>([](ShortIdDlg& editor) {
        editor.name.userTyped(u"A month");
        editor.okButton().userPressed();
    });
    estate_.shortIds = {samples::shortId(firstShortId, u"A day"), samples::shortId(secondShortId, u"A month"),
                        samples::shortId("11111111-2222-4333-8444-555555555555", u"A week")};

    samples::choose(object.list, u"<New>");

    EXPECT_EQ(object.list.selectedText(), u"A month");
}

TEST_F(ObjectsOfARule, aLimitIsReadBeforeItIsEdited) {
    auto& object = listFor(u"Page limit");
    samples::choose(object.list, u"Ten pages");
    platform_.ui.expect<PageLimitDlg>([](PageLimitDlg& editor) {
        EXPECT_EQ(editor.title(), u"Edit Page Limit Rule");
        EXPECT_EQ(editor.name.text(), u"Ten pages");
        editor.cancelButton().userPressed();
    });

    object.editButton.userPressed();

    EXPECT_EQ(object.list.selectedText(), u"Ten pages");
    EXPECT_EQ(estate_.requests(4)[3], "65: 06 00 6C 69 6D 69 74 31"); // GetPageLimit
}

TEST_F(ObjectsOfARule, aLimitThatHasGoneIsNotEdited) {
    auto& object = listFor(u"Page limit");
    estate_.limits.clear();

    object.editButton.userPressed();

    EXPECT_TRUE(platform_.ui.forms().empty());
    EXPECT_EQ(platform_.failures().size(), 1U);
    EXPECT_EQ(object.list.selectedText(), u"Hundred pages");
}

TEST_F(ObjectsOfARule, aLimitIsNotEditedWithoutAConnection) {
    auto& object = listFor(u"Page limit");
    estate_.goOffline();

    object.editButton.userPressed();

    EXPECT_TRUE(platform_.ui.forms().empty());
    EXPECT_TRUE(platform_.failures().empty());
    EXPECT_EQ(samples::textsOf(object.list), Names{u"<New>"});
}

TEST_F(ObjectsOfARule, aLimitIsNotDeletedWithoutAConnection) {
    auto& object = listFor(u"Page limit");
    estate_.goOffline();
    platform_.ui.expectBox(Answer::ok);

    object.deleteButton.userPressed();

    EXPECT_EQ(estate_.changes(0), Strings{});
    EXPECT_TRUE(platform_.failures().empty());
}

TEST_F(ObjectsOfARule, aPlanAndAShortIdAreEditedAsTheyWereListed) {
    auto& plans = listFor(u"Price plan");
    platform_.ui.expect<NewPricePlanDlg>([](NewPricePlanDlg& editor) {
        EXPECT_EQ(editor.title(), u"Edit Priceplan");
        EXPECT_EQ(editor.name.text(), u"Cheap");
        editor.cancelButton().userPressed();
    });
    plans.editButton.userPressed();
    EXPECT_EQ(plans.list.selectedText(), u"Cheap");

    auto& shortIds = listFor(u"Short Id");
    platform_.ui.expect<ShortIdDlg>([](ShortIdDlg& editor) {
        EXPECT_EQ(editor.title(), u"Edit Short Id Rule");
        EXPECT_EQ(editor.name.text(), u"A week");
        editor.cancelButton().userPressed();
    });
    shortIds.editButton.userPressed();
    EXPECT_EQ(shortIds.list.selectedText(), u"A week");
}

TEST_F(ObjectsOfARule, aShortIdThatIsRenamedStaysSelectedWhereverItThenStands) {
    auto& object = listFor(u"Short Id");
    samples::choose(object.list, u"A day");
    platform_.ui.expect<ShortIdDlg>([](ShortIdDlg& editor) {
        editor.name.userTyped(u"Zero days");
        editor.okButton().userPressed();
    });
    estate_.shortIds = {samples::shortId(secondShortId, u"A week"), samples::shortId(firstShortId, u"Zero days")};

    object.editButton.userPressed();

    EXPECT_EQ(object.list.selectedText(), u"Zero days");
}

TEST_F(ObjectsOfARule, aLimitIsReadAndThenDeletedAfterAQuestion) {
    auto& object = listFor(u"Page limit");
    platform_.ui.expectBox(Answer::ok, u"Are you sure you want to delete this Page Limit rule?");

    object.deleteButton.userPressed();

    EXPECT_EQ(estate_.change<protocol::DeletePageLimitRequest>(1).id, "limit2");
    const Strings commands = platform_.commands();
    EXPECT_EQ(Strings(commands.end() - 3, commands.end()),
              (Strings{"GetPageLimit", "DeletePageLimit", "ListPageLimits"}));
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().back().style, 1U);
}

TEST_F(ObjectsOfARule, aPlanIsDeletedAfterAQuestion) {
    auto& object = listFor(u"Price plan");
    platform_.ui.expectBox(Answer::ok, u"Are you sure you want to delete this Price Plan rule?");

    object.deleteButton.userPressed();

    EXPECT_EQ(estate_.change<protocol::DeletePricePlanRequest>(1).id, "plan2");
    EXPECT_EQ(object.list.selectedText(), u"Cheap"); // the list as the server has it
}

TEST_F(ObjectsOfARule, aShortIdIsDeletedAfterAQuestion) {
    auto& object = listFor(u"Short Id");
    platform_.ui.expectBox(Answer::ok, u"Are you sure you want to delete this Short Id rule?");

    object.deleteButton.userPressed();

    EXPECT_EQ(wire::toText(estate_.change<protocol::DeleteShortIdRequest>(1).id), secondShortId);
}

TEST_F(ObjectsOfARule, areKeptWhenTheQuestionIsCancelled) {
    auto& object = listFor(u"Page limit");
    platform_.ui.expectBox(Answer::cancel);

    object.deleteButton.userPressed();

    EXPECT_EQ(estate_.changes(0), Strings{});
}

TEST_F(ObjectsOfARule, aRowWithoutANameCanBeChosenButNeitherEditedNorDeleted) {
    estate_.limits = {samples::limit("limit1", u"")};
    auto& object = listFor(u"Page limit");

    EXPECT_FALSE(object.editButton.enabled());
    EXPECT_FALSE(object.deleteButton.enabled());
    pressOk();
    EXPECT_EQ(targetSent(), "limit1");
}

TEST_F(ObjectsOfARule, goBackToWhatIsCalledLikeTheEntryOnceItsNameWasGiven) {
    auto& object = listFor(u"Page limit");
    platform_.ui.expect<PageLimitDlg>([](PageLimitDlg& editor) { editor.cancelButton().userPressed(); });
    samples::choose(object.list, u"<New>");
    dialog_->fields.name.userTyped(u"Ten pages");
    expectRefusal(*dialog_, u"Limit field should not be blank!");

    samples::choose(dialog_->fields.type, u"Handover");
    samples::choose(dialog_->fields.type, u"Page limit");

    EXPECT_EQ(object.list.selectedText(), u"Ten pages");
}

TEST_F(ObjectsOfARule, leaveAnEmptyListWhenTheyCannotBeRead) {
    auto& object = listFor(u"Page limit");
    estate_.goOffline();

    samples::choose(dialog_->fields.type, u"Price plan");

    EXPECT_EQ(platform_.failures().size(), 1U);
    EXPECT_TRUE(object.list.items().empty());
    dialog_->fields.name.userTyped(u"Prices");
    platform_.ui.expectBox(Answer::ok, u"Plan field should not be blank!");
    dialog_->okButton().userPressed();
    EXPECT_FALSE(dialog_->ended());
}

} // namespace
