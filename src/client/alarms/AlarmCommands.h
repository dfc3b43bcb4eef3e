#pragma once

#include "client/CQVXAdminClass2.h"
#include "client/RecordCursor.h"
#include "client/alarms/OneTimeList.h"
#include "protocol/alarms/AlarmChoices.h"
#include "protocol/alarms/AlarmProgram.h"
#include "protocol/alarms/EmailRecipient.h"
#include "protocol/alarms/ProgramAction.h"

namespace client {

// The part of CQVXAdminClass for alarm programs and e-mail recipients. Cursors return their lists from the last record
// to the first; the whole lists contain the records not returned yet, in the order of the wire.
class AlarmCommands {
public:
    explicit AlarmCommands(CQVXAdminClass2& client) : client_(client) {}

    // One recipient, or all of them.
    bool listEmailRecipients(const std::string& id = {});
    bool nextEmailRecipient(protocol::EmailRecipientRecord& recipient);
    [[nodiscard]] const std::vector<protocol::EmailRecipientRecord>& emailRecipients() const {
        return recipients_.records();
    }

    // Adds a recipient without an id, changes one with it. One without a name and an address is deleted.
    bool writeEmailRecipient(const protocol::EmailRecipientRecord& recipient);
    bool deleteEmailRecipient(const std::string& id);
    bool setRecipientActive(const std::string& id, bool active);

    // All programs of a kind of protocol::alarmProgramKind, or the one with the id.
    bool listAlarmPrograms(std::uint8_t kind = protocol::alarmProgramKind::alarm, const std::string& id = {});
    bool nextAlarmProgram(protocol::AlarmProgramRecord& program);
    [[nodiscard]] const std::vector<protocol::AlarmProgramRecord>& alarmPrograms() const { return programs_.records(); }

    // Adds a program without an id, changes one with it; the id is then the one in the server's answer, empty if
    // refused. A program without any text is deleted. False when there is no answer.
    bool writeAlarmProgram(std::string& id, const wire::WideString& name, const wire::WideString& comment,
                           const wire::WideString& createdBy);
    bool deleteAlarmProgram(const std::string& id);

    // Each of these three fetches its list once in the life of this object, with its first call, and returns one record
    // per call; false when none are left or the list could not be fetched as a whole.
    bool listAlarmEvents(protocol::AlarmEventRecord& event);
    bool listAlarmActions(protocol::AlarmActionRecord& action);
    // Every later call returns the destinations of the action in the first call, whatever action it names.
    bool listAlarmDestinations(std::uint16_t actionCode, protocol::AlarmDestinationRecord& destination);
    [[nodiscard]] const std::vector<protocol::AlarmEventRecord>& alarmEvents() const { return events_.records(); }
    [[nodiscard]] const std::vector<protocol::AlarmActionRecord>& alarmActions() const { return actions_.records(); }
    [[nodiscard]] const std::vector<protocol::AlarmDestinationRecord>& alarmDestinations() const {
        return destinations_.records();
    }

    bool listProgramActions(const std::string& programId);
    bool nextProgramAction(protocol::ProgramActionRecord& action);
    [[nodiscard]] const std::vector<protocol::ProgramActionRecord>& programActions() const {
        return programActions_.records();
    }

    bool addProgramAction(const std::string& programId, const std::string& eventId, std::uint16_t actionCode,
                          const std::string& destinationId);
    bool deleteProgramAction(const std::string& actionId);

private:
    CQVXAdminClass2& client_;
    RecordCursor<protocol::EmailRecipientRecord> recipients_;
    RecordCursor<protocol::AlarmProgramRecord> programs_;
    RecordCursor<protocol::ProgramActionRecord> programActions_;
    OneTimeList<protocol::AlarmEventRecord> events_;
    OneTimeList<protocol::AlarmActionRecord> actions_;
    OneTimeList<protocol::AlarmDestinationRecord> destinations_;
};

} // namespace client
