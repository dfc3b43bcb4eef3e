#pragma once

#include "client/RawReply.h"

#include <nlohmann/json_fwd.hpp>

namespace ctl {

using Json = nlohmann::ordered_json;

// {"opcode", "name", "records": [...]} of a list, {"opcode", "name", "reply": {...}} of a single reply, else
// {"opcode", "name"}.
Json replyJson(const client::RawReply& reply);

// A text with what is not UTF-8 replaced, on one line or (with an indent) on several.
std::string dump(const Json& json, int indent = -1);

} // namespace ctl
