#pragma once

#include "protocol/alarms/AlarmChoices.h"
#include "protocol/alarms/ProgramAction.h"
#include "server/alarms/AlarmProgramService.h"
#include "server/alarms/AlarmProgramTable.h"
#include "server/alarms/EmailRecipientService.h"
#include "server/alarms/EmailRecipientTable.h"
#include "server/alarms/ProgramActionTable.h"
#include "server/store/RecordColumns.h"
#include "tests/server/support/TestEstate.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace server::test {

// A database for a test about alarms, with shorthands for what tests do with it.
class AlarmEstate : public TestEstate {
public:
    [[nodiscard]] EmailRecipientService recipientService() { return EmailRecipientService(connection()); }
    [[nodiscard]] AlarmProgramService programService() { return AlarmProgramService(connection()); }

    template <class R>
    [[nodiscard]] static std::vector<R> recordsOf(Listing listing) {
        std::vector<R> records;
        while (listing.rows.next()) {
            records.push_back(readFields<R>(listing.rows));
        }
        EXPECT_EQ(static_cast<std::size_t>(listing.count), records.size());
        return records;
    }

    [[nodiscard]] auto recipients(const std::string& id = {}) {
        return recordsOf<protocol::EmailRecipientRecord>(connection().table<EmailRecipientTable>().list({.id = id}));
    }
    [[nodiscard]] auto programs(std::uint8_t kind = 0, const std::string& id = {}) {
        return recordsOf<protocol::AlarmProgramRecord>(
            connection().table<AlarmProgramTable>().list({.kind = kind, .filter = id}));
    }
    [[nodiscard]] auto actionsOf(const std::string& program) {
        return recordsOf<protocol::ProgramActionRecord>(
            connection().table<ProgramActionTable>().list({.programId = program}));
    }
    [[nodiscard]] auto events() {
        return recordsOf<protocol::AlarmEventRecord>(
            connection().table<ProgramActionTable>().list(protocol::ListAlarmEventsRequest{}));
    }
    [[nodiscard]] auto actions() {
        return recordsOf<protocol::AlarmActionRecord>(
            connection().table<ProgramActionTable>().list(protocol::ListAlarmActionsRequest{}));
    }
    [[nodiscard]] auto destinations(std::uint16_t code) {
        return recordsOf<protocol::AlarmDestinationRecord>(
            connection().table<ProgramActionTable>().list(protocol::ListAlarmDestinationsRequest{.actionCode = code}));
    }

    // Its id; empty when it was refused.
    std::string addRecipient(const std::u16string& name, const std::u16string& email = u"a@b") {
        const auto before = recipients();
        (void)recipientService().write({.id = {}, .name = name, .email = email, .active = 1});
        for (const auto& one : recipients()) {
            if (std::ranges::find(before, one) == before.end()) {
                return one.id;
            }
        }
        return {};
    }
    // The same.
    std::string addProgram(const std::u16string& name) {
        return programService().write({.id = {}, .name = name, .comment = {}, .createdBy = {}}).reply.id;
    }
    protocol::StatusReply addAction(const std::string& program, const std::string& event, std::uint16_t code,
                                    const std::string& destination = {}) {
        return programService().addAction(
            {.programId = program, .eventId = event, .actionCode = code, .destinationId = destination});
    }
};

} // namespace server::test
