#include "tests/server/alarms/AlarmEstate.h"

#include "server/store/NameKey.h"
#include "wire/Text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace server {
namespace {

using test::AlarmEstate;

constexpr std::uint16_t sendMail = 1;
constexpr std::uint16_t writeToLog = 2;

TEST(ProgramActionTable, anEmptyDatabaseHasEventsAndActions) {
    AlarmEstate place;
    const auto events = place.events();
    ASSERT_EQ(events.size(), 11U);
    EXPECT_EQ(events[0], (protocol::AlarmEventRecord{.id = "low-paper", .name = u"Paper is low"}));
    EXPECT_EQ(events[7], (protocol::AlarmEventRecord{.id = "paper-jam", .name = u"Paper jam"}));
    const auto actions = place.actions();
    ASSERT_EQ(actions.size(), 4U);
    EXPECT_EQ(actions[0], (protocol::AlarmActionRecord{.code = 1, .name = u"Send e-mail", .flag = true}));
    EXPECT_EQ(actions[3], (protocol::AlarmActionRecord{.code = 4, .name = u"Ignore", .flag = false}));
}

TEST(ProgramActionTable, noActionComesBeforeIgnoreByName) {
    AlarmEstate place;
    for (const auto& action : place.actions()) {
        EXPECT_GE(nameKey(action.name), nameKey(u"Ignore"));
    }
}

TEST(ProgramActionTable, theActionsBeginWithTheOneThatHasDestinations) {
    AlarmEstate place;
    place.addRecipient(u"Jo");
    const auto actions = place.actions();
    EXPECT_EQ(place.destinations(actions[0].code).size(), 1U);
    for (const auto& action : actions) {
        EXPECT_EQ(place.destinations(action.code).size(), action.flag ? 1U : 0U) << action.code;
    }
    EXPECT_TRUE(place.destinations(9999).empty());
}

TEST(ProgramActionTable, theDestinationsOfMailAreTheActiveRecipientsByName) {
    AlarmEstate place;
    const auto zoe = place.addRecipient(u"Zoe");
    const auto adam = place.addRecipient(u"adam");
    const auto off = place.addRecipient(u"Off");
    (void)place.recipientService().setActive({.id = off, .active = 0});
    const auto destinations = place.destinations(sendMail);
    ASSERT_EQ(destinations.size(), 2U);
    EXPECT_EQ(destinations[0], (protocol::AlarmDestinationRecord{.id = adam, .name = u"adam"}));
    EXPECT_EQ(destinations[1], (protocol::AlarmDestinationRecord{.id = zoe, .name = u"Zoe"}));
}

TEST(ProgramActionTable, counterProgramsBelongToTheServer) {
    AlarmEstate place;
    const auto counters = place.programs(2);
    ASSERT_EQ(counters.size(), 3U);
    EXPECT_EQ(counters[0].name, u"Copies, prints and scans");
    EXPECT_EQ(counters[2].name, u"Pages in total");
    EXPECT_EQ(place.programs(2, counters[1].id).size(), 1U);
    EXPECT_TRUE(place.programs(0, counters[1].id).empty());
    EXPECT_TRUE(place.programs(0).empty());
    for (const auto kind : std::initializer_list<std::uint8_t>{1, 3, 255}) {
        EXPECT_TRUE(place.programs(kind).empty());
    }

    const auto id = counters[0].id;
    EXPECT_EQ(place.programService().write({.id = id, .name = u"Mine", .comment = {}, .createdBy = {}}).status.text,
              u"Counter programs belong to the server and cannot be changed.");
    EXPECT_FALSE(isDone(place.programService().write({.id = id, .name = {}, .comment = {}, .createdBy = {}}).status));
    EXPECT_FALSE(isDone(place.addAction(id, "paper-jam", writeToLog)));
    EXPECT_EQ(place.programs(2), counters);
}

TEST(AlarmProgramService, aNewProgramIsAnsweredWithItsIdAndDated) {
    AlarmEstate place;
    const auto written = place.programService().write({.id = {}, .name = u"P", .comment = u"C", .createdBy = u"me"});
    EXPECT_TRUE(isDone(written.status));
    const auto program = place.programs(0, written.reply.id).at(0);
    EXPECT_EQ(program.name, u"P");
    EXPECT_EQ(program.comment, u"C");
    EXPECT_EQ(program.createdBy, u"me");
    EXPECT_THAT(wire::toUtf8(program.creationDate),
                testing::MatchesRegex("20[0-9]{2}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}"));
}

TEST(AlarmProgramService, aChangeKeepsTheDate) {
    AlarmEstate place;
    const auto id = place.addProgram(u"P");
    const auto before = place.programs(0, id).at(0);
    const auto written = place.programService().write({.id = id, .name = u"Q", .comment = {}, .createdBy = u"you"});
    EXPECT_TRUE(isDone(written.status));
    EXPECT_EQ(written.reply.id, id);
    EXPECT_EQ(place.programs(0, id).at(0),
              (protocol::AlarmProgramRecord{
                  .id = id, .name = u"Q", .comment = {}, .createdBy = u"you", .creationDate = before.creationDate}));
}

TEST(AlarmProgramService, anIdWithoutAnyTextIsADeleteAndIsAnsweredWithTheId) {
    AlarmEstate place;
    const auto id = place.addProgram(u"P");
    place.addAction(id, "paper-jam", writeToLog);
    const auto written = place.programService().write({.id = id, .name = {}, .comment = {}, .createdBy = {}});
    EXPECT_TRUE(isDone(written.status));
    EXPECT_EQ(written.reply.id, id);
    EXPECT_TRUE(place.programs().empty());
    EXPECT_TRUE(place.actionsOf(id).empty());
}

TEST(AlarmProgramService, printersThatPointAtADeletedProgramPointAtNone) {
    AlarmEstate place;
    const auto gone = place.addProgram(u"Gone");
    const auto kept = place.addProgram(u"Kept");
    const auto region = place.addRegion(u"North");
    const auto pointAt = [&](const std::u16string& name, const std::string& program) {
        auto printer = place.record(place.addPrinter(name, region));
        printer.alarmProgramId = program;
        EXPECT_TRUE(isDone(place.recordService().update({.record = printer})));
        return printer.id;
    };
    const auto one = pointAt(u"One", gone);
    const auto two = pointAt(u"Two", kept);
    (void)place.programService().write({.id = gone, .name = {}, .comment = {}, .createdBy = {}});
    EXPECT_EQ(place.record(one).alarmProgramId, "");
    EXPECT_EQ(place.record(two).alarmProgramId, kept);
}

TEST(AlarmProgramService, aRefusedProgramIsAnsweredWithoutAnIdAndChangesNothing) {
    AlarmEstate place;
    const auto one = place.addProgram(u"One");
    const auto two = place.addProgram(u"Two");
    const auto before = place.programs();
    const auto refusedText = [&](const std::string& id, const std::u16string& name, const std::u16string& comment) {
        const auto written =
            place.programService().write({.id = id, .name = name, .comment = comment, .createdBy = {}});
        EXPECT_EQ(written.reply.id, "");
        return written.status.text;
    };
    EXPECT_EQ(refusedText({}, u"", u""), u"An alarm program needs a name.");
    EXPECT_EQ(refusedText(one, u"", u"C"), u"An alarm program needs a name.");
    EXPECT_EQ(refusedText(one, std::u16string(1, u'\0'), u"C"), u"An alarm program needs a name.");
    EXPECT_EQ(refusedText({}, u"ONE", u""), u"There is an alarm program named \"ONE\" already.");
    EXPECT_EQ(refusedText(two, u"one", u""), u"There is an alarm program named \"one\" already.");
    EXPECT_EQ(refusedText("gone", u"Three", u""), u"The alarm program does not exist any more.");
    EXPECT_EQ(refusedText("gone", u"", u""), u"The alarm program does not exist any more.");
    EXPECT_EQ(place.programs(), before);
}

TEST(AlarmProgramService, aProgramTooLongToBeListedIsRefusedAndOneThatJustFitsIsTaken) {
    AlarmEstate place;
    // Five bytes of message, 38 of id, 2 + 2 of name, the counts of comment and creator, 2 + 38 of the date.
    const std::size_t room = (65535 - 5 - 38 - 4 - 2 - 2 - 40) / 2;
    const auto write = [&](std::size_t length) {
        return place.programService().write(
            {.id = {}, .name = u"P", .comment = std::u16string(length, u'c'), .createdBy = {}});
    };
    EXPECT_EQ(write(room + 1).reply.id, "");
    EXPECT_NE(write(room).reply.id, "");
}

TEST(AlarmProgramService, programsAreListedByName) {
    AlarmEstate place;
    for (const auto* const name : {u"b", u"C", u"A"}) {
        place.addProgram(name);
    }
    std::u16string names;
    for (const auto& one : place.programs()) {
        names += one.name;
    }
    EXPECT_EQ(names, u"AbC");
}

TEST(ProgramActionTable, areListedInTheOrderOfMakingInTheServersWords) {
    AlarmEstate place;
    const auto jo = place.addRecipient(u"Jo");
    const auto program = place.addProgram(u"P");
    EXPECT_TRUE(isDone(place.addAction(program, "paper-jam", sendMail, jo)));
    EXPECT_TRUE(isDone(place.addAction(program, "low-paper", writeToLog)));
    const auto actions = place.actionsOf(program);
    ASSERT_EQ(actions.size(), 2U);
    EXPECT_EQ(actions[0],
              (protocol::ProgramActionRecord{
                  .id = actions[0].id, .actionName = "Send e-mail", .eventName = "Paper jam", .recipient = u"Jo"}));
    EXPECT_EQ(
        actions[1],
        (protocol::ProgramActionRecord{
            .id = actions[1].id, .actionName = "Write to the log", .eventName = "Paper is low", .recipient = {}}));
    EXPECT_NE(actions[0].id, actions[1].id);
    EXPECT_TRUE(place.actionsOf("nobody").empty());
}

TEST(ProgramActionTable, anActionThatCannotBeIsRefused) {
    AlarmEstate place;
    const auto jo = place.addRecipient(u"Jo");
    const auto program = place.addProgram(u"P");
    EXPECT_EQ(place.addAction("gone", "paper-jam", writeToLog).text, u"The alarm program does not exist any more.");
    EXPECT_EQ(place.addAction(program, "Select", writeToLog).text, u"This server knows no such event.");
    EXPECT_EQ(place.addAction(program, "paper-jam", 77).text, u"This server knows no such action.");
    EXPECT_EQ(place.addAction(program, "paper-jam", writeToLog, jo).text, u"This action has no destination.");
    EXPECT_EQ(place.addAction(program, "paper-jam", sendMail).text,
              u"This action needs a recipient as its destination.");
    EXPECT_FALSE(isDone(place.addAction(program, "paper-jam", sendMail, "gone")));
    EXPECT_TRUE(place.actionsOf(program).empty());
}

TEST(ProgramActionTable, theSameActionOccursOnceInAProgram) {
    AlarmEstate place;
    const auto jo = place.addRecipient(u"Jo");
    const auto program = place.addProgram(u"P");
    const auto other = place.addProgram(u"Other");
    EXPECT_TRUE(isDone(place.addAction(program, "paper-jam", sendMail, jo)));
    EXPECT_TRUE(isDone(place.addAction(program, "paper-jam", writeToLog)));
    EXPECT_EQ(place.addAction(program, "paper-jam", writeToLog).text,
              u"The alarm program \"P\" has this action already.");
    EXPECT_FALSE(isDone(place.addAction(program, "paper-jam", sendMail, jo)));
    EXPECT_TRUE(isDone(place.addAction(other, "paper-jam", sendMail, jo)));
    EXPECT_EQ(place.actionsOf(program).size(), 2U);
}

TEST(ProgramActionTable, anInactiveRecipientMayStillBeADestination) {
    AlarmEstate place;
    const auto jo = place.addRecipient(u"Jo");
    (void)place.recipientService().setActive({.id = jo, .active = 0});
    const auto program = place.addProgram(u"P");
    EXPECT_TRUE(isDone(place.addAction(program, "paper-jam", sendMail, jo)));
}

TEST(ProgramActionTable, anActionIsDeletedByItsIdAndNotByItsDestination) {
    AlarmEstate place;
    const auto jo = place.addRecipient(u"Jo");
    const auto program = place.addProgram(u"P");
    place.addAction(program, "paper-jam", sendMail, jo);
    EXPECT_FALSE(isDone(place.programService().removeAction({.actionId = jo})));
    ASSERT_EQ(place.actionsOf(program).size(), 1U);
    EXPECT_TRUE(isDone(place.programService().removeAction({.actionId = place.actionsOf(program)[0].id})));
    EXPECT_TRUE(place.actionsOf(program).empty());
}

} // namespace
} // namespace server
