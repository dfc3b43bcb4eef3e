#include "server/net/ArrivalOrder.h"

#include <algorithm>

namespace server {

using Clock = PeerStream::Clock;

ArrivalOrder::ArrivalOrder(asio::io_context& context, const Limits& limits) : context_(context), limits_(limits) {}

ArrivalOrder::Place::Place(ArrivalOrder& order, asio::ip::address address, const PeerStream& peer)
    : order_(order), address_(std::move(address)), peer_(peer), since_(Clock::now()) {
    std::list<Place*> here{this};
    position_ = here.begin();
    auto line = order_.lines_.find(address_);
    if (line == order_.lines_.end()) {
        line = order_.lines_.try_emplace(address_, std::make_unique<Line>(order_.context_)).first;
    }
    line->second->places.splice(line->second->places.end(), here);
}

ArrivalOrder::Place::~Place() {
    finish();
    const auto line = order_.lines_.find(address_);
    line->second->places.erase(position_);
    if (line->second->places.empty()) {
        order_.lines_.erase(line);
    }
}

bool ArrivalOrder::Place::isArriving() const {
    return state_ == State::arriving;
}

asio::awaitable<void> ArrivalOrder::Place::beginReading() {
    enter(State::done);
    return order_.waitForEarlier(*this, true);
}

asio::awaitable<void> ArrivalOrder::Place::beginChanging(bool isAnswered) {
    enter(State::waiting);
    co_await order_.waitForEarlier(*this, false);
    enter(isAnswered ? State::done : State::changing);
}

void ArrivalOrder::Place::finish() {
    enter(State::done);
}

void ArrivalOrder::Place::enter(State state) {
    if (state_ == state) {
        return;
    }
    state_ = state;
    order_.lines_.at(address_)->changed.cancel();
}

std::size_t ArrivalOrder::arrivingFrom(const asio::ip::address& address) const {
    const auto line = lines_.find(address);
    if (line == lines_.end()) {
        return 0;
    }
    return static_cast<std::size_t>(std::ranges::count_if(line->second->places, &Place::isArriving));
}

Clock::time_point ArrivalOrder::waitFor(const Place& place, Clock::time_point start) const {
    // A request whose bytes have arrived gets the time that it takes to read them.
    if (place.peer_.hasUnread()) {
        return start + limits_.arrivalGrace;
    }
    return place.since_ + (place.address_.is_loopback() ? limits_.localGrace : limits_.arrivalGrace);
}

asio::awaitable<void> ArrivalOrder::waitForEarlier(const Place& place, bool forBegunChanges) {
    const auto start = Clock::now();
    for (;;) {
        auto& line = *lines_.at(place.address_);
        auto until = Clock::time_point::min();
        for (const Place* earlier : line.places) {
            if (earlier == &place) {
                break;
            }
            if (earlier->state_ == Place::State::arriving) {
                until = std::max(until, waitFor(*earlier, start));
            } else if (earlier->state_ == Place::State::waiting ||
                       (forBegunChanges && earlier->state_ == Place::State::changing)) {
                until = Clock::time_point::max();
            }
        }
        if (until <= Clock::now()) {
            co_return;
        }
        // All that wait in this line share the timer: each checks again when it is woken.
        if (line.changed.expiry() <= Clock::now() || until < line.changed.expiry()) {
            line.changed.expires_at(until);
        }
        boost::system::error_code woken;
        co_await line.changed.async_wait(asio::redirect_error(asio::use_awaitable, woken));
    }
}

} // namespace server
