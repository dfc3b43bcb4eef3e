#include "hosts/ctl/ReplyJson.h"

#include "wire/WireUuid.h"

#include <nlohmann/json.hpp>

#include <array>
#include <charconv>

namespace ctl {
namespace {

Json valueJson(const protocol::FieldValue& field);

// With just enough digits to identify the float, not those of the nearest double: 0.2 and not 0.20000000298.
double shortest(float value) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    double number = value;
    std::from_chars(digits.data(), end, number);
    return number;
}

Json recordJson(const protocol::FieldRecord& record) {
    Json json = Json::object();
    for (const auto& [name, value] : record) {
        json[std::string(name)] = valueJson(value);
    }
    return json;
}

Json valueJson(const protocol::FieldValue& field) {
    return std::visit(
        []<class T>(const T& value) -> Json {
            if constexpr (std::is_same_v<T, std::monostate>) {
                return nullptr;
            } else if constexpr (std::is_same_v<T, wire::WideString>) {
                return wire::toUtf8(value);
            } else if constexpr (std::is_same_v<T, wire::Uuid>) {
                return wire::toText(value);
            } else if constexpr (std::is_same_v<T, float>) {
                return shortest(value);
            } else if constexpr (std::is_same_v<T, protocol::FieldList>) {
                Json list = Json::array();
                for (const auto& element : value) {
                    list.push_back(valueJson(element));
                }
                return list;
            } else if constexpr (std::is_same_v<T, protocol::FieldRecord>) {
                return recordJson(value);
            } else {
                return value;
            }
        },
        field.value);
}

} // namespace

Json replyJson(const client::RawReply& reply) {
    Json json{{"opcode", reply.command->opcode}, {"name", reply.command->name}};
    Json records = Json::array();
    for (const auto& record : reply.records) {
        records.push_back(recordJson(record));
    }
    if (reply.command->reply == protocol::ReplyShape::list) {
        json["records"] = std::move(records);
    } else if (reply.command->reply != protocol::ReplyShape::none && !records.empty()) {
        json["reply"] = std::move(records.front());
    }
    return json;
}

std::string dump(const Json& json, int indent) {
    return json.dump(indent, ' ', false, Json::error_handler_t::replace);
}

} // namespace ctl
