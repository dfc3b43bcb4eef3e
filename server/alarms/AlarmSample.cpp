#include "server/alarms/AlarmSample.h"

#include "protocol/alarms/AlarmProgram.h"
#include "server/alarms/AlarmProgramTable.h"
#include "server/alarms/EmailRecipientTable.h"
#include "server/alarms/ProgramActionTable.h"
#include "wire/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace server {

namespace {

namespace kind = protocol::alarmProgramKind;

constexpr int printersPerRecipient = 25;
constexpr int fewestRecipients = 12;
constexpr int mostRecipients = 2000;
constexpr int printersPerOfficeProgram = 1000;
constexpr std::uint16_t sendMail = 1;

struct Person {
    std::u16string_view given;
    std::u16string_view family;
    std::string_view address;
};

struct Action {
    std::string_view event;
    std::uint16_t code;
};

struct Program {
    std::u16string_view name;
    std::u16string_view comment;
    std::u16string_view createdBy;
    std::u16string_view creationDate;
    std::array<Action, 4> actions; // up to the first without an event
};

constexpr std::array<Person, 12> people = {{
    {u"Annika", u"Söderholm", "annika.soderholm"},
    {u"Bartosz", u"Wiśnik", "bartosz.wisnik"},
    {u"Celeste", u"Marchand", "celeste.marchand"},
    {u"Dieter", u"Vollmar", "dieter.vollmar"},
    {u"Elena", u"Papadaki", "elena.papadaki"},
    {u"Fintan", u"O’Marra", "fintan.omarra"},
    {u"Greta", u"Lindqvist", "greta.lindqvist"},
    {u"Haruto", u"Mizuhara", "haruto.mizuhara"},
    {u"Inês", u"Carvalhal", "ines.carvalhal"},
    {u"Jarek", u"Polański", "jarek.polanski"},
    {u"Käthe", u"Brandner", "kaethe.brandner"},
    {u"Łucja", u"Zawada", "lucja.zawada"},
}};

constexpr std::array<Program, 5> programs = {{
    {u"Office hours",
     u"Mail to the help desk, nothing at night",
     u"admin",
     u"2025-02-03 08:12:44",
     {{{"no-paper", sendMail}, {"paper-jam", sendMail}, {"no-contact", 2}, {"low-paper", 4}}}},
    {u"Label printers",
     u"Stop at once, or labels are lost",
     u"admin",
     u"2025-02-03 08:31:07",
     {{{"no-paper", 3}, {"no-paper", sendMail}, {"door-open", 3}, {"low-toner", 4}}}},
    {u"Supplies",
     u"Orders toner before it runs out",
     u"k.brandner",
     u"2025-03-17 15:40:20",
     {{{"low-toner", sendMail}, {"no-toner", sendMail}, {"low-paper", 2}, {}}}},
    {u"Around the clock",
     u"Print centre; every event to the people on call",
     u"d.vollmar",
     u"2025-06-30 06:00:00",
     {{{"no-contact", sendMail}, {"offline", sendMail}, {"service", sendMail}, {"job-failed", 2}}}},
    {u"Silent", u"For printers in store", u"", u"2026-01-12 11:05:59", {{{"no-contact", 4}, {}, {}, {}}}},
}};

// The first dozen have plain names; the later ones carry a number, as in large companies.
std::string addRecipient(StoreConnection& connection, SampleRandom& random, int number) {
    const auto count = static_cast<int>(people.size());
    const auto& person = people[static_cast<std::size_t>(number % count)];
    const int round = number / count;
    const auto suffix = round == 0 ? std::string() : fmt::format("{}", round + 1);
    protocol::EmailRecipientRecord recipient{
        .id = random.newId(),
        .email = wire::toWide(fmt::format("{}{}@vantrel.example", person.address, suffix)),
        .name = std::u16string(person.given) + u" " + std::u16string(person.family),
        .active = random.below(5) != 0};
    if (round > 0) {
        recipient.name += u" (" + wire::toWide(suffix) + u")";
    }
    connection.table<EmailRecipientTable>().insert(recipient);
    return recipient.id;
}

void addProgram(StoreConnection& connection, SampleRandom& random, const Program& program, const std::u16string& name,
                const std::vector<std::string>& recipients) {
    const std::string id = random.newId();
    connection.table<AlarmProgramTable>().insert({.record = {.id = id,
                                                             .name = name,
                                                             .comment = std::u16string(program.comment),
                                                             .createdBy = std::u16string(program.createdBy),
                                                             .creationDate = std::u16string(program.creationDate)},
                                                  .kind = kind::alarm});
    for (const auto& [event, code] : program.actions) {
        if (event.empty()) {
            break;
        }
        connection.table<ProgramActionTable>().insert(
            random.newId(), {.programId = id,
                             .eventId = std::string(event),
                             .actionCode = code,
                             .destinationId = code == sendMail ? random.anyOf(recipients) : std::string()});
    }
}

} // namespace

void addAlarmSample(StoreConnection& connection, SampleRandom& random, int printers) {
    std::vector<std::string> recipients;
    const int recipientCount = std::clamp(printers / printersPerRecipient, fewestRecipients, mostRecipients);
    recipients.reserve(static_cast<std::size_t>(recipientCount));
    for (int number = 0; number < recipientCount; ++number) {
        recipients.push_back(addRecipient(connection, random, number));
    }
    for (const auto& program : programs) {
        addProgram(connection, random, program, std::u16string(program.name), recipients);
    }
    for (int office = 1; office <= printers / printersPerOfficeProgram; ++office) {
        addProgram(connection, random, random.anyOf(programs), u"Offices " + wire::toWide(fmt::format("{:03}", office)),
                   recipients);
    }
    connection.table<AlarmProgramTable>().pointPrinters();
}

} // namespace server
