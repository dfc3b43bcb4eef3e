#pragma once

#include "client/CQVXAdminClass.h"
#include "client/ServerCalls.h"
#include "hosts/common/SeenRequests.h"

#include <algorithm>
#include <concepts>
#include <functional>
#include <optional>
#include <set>
#include <stdexcept>
#include <utility>

// What the look-ups of single writes are made of.
namespace common {

// Whether the server shows that a write was carried out. Throws when the server can't tell.
using Shows = std::function<bool()>;

// Prepares the look-up of a write that is about to be sent, and reads whatever it needs to know from before. Null when
// the effect of the write can't be seen.
struct WriteLookup {
    std::uint16_t opcode = 0;
    bool (*isMeant)(wire::Message& message) = nullptr; // whether the message is of this form of the request
    Shows (*prepare)(wire::Message& message, const SeenRequests& seen) = nullptr;
};

// The whole list, in the order of the server. Throws std::runtime_error when it can't be read or is truncated.
template <class Record, class Request>
std::vector<Record> listed(const Request& request) {
    client::CQVXAdminClass client;
    std::vector<Record> records;
    const auto announced = client::readList(client, request, records);
    if (!announced || std::cmp_not_equal(records.size(), *announced)) {
        throw std::runtime_error("the list is incomplete");
    }
    return records;
}

// A record as the wire carries it. What was sent is read back by the console's own rules before it is compared, because
// these change some texts.
template <class Record>
auto asSent(const Record& record) {
    const auto message = protocol::makeDataMessage(record);
    const auto bytes = message->bytes();
    return std::vector<std::uint8_t>(bytes.begin(), bytes.end());
}

template <class Record>
bool sameOnTheWire(const Record& left, const Record& right) {
    return asSent(left) == asSent(right);
}

template <class Record, class Id>
const Record* findById(const std::vector<Record>& records, Id Record::*id, const std::type_identity_t<Id>& wanted) {
    const auto found = std::ranges::find(records, wanted, id);
    return found != records.end() ? &*found : nullptr;
}

// Shows a record that did not exist before and for which the rest holds.
template <class Record, class Request, class Id, class Rest>
Shows showsNew(const Request& list, Id Record::*id, Rest rest) {
    std::set<Id> before;
    for (auto& record : listed<Record>(list)) {
        before.insert(std::move(record.*id));
    }
    return [=] {
        return std::ranges::any_of(listed<Record>(list),
                                   [&](const Record& record) { return !before.contains(record.*id) && rest(record); });
    };
}

// Shows the record with that id, if the rest holds.
template <class Record, class Request, class Id, class Rest>
Shows showsChanged(const Request& list, Id Record::*id, const std::type_identity_t<Id>& wanted, Rest rest) {
    return [=] {
        const auto records = listed<Record>(list);
        const Record* const record = findById(records, id, wanted);
        return record != nullptr && rest(*record);
    };
}

// Shows that no record has that id.
template <class Record, class Request, class Id>
Shows showsGone(const Request& list, Id Record::*id, const std::type_identity_t<Id>& wanted) {
    return [=] { return findById(listed<Record>(list), id, wanted) == nullptr; };
}

// The latest list that the console has asked for and that contains the record; none when there is no such list.
template <class Record, class Request, class Id>
std::optional<Request> listWith(const std::vector<Request>& lists, Id Record::*id,
                                const std::type_identity_t<Id>& wanted) {
    const auto found = std::ranges::find_if(
        lists, [&](const Request& list) { return findById(listed<Record>(list), id, wanted) != nullptr; });
    return found != lists.end() ? std::optional(*found) : std::nullopt;
}

// The same two for a record whose list the write does not name. One that is in no list can't be checked: the dialog of
// a price plan changes the rule entry that it was opened from, whether or not the server has that entry yet.
template <class Record, class Request, class Id, class Rest>
Shows showsChangedAmong(const std::vector<Request>& lists, Id Record::*id, const std::type_identity_t<Id>& wanted,
                        Rest rest) {
    const auto list = listWith<Record>(lists, id, wanted);
    return list ? showsChanged<Record>(*list, id, wanted, rest) : Shows();
}

template <class Record, class Request, class Id>
Shows showsGoneAmong(const std::vector<Request>& lists, Id Record::*id, const std::type_identity_t<Id>& wanted) {
    const auto list = listWith<Record>(lists, id, wanted);
    return list ? showsGone<Record>(*list, id, wanted) : Shows();
}

// Whether the first byte marks the message as one of this form.
template <class Request>
bool isOf(wire::Message& message) {
    if constexpr (requires { Request::actions; }) {
        using Action = typename decltype(Request::actions)::value_type;
        const auto action = static_cast<Action>(message.getByte());
        return std::ranges::find(Request::actions, action) != Request::actions.end();
    }
    return true;
}

// The look-up of a request's type.
template <class Request, auto prepare>
constexpr WriteLookup lookup() {
    return {.opcode = Request::opcode,
            .isMeant = isOf<Request>,
            .prepare = [](wire::Message& message, [[maybe_unused]] const SeenRequests& seen) -> Shows {
                const auto request = protocol::read<Request>(message);
                if constexpr (std::invocable<decltype(prepare), const Request&>) {
                    return prepare(request);
                } else {
                    return prepare(request, seen);
                }
            }};
}

} // namespace common
