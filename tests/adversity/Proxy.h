#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <list>
#include <map>
#include <mutex>
#include <thread>

namespace adversity {

enum class Direction : std::uint8_t { toServer, toClient };

// The faults applied to the bytes of one direction, on each connection; by default they pass unchanged.
struct Fault {
    Direction direction = Direction::toServer;
    std::size_t cutAfter =
        std::numeric_limits<std::size_t>::max();    // bytes; then the connection ends in both directions
    std::map<std::size_t, std::uint8_t> added = {}; // to the byte at this position, modulo 256
    std::size_t pieceSize = std::numeric_limits<std::size_t>::max();
    std::chrono::milliseconds delay{0}; // before each piece
    std::size_t connection =
        std::numeric_limits<std::size_t>::max(); // only on this connection, counted from 0; otherwise on all
};

// A faulty proxy between consoles and a server, on a free port of the loopback address. Its destruction ends all of its
// connections.
class Proxy {
public:
    explicit Proxy(std::uint16_t serverPort, Fault fault = {});
    ~Proxy();
    Proxy(const Proxy&) = delete;
    Proxy& operator=(const Proxy&) = delete;

    [[nodiscard]] std::uint16_t port() const { return port_; }

    // Sets the fault for connections made from now on.
    void set(const Fault& fault);

    // The bytes received from one side, over all connections.
    [[nodiscard]] std::size_t carried(Direction direction) const;

private:
    // One connection: the console's socket and the one to the server, each open until both directions have ended.
    struct Line {
        std::array<int, 2> sockets{-1, -1}; // indexed by the direction that starts there
        std::array<bool, 2> ended{};
        std::array<std::size_t, 2> passed{}; // bytes passed on
        Fault fault;
    };

    void run();
    void acceptOne();
    void carry(Line& line, Direction direction);
    // False when that has ended the connection.
    [[nodiscard]] bool passOn(Line& line, Direction direction, std::uint8_t* bytes, std::size_t count);
    static void end(Line& line);

    std::uint16_t serverPort_;
    std::uint16_t port_ = 0; // declared before the listener, which sets it
    int listener_;
    mutable std::mutex mutex_; // guards fault_ and made_
    Fault fault_;
    std::size_t made_ = 0;
    std::array<std::atomic<std::size_t>, 2> carried_{};
    std::list<Line> lines_; // of the thread alone
    std::atomic<bool> stopping_ = false;
    std::thread thread_; // last, so that it starts when everything else is constructed
};

} // namespace adversity
