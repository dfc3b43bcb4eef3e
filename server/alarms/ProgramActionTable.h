#pragma once

#include "protocol/alarms/AlarmChoices.h"
#include "protocol/alarms/ProgramAction.h"
#include "server/store/ListQuery.h"

namespace server {

// The actions of alarm programs, and what they are made of: events, kinds of actions and destinations. Makes no checks.
// Throws StoreError.
class ProgramActionTable {
public:
    explicit ProgramActionTable(sqlite3* connection);

    [[nodiscard]] bool eventExists(const std::string& id);
    // Whether an action mails to a recipient; empty for a code that does not exist.
    [[nodiscard]] std::optional<bool> needsRecipient(std::uint16_t actionCode);
    // Whether the program already has that action.
    [[nodiscard]] bool exists(const protocol::AddProgramActionRequest& action);

    void insert(const std::string& id, const protocol::AddProgramActionRequest& action);
    // False when there is no such action.
    bool remove(const std::string& id);

    // In the order of creation.
    [[nodiscard]] Listing list(const protocol::ListProgramActionsRequest& request);
    [[nodiscard]] Listing list(const protocol::ListAlarmEventsRequest& request);
    // By code.
    [[nodiscard]] Listing list(const protocol::ListAlarmActionsRequest& request);
    // The active recipients by name, for an action that mails to one.
    [[nodiscard]] Listing list(const protocol::ListAlarmDestinationsRequest& request);

private:
    Query eventExists_;
    Query needsRecipient_;
    Query exists_;
    Query insert_;
    Query remove_;
    ListQuery listOfProgram_;
    ListQuery listEvents_;
    ListQuery listActions_;
    ListQuery listDestinations_;
};

} // namespace server
