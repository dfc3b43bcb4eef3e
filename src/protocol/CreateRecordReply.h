#pragma once

#include "protocol/StatusReply.h"
#include "protocol/WireOrder.h"

namespace protocol {

// What became of a new record, and the id that it was given.
struct CreateRecordReply {
    StatusReply status;
    std::string id;

    static constexpr auto fields =
        wireOrder(field("status", &CreateRecordReply::status), field("id", &CreateRecordReply::id));

    bool operator==(const CreateRecordReply&) const = default;
};

} // namespace protocol
