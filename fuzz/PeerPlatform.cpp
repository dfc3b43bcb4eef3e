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

// These override the platform's own: the linker leaves those in their library.
namespace wire {

Socket& platformSocket() {
    return fuzz::peer();
}

Clock& steadyClock() {
    return fuzz::peerClock();
}

} // namespace wire
