#include "tests/server/alarms/AlarmEstate.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using protocol::EmailRecipientRecord;
using test::AlarmEstate;

constexpr std::uint16_t sendsMail = 1;

TEST(EmailRecipientService, aNewRecipientGetsAnIdAndTheStateThatItComesWith) {
    AlarmEstate place;
    EXPECT_TRUE(isDone(place.recipientService().write({.id = {}, .name = u"Jo", .email = u"jo@b", .active = 1})));
    const auto all = place.recipients();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0], (EmailRecipientRecord{.id = all[0].id, .email = u"jo@b", .name = u"Jo", .active = true}));
    EXPECT_EQ(all[0].id.size(), 36U);
    EXPECT_EQ(place.recipients(all[0].id), all);
    EXPECT_TRUE(place.recipients("nobody").empty());
}

TEST(EmailRecipientService, twoRecipientsOfTheSameNameAreAllowed) {
    AlarmEstate place;
    EXPECT_FALSE(place.addRecipient(u"Jo").empty());
    EXPECT_FALSE(place.addRecipient(u"Jo").empty());
    EXPECT_EQ(place.recipients().size(), 2U);
}

TEST(EmailRecipientService, recipientsAreListedByNameWithoutRegardToCase) {
    AlarmEstate place;
    for (const auto* const name : {u"b", u"C", u"A"}) {
        place.addRecipient(name);
    }
    std::u16string names;
    for (const auto& one : place.recipients()) {
        names += one.name;
    }
    EXPECT_EQ(names, u"AbC");
}

TEST(EmailRecipientService, aChangeReplacesNameAddressAndState) {
    AlarmEstate place;
    const auto id = place.addRecipient(u"Jo");
    EXPECT_TRUE(isDone(place.recipientService().write({.id = id, .name = u"Jon", .email = u"x@y", .active = 0})));
    EXPECT_EQ(place.recipients(id).at(0),
              (EmailRecipientRecord{.id = id, .email = u"x@y", .name = u"Jon", .active = false}));
}

TEST(EmailRecipientService, anIdWithAnEmptyNameAndAddressIsADelete) {
    AlarmEstate place;
    const auto id = place.addRecipient(u"Jo");
    const auto other = place.addRecipient(u"Other");
    EXPECT_TRUE(isDone(place.recipientService().write({.id = id, .name = {}, .email = {}, .active = 1})));
    EXPECT_TRUE(place.recipients(id).empty());
    EXPECT_EQ(place.recipients(other).size(), 1U);
}

TEST(EmailRecipientService, aDeleteTakesTheActionsThatGoToTheRecipient) {
    AlarmEstate place;
    const auto jo = place.addRecipient(u"Jo");
    const auto other = place.addRecipient(u"Other");
    const auto program = place.addProgram(u"P");
    place.addAction(program, "paper-jam", sendsMail, jo);
    place.addAction(program, "paper-jam", sendsMail, other);
    EXPECT_TRUE(isDone(place.recipientService().write({.id = jo, .name = {}, .email = {}})));
    ASSERT_EQ(place.actionsOf(program).size(), 1U);
    EXPECT_EQ(place.actionsOf(program)[0].recipient, u"Other");
}

TEST(EmailRecipientService, theStateIsSwitchedByNumberAndByDigit) {
    AlarmEstate place;
    const auto id = place.addRecipient(u"Jo");
    const auto isActiveAfter = [&](std::uint8_t byte) {
        EXPECT_TRUE(isDone(place.recipientService().setActive({.id = id, .active = byte})));
        return place.recipients(id).at(0).active;
    };
    EXPECT_FALSE(isActiveAfter(0));
    EXPECT_TRUE(isActiveAfter('1'));
    EXPECT_FALSE(isActiveAfter('0'));
    EXPECT_TRUE(isActiveAfter(1));
}

TEST(EmailRecipientService, whatIsGoneIsNeitherChangedNorDeletedNorSwitched) {
    AlarmEstate place;
    const auto jo = place.addRecipient(u"Jo");
    const auto before = place.recipients();
    EXPECT_EQ(place.recipientService().write({.id = "gone", .name = u"N", .email = u"e", .active = 1}).text,
              u"The recipient does not exist any more.");
    EXPECT_FALSE(isDone(place.recipientService().write({.id = "gone", .name = {}, .email = {}})));
    EXPECT_FALSE(isDone(place.recipientService().setActive({.id = "gone", .active = 0})));
    EXPECT_FALSE(isDone(place.recipientService().setActive({.id = {}, .active = 0})));
    EXPECT_EQ(place.recipients(), before);
}

TEST(EmailRecipientService, aRecipientNeedsANameAndAnAddress) {
    AlarmEstate place;
    const auto id = place.addRecipient(u"Jo");
    const auto before = place.recipients();
    for (const auto& known : {std::string(), id}) {
        EXPECT_FALSE(isDone(place.recipientService().write({.id = known, .name = u"N", .email = {}, .active = 1})));
        EXPECT_FALSE(isDone(place.recipientService().write({.id = known, .name = {}, .email = u"e", .active = 1})));
        EXPECT_FALSE(isDone(place.recipientService().write(
            {.id = known, .name = std::u16string(2, u'\0'), .email = u"e", .active = 1})));
    }
    EXPECT_FALSE(isDone(place.recipientService().write({.id = {}, .name = {}, .email = {}, .active = 1})));
    EXPECT_EQ(place.recipients(), before);
}

TEST(EmailRecipientService, aRecipientTooLongToBeListedIsRefusedAndOneThatJustFitsIsTaken) {
    AlarmEstate place;
    // Five bytes of message, 38 of id, the counts of both texts, the state.
    const std::size_t room = (65535 - 5 - 38 - 2 - 2 - 1) / 2;
    EXPECT_TRUE(place.addRecipient(u"N", std::u16string(room, u'e')).empty());
    EXPECT_FALSE(place.addRecipient(u"N", std::u16string(room - 1, u'e')).empty());
    // The list of a program's actions contains the names of the event and the action beside it.
    EXPECT_TRUE(place.addRecipient(std::u16string(room - 1, u'n'), u"e").empty());
    EXPECT_FALSE(place.addRecipient(std::u16string(room - 50, u'n'), u"e").empty());
}

TEST(EmailRecipientService, textIsKeptAsTheUnitsThatCame) {
    AlarmEstate place;
    const std::u16string odd = {u'x', 0xD83D, 0xDE00, 0xD800, u'\0', 0xFFFE};
    const auto id = place.addRecipient(odd, odd);
    EXPECT_EQ(place.recipients(id).at(0).name, odd);
    EXPECT_EQ(place.recipients(id).at(0).email, odd);
}

} // namespace
} // namespace server
