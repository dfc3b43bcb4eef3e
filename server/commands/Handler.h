#pragma once

#include "protocol/estate/Printer.h"
#include "server/commands/Change.h"
#include "server/commands/ListStream.h"
#include "server/commands/RequestReader.h"
#include "server/store/StoreError.h"

#include <algorithm>
#include <memory>

// How the server's handlers are listed: one for each command, or for each form of one.
namespace server {

using Fields = std::span<const std::uint8_t>;

// Carries out one command: either it changes something or it answers.
struct Handler {
    std::uint16_t opcode = 0;
    bool (*takes)(Fields) = nullptr; // for opcodes with several forms; null: takes all
    Change (*prepare)(Fields) = nullptr;
    std::unique_ptr<ReplyStream> (*answer)(Fields,
                                           StoreConnection&) = nullptr; // uses the connection while it lives
};

namespace detail {

// Whether the first byte of the request is one of the actions of this form.
template <class Request>
bool isActionOf(Fields fields) {
    using Action = typename decltype(Request::actions)::value_type;
    return !fields.empty() &&
           std::ranges::find(Request::actions, static_cast<Action>(fields.front())) != std::end(Request::actions);
}

template <class Request>
constexpr auto formOf() -> bool (*)(Fields) {
    if constexpr (requires { Request::actions; }) {
        return &isActionOf<Request>;
    } else {
        return nullptr;
    }
}

inline const protocol::StatusReply& statusOf(const protocol::StatusReply& reply) {
    return reply;
}
template <class Reply>
const protocol::StatusReply& statusOf(const Reply& reply) {
    return reply.status;
}

inline void refuse(protocol::StatusReply& reply, const protocol::StatusReply& status) {
    reply = status;
}
template <class Reply>
void refuse(Reply& reply, const protocol::StatusReply& status) {
    reply.status = status;
}

template <class Reply>
void putReply(ReplyBuffer& buffer, const Reply& reply) {
    buffer.putFrame(reply);
}
template <class Reply>
void putReply(ReplyBuffer& buffer, const Outcome<Reply>& outcome) {
    buffer.putFrame(outcome.reply);
}

template <class Service, auto operation, class Request, bool replies>
Change prepareChange(Fields fields) {
    auto request = RequestReader(fields).read<Request>();
    auto make = [request = std::move(request)](StoreConnection& connection,
                                               ReplyBuffer& buffer) -> protocol::StatusReply {
        decltype((std::declval<Service&>().*operation)(request)) reply;
        try {
            reply = connection.change([&] { return (Service(connection).*operation)(request); });
        } catch (const StoreError& error) {
            reply = {};
            refuse(reply, databaseRefused(error.what()));
        }
        if constexpr (replies) {
            putReply(buffer, reply);
        }
        return statusOf(reply);
    };
    return {.isAnswered = replies, .make = std::move(make)};
}

} // namespace detail

// A change without an answer: a Service is constructed from the connection, and its operation takes the request and
// returns a StatusReply.
template <class Service, auto operation, class Request>
constexpr Handler changes = {.opcode = Request::opcode,
                             .takes = detail::formOf<Request>(),
                             .prepare = &detail::prepareChange<Service, operation, Request, false>};

// A change whose console waits for its reply: a StatusReply, a record with a status in it, or an Outcome.
template <class Service, auto operation, class Request>
constexpr Handler changesWithReply = {.opcode = Request::opcode,
                                      .takes = detail::formOf<Request>(),
                                      .prepare = &detail::prepareChange<Service, operation, Request, true>};

// A list of R: the function takes the connection and the request and returns a Listing.
template <class Request, class R, auto list>
constexpr Handler lists = {.opcode = Request::opcode,
                           .takes = detail::formOf<Request>(),
                           .answer = [](Fields fields, StoreConnection& connection) -> std::unique_ptr<ReplyStream> {
                               const auto request = RequestReader(fields).read<Request>();
                               return std::make_unique<ListStream<R>>(connection,
                                                                      [&] { return list(connection, request); });
                           }};

// A single reply: the function takes the connection and the request and returns it, or nothing for no reply at all.
template <class Request, auto ask>
constexpr Handler answers = {.opcode = Request::opcode,
                             .takes = detail::formOf<Request>(),
                             .answer = [](Fields fields, StoreConnection& connection) -> std::unique_ptr<ReplyStream> {
                                 using Reply =
                                     typename decltype(ask(connection, std::declval<const Request&>()))::value_type;
                                 const auto request = RequestReader(fields).read<Request>();
                                 return std::make_unique<SingleReplyStream<Reply>>(ask(connection, request));
                             }};

} // namespace server
