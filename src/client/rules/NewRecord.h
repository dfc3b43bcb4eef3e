#pragma once

#include "wire/WireUuid.h"

#include <string>

namespace client {

// Gives a new random id to a record of the rules, which get their ids from the console and not from the server.
inline void giveNewId(std::string& id) {
    id = wire::toText(wire::randomUuid());
}
inline void giveNewId(wire::Uuid& id) {
    id = wire::randomUuid();
}

// An empty new record, with its final id and nothing else. Constructors make no id, because records that are read need
// none.
template <class Record>
[[nodiscard]] Record newRecord() {
    Record record;
    giveNewId(record.id);
    return record;
}

} // namespace client
