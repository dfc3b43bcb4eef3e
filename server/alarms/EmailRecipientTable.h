#pragma once

#include "protocol/alarms/EmailRecipient.h"
#include "server/store/ListQuery.h"

namespace server {

// The e-mail recipients, accessed over one connection to the database without any checks. Throws StoreError.
class EmailRecipientTable {
public:
    explicit EmailRecipientTable(sqlite3* connection);

    [[nodiscard]] bool exists(const std::string& id);
    void insert(const protocol::EmailRecipientRecord& recipient);
    // Updates all fields, by the id.
    void update(const protocol::EmailRecipientRecord& recipient);
    void setActive(const std::string& id, bool active);
    // Also removes the actions that mail to the recipient.
    void remove(const std::string& id);

    // All by name and then in the order of creation, or the one with the id.
    [[nodiscard]] Listing list(const protocol::ListEmailRecipientsRequest& request);

private:
    Query exists_;
    Query insert_;
    Query update_;
    Query setActive_;
    Query remove_;
    ListQuery listAll_;
    ListQuery listOne_;
};

} // namespace server
