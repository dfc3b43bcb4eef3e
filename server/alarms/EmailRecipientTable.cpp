#include "server/alarms/EmailRecipientTable.h"

#include "server/store/NameKey.h"
#include "server/store/RecordColumns.h"

namespace server {

using protocol::EmailRecipientRecord;

namespace {

std::string selectRecipients(const char* rest) {
    return "SELECT " + columnNames<EmailRecipientRecord>() + " FROM emailRecipient " + rest;
}

} // namespace

EmailRecipientTable::EmailRecipientTable(sqlite3* connection)
    : exists_(connection, "SELECT 1 FROM emailRecipient WHERE id = ?"),
      insert_(connection, "INSERT INTO emailRecipient (" + columnNames<EmailRecipientRecord>() + ", nameKey) VALUES (" +
                              columnPlaces<EmailRecipientRecord>() + ", ?)"),
      update_(connection,
              "UPDATE emailRecipient SET " + columnAssignments<EmailRecipientRecord>() + ", nameKey = ? WHERE id = ?"),
      setActive_(connection, "UPDATE emailRecipient SET active = ? WHERE id = ?"),
      remove_(connection, "DELETE FROM emailRecipient WHERE id = ?"),
      listAll_(connection, selectRecipients("ORDER BY nameKey, number")),
      listOne_(connection, selectRecipients("WHERE id = ?")) {}

bool EmailRecipientTable::exists(const std::string& id) {
    return exists_.run(id).next();
}

void EmailRecipientTable::insert(const EmailRecipientRecord& recipient) {
    insert_.bind(bindFields(insert_, recipient), nameKey(recipient.name));
    insert_.execute();
}

void EmailRecipientTable::update(const EmailRecipientRecord& recipient) {
    int next = bindFields(update_, recipient);
    update_.bind(next++, nameKey(recipient.name));
    update_.bind(next, recipient.id);
    update_.execute();
}

void EmailRecipientTable::setActive(const std::string& id, bool active) {
    setActive_.execute(active, id);
}

void EmailRecipientTable::remove(const std::string& id) {
    remove_.execute(id);
}

Listing EmailRecipientTable::list(const protocol::ListEmailRecipientsRequest& request) {
    return request.id.empty() ? listAll_.run() : listOne_.run(request.id);
}

} // namespace server
