#include "rules/AffectedDlg.h"

#include "protocol/rules/Affected.h"
#include "tests/rules/RuleSamples.h"
#include "tests/support/RuleEstate.h"
#include "tests/support/TestPlatform.h"

namespace {

using protocol::AffectedRecord;
using protocol::WriteAffectedRequest;
using rules::AffectedDlg;

class AffectedDialog : public ::testing::Test {
protected:
    WriteAffectedRequest sent() { return estate_.change<WriteAffectedRequest>(1); }

    support::TestPlatform platform_;
    support::RuleEstate estate_{platform_.platform().hooks};
};

TEST_F(AffectedDialog, startsWithAGroupThatIsMeant) {
    AffectedDlg dialog(platform_);

    dialog.open();

    EXPECT_EQ(dialog.title(), u"Affected");
    EXPECT_EQ(samples::textsOf(dialog.type), (std::vector<wire::WideString>{u"Group", u"User"}));
    EXPECT_EQ(samples::textsOf(dialog.equals), (std::vector<wire::WideString>{u"IS NOT", u"IS"}));
    EXPECT_EQ(dialog.type.selectedText(), u"Group");
    EXPECT_EQ(dialog.equals.selectedText(), u"IS");
    EXPECT_EQ(dialog.name.text(), u"");
}

TEST_F(AffectedDialog, showsTheRecordToEdit) {
    AffectedDlg dialog(platform_, AffectedRecord{.id = "a1", .type = 1, .equals = 0, .name = u"amir"});

    dialog.open();

    EXPECT_EQ(dialog.name.text(), u"amir");
    EXPECT_EQ(dialog.type.selectedText(), u"User");
    EXPECT_EQ(dialog.equals.selectedText(), u"IS NOT");
}

TEST_F(AffectedDialog, showsATypeAndASenseThatDoNotExistAsGroupAndIsNot) {
    AffectedDlg dialog(platform_, AffectedRecord{.id = "a1", .type = 7, .equals = 7, .name = u"amir"});

    dialog.open();

    EXPECT_EQ(dialog.type.selectedText(), u"Group");
    EXPECT_EQ(dialog.equals.selectedText(), u"IS NOT");
}

TEST_F(AffectedDialog, addsAGroupWithAFreshId) {
    AffectedDlg dialog(platform_);
    dialog.open();
    dialog.name.userTyped(u"Staff");

    dialog.okButton().userPressed();

    EXPECT_EQ(dialog.result(), forms::idOk);
    EXPECT_EQ(sent().action, 1);
    EXPECT_EQ(sent().type, 2);
    EXPECT_EQ(sent().equals, 1);
    EXPECT_EQ(sent().name, u"Staff");
    EXPECT_EQ(wire::parseUuid(sent().id).version(), wire::Uuid::version_random_number_based);
}

TEST_F(AffectedDialog, writesTheSenseBeforeTheId) {
    AffectedDlg dialog(platform_, AffectedRecord{.id = "a1", .type = 1, .equals = 0, .name = u"am"});
    dialog.open();

    dialog.okButton().userPressed();

    EXPECT_EQ(estate_.changes(1).back(), "60: 02 00 02 00 61 31 01 04 00 61 00 6D 00");
}

TEST_F(AffectedDialog, putsNoLimitOnTheName) {
    const wire::WideString name(3'000, u'x');
    AffectedDlg dialog(platform_);
    dialog.open();

    EXPECT_TRUE(dialog.name.userTyped(name));
    dialog.okButton().userPressed();

    EXPECT_EQ(sent().name, name);
}

TEST_F(AffectedDialog, wantsAName) {
    AffectedDlg dialog(platform_);
    dialog.open();
    platform_.ui.expectBox(platform::Answer::ok, u"Name field should not be blank!");

    dialog.okButton().userPressed();

    EXPECT_FALSE(dialog.ended());
    EXPECT_EQ(dialog.focus(), &dialog.name);
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Required field is Empty!");
    EXPECT_TRUE(platform_.commands().empty());
}

TEST_F(AffectedDialog, sendsNothingOnCancel) {
    AffectedDlg dialog(platform_, samples::affected("a1", u"Guests"));
    dialog.open();

    dialog.cancelButton().userPressed();

    EXPECT_EQ(dialog.result(), forms::idCancel);
    EXPECT_TRUE(platform_.commands().empty());
}

} // namespace
