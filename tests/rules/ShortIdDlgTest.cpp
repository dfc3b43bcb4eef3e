#include "rules/ShortIdDlg.h"

#include "protocol/rules/ShortId.h"
#include "rules/NewMessageDlg.h"
#include "tests/support/RuleEstate.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

namespace {

using forms::DateTime;
using platform::Answer;
using protocol::AddShortIdRequest;
using protocol::ShortIdRecord;
using protocol::UpdateShortIdRequest;
using rules::ShortIdDlg;

const wire::Uuid knownId = wire::parseUuid("0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480");
const wire::Uuid quotaId = wire::parseUuid("00000000-0000-4000-8000-000000000001");

// A short id of the server.
ShortIdRecord lobby() {
    ShortIdRecord record;
    record.id = knownId;
    record.name = u"Lobby";
    record.comment = u"Ground floor";
    return record;
}

class ShortIdDialog : public ::testing::Test {
protected:
    ShortIdDialog() {
        protocol::UserMessageRecord quota;
        quota.id = quotaId;
        quota.name = u"Quota";
        estate_.messages = {quota};
    }

    // The "Valid for" value shown for a record, with its unit.
    wire::WideString validTimeOf(std::uint32_t minutes) {
        auto record = lobby();
        record.validMinutes = minutes;
        ShortIdDlg dialog(platform_, record);
        dialog.open();
        return dialog.validTime.number.text() + u" " + dialog.validTime.unit.selectedText();
    }

    // What OK makes of a number and a unit.
    std::optional<std::uint32_t> minutesOf(const wire::WideString& number, std::size_t unit) {
        ShortIdDlg dialog(platform_, lobby());
        dialog.open();
        dialog.validFor.userChecked(true);
        dialog.validTime.number.userTyped(number);
        dialog.validTime.unit.userSelected(unit);
        dialog.okButton().userPressed();
        return dialog.record().validMinutes;
    }

    ShortIdRecord added() { return estate_.change<AddShortIdRequest>(1).shortId; }
    ShortIdRecord updated() { return estate_.change<UpdateShortIdRequest>(1).shortId; }

    support::TestPlatform platform_;
    support::RuleEstate estate_{platform_.platform().hooks};
};

TEST_F(ShortIdDialog, startsWithoutTimesAndWithTheDefaultMessage) {
    ShortIdDlg dialog(platform_);

    dialog.open();

    EXPECT_EQ(dialog.title(), u"New Short Id Rule");
    EXPECT_FALSE(dialog.validFor.checked());
    EXPECT_TRUE(dialog.reservedUntil.chosen());
    EXPECT_EQ(dialog.validTime.number.text(), u"");
    EXPECT_EQ(dialog.validTime.unit.selectedText(), u"minutes");
    EXPECT_EQ(dialog.timeOfDay.value(), (DateTime{.year = 2000, .month = 1, .day = 1}));
    EXPECT_EQ(dialog.message.list.selectedText(), u"<Default>");
    EXPECT_FALSE(dialog.message.editButton.enabled());
    EXPECT_FALSE(dialog.message.deleteButton.enabled());
    EXPECT_EQ(dialog.name.options().limit, 64U);
    EXPECT_EQ(dialog.comment.options().limit, 255U);
    EXPECT_TRUE(dialog.validTime.number.options().digitsOnly);
    EXPECT_TRUE(dialog.reservedTime.number.options().digitsOnly);
}

TEST_F(ShortIdDialog, defaultStandsBeforeNewAtTheEndOfTheListAfterTheMessages) {
    ShortIdDlg dialog(platform_);

    dialog.open();

    ASSERT_EQ(dialog.message.list.items().size(), 3U);
    EXPECT_EQ(dialog.message.list.items()[0].text, u"Quota");
    EXPECT_EQ(dialog.message.list.items()[1].text, u"<Default>");
    EXPECT_EQ(dialog.message.list.items()[2].text, u"<New>");
}

TEST_F(ShortIdDialog, aLengthIsShownInTheLargestUnitWithoutAFraction) {
    EXPECT_EQ(validTimeOf(1440), u"1 days");
    EXPECT_EQ(validTimeOf(90), u"90 minutes");
    EXPECT_EQ(validTimeOf(120), u"2 hours");
    EXPECT_EQ(validTimeOf(0), u"0 days");
    EXPECT_EQ(validTimeOf(1500), u"25 hours");
    EXPECT_EQ(validTimeOf(4294967295U), u"4294967295 minutes");
}

TEST_F(ShortIdDialog, aNumberIsStoredInMinutes) {
    EXPECT_EQ(minutesOf(u"2", 0), 2880U);
    EXPECT_EQ(minutesOf(u"2", 1), 120U);
    EXPECT_EQ(minutesOf(u"2", 2), 2U);
    EXPECT_EQ(minutesOf(u"0", 0), 0U);
}

TEST_F(ShortIdDialog, aNumberThatIsTooLargeIsNone) {
    EXPECT_EQ(minutesOf(u"4294967296", 2), std::nullopt);
    EXPECT_EQ(minutesOf(u"4294967295", 0), std::nullopt);
    EXPECT_EQ(minutesOf(u"99999999999999999999", 2), std::nullopt);
}

TEST_F(ShortIdDialog, disablesAllTimesWhileNothingIsValid) {
    ShortIdDlg dialog(platform_);

    dialog.open();

    EXPECT_FALSE(dialog.validTime.number.enabled());
    EXPECT_FALSE(dialog.validTime.unit.enabled());
    EXPECT_FALSE(dialog.validTime.remark.enabled());
    EXPECT_FALSE(dialog.reservedFor.enabled());
    EXPECT_FALSE(dialog.reservedTime.number.enabled());
    EXPECT_FALSE(dialog.reservedTime.unit.enabled());
    EXPECT_FALSE(dialog.reservedTime.remark.enabled());
    EXPECT_FALSE(dialog.reservedUntil.enabled());
    EXPECT_FALSE(dialog.timeOfDay.enabled());
    EXPECT_FALSE(dialog.eachDay.enabled());
}

TEST_F(ShortIdDialog, enablesWhatGoesWithTheChosenReservation) {
    ShortIdDlg dialog(platform_);
    dialog.open();

    dialog.validFor.userChecked(true);

    EXPECT_TRUE(dialog.validTime.number.enabled());
    EXPECT_TRUE(dialog.validTime.remark.enabled());
    EXPECT_TRUE(dialog.reservedFor.enabled());
    EXPECT_TRUE(dialog.timeOfDay.enabled());
    EXPECT_TRUE(dialog.eachDay.enabled());
    EXPECT_FALSE(dialog.reservedTime.number.enabled());
    EXPECT_FALSE(dialog.reservedTime.unit.enabled());
    EXPECT_FALSE(dialog.reservedTime.remark.enabled());

    dialog.reservedFor.userChose();

    EXPECT_FALSE(dialog.timeOfDay.enabled());
    EXPECT_FALSE(dialog.eachDay.enabled());
    EXPECT_TRUE(dialog.reservedTime.number.enabled());
    EXPECT_TRUE(dialog.reservedTime.unit.enabled());
    EXPECT_TRUE(dialog.reservedTime.remark.enabled());
}

TEST_F(ShortIdDialog, fillsEmptyNumbersWithThreeHoursAtAClick) {
    ShortIdDlg dialog(platform_);
    dialog.open();

    dialog.validFor.userChecked(true);

    EXPECT_EQ(dialog.validTime.number.text(), u"3");
    EXPECT_EQ(dialog.validTime.unit.selectedText(), u"hours");
    EXPECT_EQ(dialog.reservedTime.number.text(), u"3");
    EXPECT_EQ(dialog.reservedTime.unit.selectedText(), u"hours");
}

TEST_F(ShortIdDialog, leavesNumbersThatAreThereAlone) {
    auto record = lobby();
    record.validMinutes = 5;
    ShortIdDlg dialog(platform_, record);
    dialog.open();

    dialog.reservedUntil.userChose();

    EXPECT_EQ(dialog.validTime.number.text(), u"5");
    EXPECT_EQ(dialog.validTime.unit.selectedText(), u"minutes");
    EXPECT_EQ(dialog.reservedTime.number.text(), u"3");
}

TEST_F(ShortIdDialog, fillsNothingWhenTheTimesAreSwitchedOff) {
    ShortIdDlg dialog(platform_);
    dialog.open();

    dialog.validFor.userChecked(false);

    EXPECT_EQ(dialog.validTime.number.text(), u"");
}

TEST_F(ShortIdDialog, anEmptyPickerPutsATimeIntoTheNumberOfReservedFor) {
    ShortIdDlg dialog(platform_);
    dialog.open();
    dialog.timeOfDay.setValue(std::nullopt);

    dialog.validFor.userChecked(true);

    EXPECT_EQ(dialog.reservedTime.number.text(), u"00:00:00");
    EXPECT_EQ(dialog.timeOfDay.value(), std::nullopt);
}

TEST_F(ShortIdDialog, addsANewRuleWithAFreshId) {
    ShortIdDlg dialog(platform_);
    dialog.open();
    dialog.name.userTyped(u"Lobby");
    dialog.comment.userTyped(u"Ground floor");
    dialog.message.list.userSelected(0);
    dialog.validFor.userChecked(true);
    dialog.reservedFor.userChose();
    dialog.reservedTime.number.userTyped(u"30");
    dialog.reservedTime.unit.userSelected(2);

    dialog.okButton().userPressed();

    EXPECT_EQ(dialog.result(), forms::idOk);
    EXPECT_EQ(added().id.version(), wire::Uuid::version_random_number_based);
    EXPECT_EQ(added().name, u"Lobby");
    EXPECT_EQ(added().comment, u"Ground floor");
    EXPECT_EQ(added().messageId, quotaId);
    EXPECT_EQ(added().validMinutes, 180U);
    EXPECT_EQ(added().reservedMinutes, 30U);
    EXPECT_EQ(added().reservedUntil, std::nullopt);
    EXPECT_EQ(dialog.record(), added());
}

TEST_F(ShortIdDialog, aRuleWithoutTimesHasNone) {
    ShortIdDlg dialog(platform_);
    dialog.open();
    dialog.name.userTyped(u"Lobby");

    dialog.okButton().userPressed();

    EXPECT_EQ(added().validMinutes, std::nullopt);
    EXPECT_EQ(added().reservedMinutes, std::nullopt);
    EXPECT_EQ(added().reservedUntil, std::nullopt);
    EXPECT_EQ(added().messageId, std::nullopt);
}

TEST_F(ShortIdDialog, wantsAName) {
    ShortIdDlg dialog(platform_);
    dialog.open();
    platform_.ui.expectBox(Answer::ok, u"Name field shoud not be blank!");

    dialog.okButton().userPressed();

    EXPECT_FALSE(dialog.ended());
    EXPECT_EQ(dialog.focus(), &dialog.name);
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Required field is empty");
    EXPECT_TRUE(estate_.changes(0).empty());
}

TEST_F(ShortIdDialog, reservedUntilAndReservedForNeverGoToTheServerTogether) {
    auto record = lobby();
    record.validMinutes = 60;
    record.reservedMinutes = 120;
    record.reservedUntil = 3600;
    ShortIdDlg dialog(platform_, record);
    dialog.open();
    EXPECT_TRUE(dialog.reservedUntil.chosen());

    dialog.okButton().userPressed();

    EXPECT_EQ(updated().reservedUntil, 3600);
    EXPECT_EQ(updated().reservedMinutes, std::nullopt);
}

TEST_F(ShortIdDialog, aTimeOfDayIsStoredInSecondsAndLosesThemWhenItIsReopened) {
    ShortIdDlg dialog(platform_);
    dialog.open();
    dialog.name.userTyped(u"Lobby");
    dialog.validFor.userChecked(true);
    dialog.timeOfDay.userPicked(DateTime{.year = 2000, .month = 1, .day = 1, .hour = 12, .minute = 30, .second = 15});

    dialog.okButton().userPressed();

    EXPECT_EQ(added().reservedUntil, 45015);
    ShortIdDlg again(platform_, dialog.record());
    again.open();
    EXPECT_EQ(again.timeOfDay.value(), (DateTime{.year = 2000, .month = 1, .day = 1, .hour = 12, .minute = 30}));
}

TEST_F(ShortIdDialog, aTimeBeyondTheDayIsShownWithinIt) {
    for (const std::int64_t seconds : {std::int64_t{90061}, std::int64_t{4294967295}, std::int64_t{-1}}) {
        auto record = lobby();
        record.reservedUntil = seconds;
        ShortIdDlg dialog(platform_, record);

        dialog.open();

        EXPECT_TRUE(dialog.timeOfDay.value()) << seconds;
    }
}

TEST_F(ShortIdDialog, validForCheckedWithAnEmptyFieldStoresNoTimesAtAll) {
    auto record = lobby();
    record.validMinutes = 60;
    record.reservedUntil = 3600;
    ShortIdDlg dialog(platform_, record);
    dialog.open();
    dialog.validTime.number.userTyped(u"");

    dialog.okButton().userPressed();

    EXPECT_EQ(updated().validMinutes, std::nullopt);
    EXPECT_EQ(updated().reservedMinutes, std::nullopt);
    EXPECT_EQ(updated().reservedUntil, std::nullopt);
    ShortIdDlg again(platform_, dialog.record());
    again.open();
    EXPECT_FALSE(again.validFor.checked());
}

TEST_F(ShortIdDialog, anEmptyReservationIsNone) {
    auto record = lobby();
    record.validMinutes = 60;
    record.reservedMinutes = 120;
    ShortIdDlg dialog(platform_, record);
    dialog.open();
    EXPECT_TRUE(dialog.reservedFor.chosen());
    dialog.reservedTime.number.userTyped(u"");

    dialog.okButton().userPressed();

    EXPECT_EQ(updated().validMinutes, 60U);
    EXPECT_EQ(updated().reservedMinutes, std::nullopt);
}

TEST_F(ShortIdDialog, anyTimeOfTheRuleChecksValidFor) {
    auto record = lobby();
    record.reservedMinutes = 60;
    ShortIdDlg dialog(platform_, record);

    dialog.open();

    EXPECT_TRUE(dialog.validFor.checked());
    EXPECT_TRUE(dialog.reservedFor.chosen());
    EXPECT_EQ(dialog.validTime.number.text(), u"");
    EXPECT_EQ(dialog.reservedTime.number.text(), u"1");
    EXPECT_EQ(dialog.reservedTime.unit.selectedText(), u"hours");
}

TEST_F(ShortIdDialog, showsTheRuleToEdit) {
    auto record = lobby();
    record.messageId = quotaId;
    ShortIdDlg dialog(platform_, record);

    dialog.open();

    EXPECT_EQ(dialog.title(), u"Edit Short Id Rule");
    EXPECT_EQ(dialog.name.text(), u"Lobby");
    EXPECT_EQ(dialog.comment.text(), u"Ground floor");
    EXPECT_EQ(dialog.message.list.selectedText(), u"Quota");
    EXPECT_TRUE(dialog.message.editButton.enabled());
}

TEST_F(ShortIdDialog, updatesAnEditedRule) {
    auto record = lobby();
    record.messageId = quotaId;
    ShortIdDlg dialog(platform_, record);
    dialog.open();
    dialog.comment.userTyped(u"");

    dialog.okButton().userPressed();

    record.comment.clear();
    EXPECT_EQ(updated(), record);
}

TEST_F(ShortIdDialog, aMessageThatIsGoneBecomesTheDefault) {
    auto record = lobby();
    record.messageId = wire::parseUuid("00000000-0000-4000-8000-000000000009");
    ShortIdDlg dialog(platform_, record);
    dialog.open();
    EXPECT_EQ(dialog.message.list.selectedText(), u"<Default>");

    dialog.okButton().userPressed();

    EXPECT_EQ(updated().messageId, std::nullopt);
}

TEST_F(ShortIdDialog, newInTheListOfMessagesIsNoMessage) {
    ShortIdDlg dialog(platform_, lobby());
    dialog.open();
    platform_.ui.expect<rules::NewMessageDlg>([](auto& nested) { nested.cancelButton().userPressed(); });
    dialog.message.list.userSelected(2);
    EXPECT_EQ(dialog.message.list.selectedText(), u"<New>");

    dialog.okButton().userPressed();

    EXPECT_EQ(updated().messageId, std::nullopt);
}

TEST_F(ShortIdDialog, theDefaultMessageIsNeitherEditedNorDeleted) {
    ShortIdDlg dialog(platform_, lobby());
    dialog.open();
    dialog.message.list.userSelected(0);
    EXPECT_TRUE(dialog.message.editButton.enabled());

    dialog.message.list.userSelected(1);

    EXPECT_FALSE(dialog.message.editButton.enabled());
    EXPECT_FALSE(dialog.message.deleteButton.enabled());
}

TEST_F(ShortIdDialog, offersTheDefaultMessageWithoutAnyOther) {
    estate_.messages.clear();
    ShortIdDlg dialog(platform_, lobby());

    dialog.open();

    EXPECT_EQ(dialog.message.list.selectedText(), u"<Default>");
    EXPECT_FALSE(dialog.message.editButton.enabled());
}

TEST_F(ShortIdDialog, sendsNothingOnCancel) {
    ShortIdDlg dialog(platform_, lobby());
    dialog.open();

    dialog.cancelButton().userPressed();

    EXPECT_EQ(dialog.result(), forms::idCancel);
    EXPECT_TRUE(estate_.changes(0).empty());
}

TEST_F(ShortIdDialog, cannotBeConfirmedWhenItsMessageCouldNotBeRead) {
    auto record = lobby();
    record.messageId = quotaId;
    estate_.goOffline();
    ShortIdDlg dialog(platform_, record);

    dialog.open();

    EXPECT_EQ(dialog.name.text(), u"Lobby");
    EXPECT_FALSE(dialog.okButton().enabled());
    dialog.okButton().userPressed();
    EXPECT_FALSE(dialog.ended());
    EXPECT_EQ(dialog.record().messageId, quotaId);
}

TEST_F(ShortIdDialog, canBeConfirmedOnceItsMessagesAreRead) {
    ShortIdDlg dialog(platform_, lobby());
    dialog.open();

    EXPECT_TRUE(dialog.message.known());
    EXPECT_TRUE(dialog.okButton().enabled());
}

} // namespace
