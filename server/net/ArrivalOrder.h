#pragma once

#include "server/net/Limits.h"
#include "server/net/PeerStream.h"

#include <list>
#include <map>
#include <memory>

namespace server {

// Keeps the commands of one address in the order in which their connections were made.
//
// A console sends a change, closes without waiting for anything, and lists at once over another connection: the list
// must show the change. So a read waits for all changes of connections that were made earlier, and every command waits
// for earlier connections whose request is still on its way. The second wait is short: a peer that is silent holds up
// others only in the first moments of its connection. A request that had come to this machine before the later
// connection was made is never overtaken. Used on the server's one network thread.
class ArrivalOrder {
public:
    ArrivalOrder(asio::io_context& context, const Limits& limits);

    // One connection's place in the order, given up when it goes.
    class Place {
    public:
        Place(ArrivalOrder& order, asio::ip::address address, const PeerStream& peer);
        ~Place();
        Place(const Place&) = delete;
        Place& operator=(const Place&) = delete;

        [[nodiscard]] bool isArriving() const;

        // The request is there and reads: what must come before it has been done when this returns.
        [[nodiscard]] asio::awaitable<void> beginReading();
        // The request is there and changes something: earlier changes have begun when this returns.
        [[nodiscard]] asio::awaitable<void> beginChanging(bool isAnswered);
        // The request is there and belongs to no order, or its change is done.
        void finish();

    private:
        friend class ArrivalOrder;
        enum class State {
            arriving, // the request is not there yet
            waiting,  // it is there, and wants to change something after others
            changing, // the change has begun, and its console waits for nothing
            done,     // nobody has to wait for it any more
        };

        void enter(State state);

        ArrivalOrder& order_;
        asio::ip::address address_;
        const PeerStream& peer_;
        PeerStream::Clock::time_point since_;
        State state_ = State::arriving;
        std::list<Place*>::iterator position_;
    };

    // Connections of the address whose request is not there yet.
    [[nodiscard]] std::size_t arrivingFrom(const asio::ip::address& address) const;

private:
    struct Line {
        explicit Line(asio::io_context& context) : changed(context) {}
        std::list<Place*> places; // in the order of their connections
        asio::steady_timer changed;
    };

    // Until when the place has to be waited for; the past when it need not be.
    [[nodiscard]] PeerStream::Clock::time_point waitFor(const Place& place, PeerStream::Clock::time_point start) const;
    [[nodiscard]] asio::awaitable<void> waitForEarlier(const Place& place, bool forBegunChanges);

    asio::io_context& context_;
    const Limits& limits_;
    std::map<asio::ip::address, std::unique_ptr<Line>> lines_;
};

} // namespace server
