#pragma once

#include "wire/WireUuid.h"

#include <string>

namespace client {

// A fresh random id for a record of the rules, which get their ids here and not from the server.
inline void giveNewId(std::string& id) {
    id = wire::toText(wire::randomUuid());
}
inline void giveNewId(wire::Uuid& id) {
    id = wire::randomUuid();
}

// A record as an administrator begins it: with its final id and nothing else. A record that is read needs none of its
// own, which is why its constructor makes none.
template <class Record>
[[nodiscard]] Record newRecord() {
    Record record;
    giveNewId(record.id);
    return record;
}

} // namespace client
