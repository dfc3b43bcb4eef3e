#include "fuzz/PeerPlatform.h"

namespace fuzz {

namespace {

PeerClock& peerClock() {
    static PeerClock clock;
    return clock;
}

} // namespace

PeerSocket& peer() {
    static PeerSocket socket(peerClock());
    return socket;
}

} // namespace fuzz

// The linker takes these and leaves the platform's in their library.
namespace wire {

Socket& platformSocket() {
    return fuzz::peer();
}

Clock& steadyClock() {
    return fuzz::peerClock();
}

} // namespace wire
