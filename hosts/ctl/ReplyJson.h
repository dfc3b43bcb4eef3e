#pragma once

#include "client/RawReply.h"

#include <nlohmann/json_fwd.hpp>

namespace ctl {

using Json = nlohmann::ordered_json;

// {"opcode", "name", "records": [...]} for a list, {"opcode", "name", "reply": {...}} for a single reply, otherwise
// {"opcode", "name"}.
Json replyJson(const client::RawReply& reply);

// The JSON as text, with invalid UTF-8 replaced, on one line or (with an indent) on several.
std::string dump(const Json& json, int indent = -1);

} // namespace ctl
