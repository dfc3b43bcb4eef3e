#include "tests/client/ClientTest.h"

namespace client {
namespace {

using protocol::AlarmActionRecord;
using protocol::AlarmDestinationRecord;
using protocol::AlarmEventRecord;
using protocol::AlarmProgramRecord;
using protocol::EmailRecipientRecord;
using protocol::ProgramActionRecord;

const EmailRecipientRecord jo{.id = "r1", .email = u"a@b", .name = u"Jo", .active = true};

class Alarms : public ClientTest {
protected:
    // An event or a destination with a name of one letter.
    static Bytes named(char letter) {
        Bytes fields = hex("01 00 65  02 00 41 00");
        fields[5] = static_cast<std::uint8_t>(letter);
        return fields;
    }
    static Bytes recipient(char letter) {
        Bytes fields = hex("01 00 72  00 00  02 00 41 00  01");
        fields[7] = static_cast<std::uint8_t>(letter);
        return fields;
    }

    // Answers the first connection without the end of the last record, and later ones completely.
    void breakOffFirst(const Bytes& whole) {
        serve({[whole](Connection& connection) {
                   connection.expectFrame();
                   connection.send({whole.begin(), whole.end() - 12});
               },
               [whole](Connection& connection) {
                   connection.expectFrame();
                   connection.send(whole);
                   connection.untilClosed();
               }});
    }
};

TEST_F(Alarms, recipientsAreListedAllOrOneByItsId) {
    answer({countedList({}), countedList({hex("02 00 72 31  06 00 61 00 40 00 62 00  04 00 4A 00 6F 00  01")})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listEmailRecipients());
    EXPECT_TRUE(client.emailRecipients().empty());
    EXPECT_TRUE(client.listEmailRecipients("r1"));

    EXPECT_EQ(client.emailRecipients(), std::vector<EmailRecipientRecord>{jo});
    EXPECT_EQ(received(0), request(23, "00 00"));
    EXPECT_EQ(received(1), request(23, "02 00 72 31"));
}

TEST_F(Alarms, recipientsComeOutInTheReverseOfTheServersOrder) {
    answer({countedList({recipient('A'), recipient('B'), recipient('C')})});
    CQVXAdminClass client(settings);
    client.listEmailRecipients();

    wire::WideString seen;
    for (EmailRecipientRecord one; client.nextEmailRecipient(one);) {
        seen += one.name;
    }

    EXPECT_EQ(seen, u"CBA");
}

TEST_F(Alarms, aSecondNextOnAnEmptyCursorKeepsReturningFalseAndDoesNotFetch) {
    answer({countedList({recipient('A')})});
    CQVXAdminClass client(settings);
    client.listEmailRecipients();
    EmailRecipientRecord one;

    EXPECT_TRUE(client.nextEmailRecipient(one));
    EXPECT_FALSE(client.nextEmailRecipient(one));
    EXPECT_FALSE(client.nextEmailRecipient(one));

    EXPECT_EQ(one.name, u"A");
    EXPECT_EQ(observer.ended.size(), 1U);
}

TEST_F(Alarms, aRecipientIsAddedWithoutAnIdAndChangedWithIt) {
    answer({Bytes{}, Bytes{}});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.writeEmailRecipient({.id = {}, .email = u"a@b", .name = u"Jo", .active = true}));
    EXPECT_TRUE(client.writeEmailRecipient({.id = "r1", .email = u"c", .name = u"Jo", .active = false}));

    EXPECT_EQ(received(0), request(24, "00 00  04 00 4A 00 6F 00  06 00 61 00 40 00 62 00  01"));
    EXPECT_EQ(received(1), request(24, "02 00 72 31  04 00 4A 00 6F 00  02 00 63 00  00"));
    EXPECT_EQ(observer.ended.at(0).summary, "Jo");
}

TEST_F(Alarms, aDeleteOfARecipientSendsEmptyStringsAndNotAFlag) {
    answer({Bytes{}});

    EXPECT_TRUE(CQVXAdminClass(settings).deleteEmailRecipient("r1"));

    EXPECT_EQ(received(), request(24, "02 00 72 31  00 00  00 00  00"));
    EXPECT_EQ(observer.ended.at(0).summary, "r1");
}

TEST_F(Alarms, aRecipientIsSwitchedOnAndOff) {
    answer({Bytes{}, Bytes{}});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.setRecipientActive("r1", true));
    EXPECT_TRUE(client.setRecipientActive("r1", false));

    EXPECT_EQ(received(0), request(25, "02 00 72 31  01"));
    EXPECT_EQ(received(1), request(25, "02 00 72 31  00"));
}

TEST_F(Alarms, programsAreListedByKindAndById) {
    answer({countedList({hex("02 00 70 31  02 00 4E 00  00 00  02 00 75 00  02 00 32 00"),
                         hex("02 00 70 32  02 00 4D 00  00 00  00 00  00 00")}),
            countedList({}), countedList({})});
    CQVXAdminClass client(settings);
    AlarmProgramRecord program;

    EXPECT_TRUE(client.listAlarmPrograms());
    EXPECT_TRUE(client.nextAlarmProgram(program));
    EXPECT_EQ(program.id, "p2");
    EXPECT_TRUE(client.nextAlarmProgram(program));
    EXPECT_EQ(program,
              (AlarmProgramRecord{.id = "p1", .name = u"N", .comment = {}, .createdBy = u"u", .creationDate = u"2"}));
    EXPECT_FALSE(client.nextAlarmProgram(program));
    EXPECT_TRUE(client.listAlarmPrograms(protocol::alarmProgramKind::counter));
    EXPECT_TRUE(client.listAlarmPrograms(0, "p1"));

    EXPECT_EQ(received(0), request(27, "00  00 00"));
    EXPECT_EQ(received(1), request(27, "02  00 00"));
    EXPECT_EQ(received(2), request(27, "00  02 00 70 31"));
}

TEST_F(Alarms, theIdOfTheAnswerIsStoredWhenAProgramIsWritten) {
    answer({frame({dataMessage(hex("02 00 70 31"))}), frame({dataMessage(hex("02 00 70 31"))}),
            frame({dataMessage(hex("00 00"))})});
    CQVXAdminClass client(settings);
    std::string id;

    EXPECT_TRUE(client.writeAlarmProgram(id, u"N", u"Co", u""));
    EXPECT_EQ(id, "p1");
    EXPECT_TRUE(client.writeAlarmProgram(id, u"N", u"", u"u"));
    EXPECT_EQ(id, "p1");
    EXPECT_TRUE(client.writeAlarmProgram(id, u"N", u"", u""));
    EXPECT_EQ(id, "") << "as a server answers that refuses";

    EXPECT_EQ(received(0), request(28, "00 00  02 00 4E 00  04 00 43 00 6F 00  00 00"));
    EXPECT_EQ(received(1), request(28, "02 00 70 31  02 00 4E 00  00 00  02 00 75 00"));
}

TEST_F(Alarms, aDeleteOfAProgramSendsEmptyTexts) {
    answer({frame({dataMessage(hex("02 00 70 31"))})});

    EXPECT_TRUE(CQVXAdminClass(settings).deleteAlarmProgram("p1"));

    EXPECT_EQ(received(), request(28, "02 00 70 31  00 00  00 00  00 00"));
}

TEST_F(Alarms, aProgramThatIsNotAnsweredKeepsItsIdAndIsFalse) {
    serve({[](Connection& connection) { connection.expectFrame(); }});
    std::string id = "p1";

    EXPECT_FALSE(CQVXAdminClass(settings).writeAlarmProgram(id, u"N", u"", u""));

    EXPECT_EQ(id, "p1");
}

TEST_F(Alarms, eventsAreFetchedOnceAndHandedOutLastFirst) {
    answer({countedList({named('A'), named('B')})});
    CQVXAdminClass client(settings);
    AlarmEventRecord event;

    wire::WideString seen;
    while (client.listAlarmEvents(event)) {
        seen += event.name;
    }
    EXPECT_FALSE(client.listAlarmEvents(event));

    EXPECT_EQ(seen, u"BA");
    EXPECT_EQ(received(), frame({commandMessage(29, 1)}));
    EXPECT_EQ(observer.ended.size(), 1U);
}

TEST_F(Alarms, actionsAreFetchedOnceAndHandedOutLastFirst) {
    answer({countedList({hex("01 00  02 00 41 00  01"), hex("02 00  02 00 42 00  00")})});
    CQVXAdminClass client(settings);
    AlarmActionRecord action;

    EXPECT_TRUE(client.listAlarmActions(action));
    EXPECT_EQ(action, (AlarmActionRecord{.code = 2, .name = u"B", .flag = false}));
    EXPECT_TRUE(client.listAlarmActions(action));
    EXPECT_EQ(action, (AlarmActionRecord{.code = 1, .name = u"A", .flag = true}));
    EXPECT_FALSE(client.listAlarmActions(action));

    EXPECT_EQ(received(), frame({commandMessage(30, 1)}));
}

TEST_F(Alarms, destinationsForASecondActionCodeOnTheSameObjectAreNothingNew) {
    answer({countedList({named('A'), named('B')})});
    CQVXAdminClass client(settings);
    AlarmDestinationRecord destination;

    EXPECT_TRUE(client.listAlarmDestinations(1, destination));
    EXPECT_TRUE(client.listAlarmDestinations(2, destination));
    EXPECT_EQ(destination.name, u"A");
    EXPECT_FALSE(client.listAlarmDestinations(2, destination));

    EXPECT_EQ(received(), request(31, "01 00"));
    EXPECT_EQ(observer.ended.size(), 1U);
}

TEST_F(Alarms, anEmptyListOfEventsCountsAsFetched) {
    answer({countedList({})});
    CQVXAdminClass client(settings);
    AlarmEventRecord event;

    EXPECT_FALSE(client.listAlarmEvents(event));
    EXPECT_FALSE(client.listAlarmEvents(event));

    EXPECT_EQ(observer.ended.size(), 1U);
}

TEST_F(Alarms, eventsThatBreakOffStayInTheCacheAndAreFetchedAgain) {
    breakOffFirst(countedList({named('A'), named('B')}));
    CQVXAdminClass client(settings);
    AlarmEventRecord event;

    EXPECT_FALSE(client.listAlarmEvents(event));
    EXPECT_EQ(client.alarmEvents().size(), 1U);
    EXPECT_TRUE(client.listAlarmEvents(event));

    EXPECT_EQ(event.name, u"B");
    EXPECT_EQ(client.alarmEvents().size(), 1U);
    EXPECT_EQ(observer.ended.size(), 2U);
}

TEST_F(Alarms, actionsAndDestinationsThatBreakOffAreFetchedAgain) {
    breakOffFirst(countedList({hex("01 00  02 00 41 00  01")}));
    CQVXAdminClass client(settings);
    AlarmActionRecord action;
    EXPECT_FALSE(client.listAlarmActions(action));
    EXPECT_TRUE(client.listAlarmActions(action));

    breakOffFirst(countedList({named('A')}));
    AlarmDestinationRecord destination;
    EXPECT_FALSE(client.listAlarmDestinations(1, destination));
    EXPECT_TRUE(client.listAlarmDestinations(2, destination)) << "the first code never brought a list";
    EXPECT_EQ(destination.name, u"A");
}

TEST_F(Alarms, aMissingRecordOfRecipientsOrProgramsThrows) {
    const Bytes either = hex("01 00 72  00 00  02 00 41 00  00 00  00 00"); // reads as a recipient and as a program
    const Bytes whole = countedList({either, either});
    const support::ScriptedServer::Script cut = [whole](Connection& connection) {
        connection.expectFrame();
        connection.send({whole.begin(), whole.end() - 12});
    };
    serve({cut, cut});
    CQVXAdminClass client(settings);

    EXPECT_EQ(thrownBy([&] { client.listEmailRecipients(); }), "failed to get message");
    EXPECT_EQ(thrownBy([&] { client.listAlarmPrograms(); }), "failed to get message");
    EXPECT_TRUE(client.emailRecipients().empty());
}

TEST_F(Alarms, aRecordThatIsTooShortThrowsReadingOutsideScope) {
    answer({countedList({named('A'), hex("00 00")})});
    CQVXAdminClass client(settings);
    AlarmEventRecord event;

    EXPECT_EQ(thrownBy([&] { client.listAlarmEvents(event); }), "plain: Reading outside scope");
}

TEST_F(Alarms, actionsOfAProgramAreListedAddedAndDeleted) {
    answer({countedList({hex("02 00 61 31  01 00 6D  01 00 6A  02 00 4A 00")}), Bytes{}, Bytes{}});
    CQVXAdminClass client(settings);
    ProgramActionRecord action;

    EXPECT_TRUE(client.listProgramActions("p1"));
    EXPECT_TRUE(client.nextProgramAction(action));
    EXPECT_FALSE(client.nextProgramAction(action));
    EXPECT_TRUE(client.addProgramAction("p1", "jam", 1, "r1"));
    EXPECT_TRUE(client.deleteProgramAction("a1"));

    EXPECT_EQ(action, (ProgramActionRecord{.id = "a1", .actionName = "m", .eventName = "j", .recipient = u"J"}));
    EXPECT_EQ(received(0), request(32, "02 00 70 31"));
    EXPECT_EQ(received(1), request(33, "02 00 70 31  03 00 6A 61 6D  01 00  02 00 72 31"));
    EXPECT_EQ(received(2), request(34, "02 00 61 31"));
}

TEST_F(Alarms, actionsOfAProgramThatBreakOffStayInTheListButAreNotHandedOut) {
    breakOffFirst(countedList({hex("01 00 61  00 00  00 00  00 00"), hex("01 00 62  00 00  00 00  00 00")}));
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listProgramActions("p1"));

    EXPECT_EQ(client.programActions().size(), 1U);
    ProgramActionRecord action;
    EXPECT_EQ(thrownBy([&] { client.nextProgramAction(action); }), "invalid vector<T> subscript");
}

TEST_F(Alarms, everythingIsFalseAndEmptyWithoutAServer) {
    CQVXAdminClass client(settings);
    AlarmEventRecord event;
    AlarmActionRecord action;
    AlarmDestinationRecord destination;
    std::string id = "p1";

    EXPECT_FALSE(client.listEmailRecipients());
    EXPECT_FALSE(client.writeEmailRecipient(jo));
    EXPECT_FALSE(client.deleteEmailRecipient("r1"));
    EXPECT_FALSE(client.setRecipientActive("r1", true));
    EXPECT_FALSE(client.listAlarmPrograms());
    EXPECT_FALSE(client.writeAlarmProgram(id, u"N", u"", u""));
    EXPECT_FALSE(client.deleteAlarmProgram("p1"));
    EXPECT_FALSE(client.listAlarmEvents(event));
    EXPECT_FALSE(client.listAlarmActions(action));
    EXPECT_FALSE(client.listAlarmDestinations(1, destination));
    EXPECT_FALSE(client.listProgramActions("p1"));
    EXPECT_FALSE(client.addProgramAction("p1", "jam", 1, "r1"));
    EXPECT_FALSE(client.deleteProgramAction("a1"));

    EXPECT_EQ(id, "p1");
    EXPECT_TRUE(client.emailRecipients().empty());
    EXPECT_TRUE(client.alarmPrograms().empty());
    EXPECT_TRUE(client.alarmEvents().empty());
    EXPECT_TRUE(client.programActions().empty());
    for (const auto& report : observer.ended) {
        EXPECT_EQ(report.text, "Failed to connect to server");
    }
}

TEST_F(Alarms, eventsAreFetchedOnceAServerIsThere) {
    CQVXAdminClass client(settings);
    AlarmEventRecord event;
    EXPECT_FALSE(client.listAlarmEvents(event));

    answer({countedList({named('A')})});

    EXPECT_TRUE(client.listAlarmEvents(event));
    EXPECT_EQ(event.name, u"A");
}

} // namespace
} // namespace client
