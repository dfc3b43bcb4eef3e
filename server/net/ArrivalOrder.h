#pragma once

#include "server/net/Limits.h"
#include "server/net/PeerStream.h"

#include <list>
#include <map>
#include <memory>

namespace server {

// Keeps the commands of each address in the order in which their connections were made.
//
// A console sends a change, closes without waiting for anything, and lists at once over another connection: the list
// must show the change. So a read waits for all changes of connections that were made earlier, and every command waits
// for earlier connections whose request is still in transit. The second wait is short: a silent peer holds up others
// only in the first moments of its connection. A request that reached this machine before the later connection was made
// is never overtaken. Used on the server's one network thread.
class ArrivalOrder {
public:
    ArrivalOrder(asio::io_context& context, const Limits& limits);

    // One connection's place in the order, released on destruction.
    class Place {
    public:
        Place(ArrivalOrder& order, asio::ip::address address, const PeerStream& peer);
        ~Place();
        Place(const Place&) = delete;
        Place& operator=(const Place&) = delete;

        [[nodiscard]] bool isArriving() const;

        // The request has arrived and reads: everything that must come before it is done when this returns.
        [[nodiscard]] asio::awaitable<void> beginReading();
        // The request has arrived and changes something: earlier changes have begun when this returns.
        [[nodiscard]] asio::awaitable<void> beginChanging(bool isAnswered);
        // The request has arrived and needs no order, or its change is done.
        void finish();

    private:
        friend class ArrivalOrder;
        enum class State {
            arriving, // the request has not arrived yet
            waiting,  // the request has arrived; its change waits for others
            changing, // the change has begun, and its console does not wait for an answer
            done,     // no other command has to wait for it
        };

        void enter(State state);

        ArrivalOrder& order_;
        asio::ip::address address_;
        const PeerStream& peer_;
        PeerStream::Clock::time_point since_;
        State state_ = State::arriving;
        std::list<Place*>::iterator position_;
    };

    // Connections of the address whose request has not arrived yet.
    [[nodiscard]] std::size_t arrivingFrom(const asio::ip::address& address) const;

private:
    struct Line {
        explicit Line(asio::io_context& context) : changed(context) {}
        std::list<Place*> places; // in the order of their connections
        asio::steady_timer changed;
    };

    // Until when to wait for the place; a time in the past means not at all.
    [[nodiscard]] PeerStream::Clock::time_point waitFor(const Place& place, PeerStream::Clock::time_point start) const;
    [[nodiscard]] asio::awaitable<void> waitForEarlier(const Place& place, bool forBegunChanges);

    asio::io_context& context_;
    const Limits& limits_;
    std::map<asio::ip::address, std::unique_ptr<Line>> lines_;
};

} // namespace server
