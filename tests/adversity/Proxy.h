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

// What a bad line does to the bytes that go one way, on each connection; without anything set it carries them as they
// are.
struct Fault {
    Direction direction = Direction::toServer;
    std::size_t cutAfter = std::numeric_limits<std::size_t>::max(); // bytes; then the connection ends both ways
    std::map<std::size_t, std::uint8_t> added = {};                 // to the byte at this place, modulo 256
    std::size_t pieceSize = std::numeric_limits<std::size_t>::max();
    std::chrono::milliseconds delay{0};                               // before each piece
    std::size_t connection = std::numeric_limits<std::size_t>::max(); // only on this one, from 0; else on all
};

// Stands between consoles and a server, on a free port of the loopback address, and is a bad line to them. Ends with
// everything that it carries when it goes.
class Proxy {
public:
    explicit Proxy(std::uint16_t serverPort, Fault fault = {});
    ~Proxy();
    Proxy(const Proxy&) = delete;
    Proxy& operator=(const Proxy&) = delete;

    [[nodiscard]] std::uint16_t port() const { return port_; }

    // Another fault, for connections that are made from now on.
    void set(const Fault& fault);

    // Bytes that have come from one side, over all connections.
    [[nodiscard]] std::size_t carried(Direction direction) const;

private:
    // One connection: the console's socket and the one to the server, each open until both ways have ended.
    struct Line {
        std::array<int, 2> sockets{-1, -1}; // the one that a direction starts from
        std::array<bool, 2> ended{};
        std::array<std::size_t, 2> passed{}; // bytes that went on
        Fault fault;
    };

    void run();
    void acceptOne();
    void carry(Line& line, Direction direction);
    // False when the line has ended with it.
    [[nodiscard]] bool passOn(Line& line, Direction direction, std::uint8_t* bytes, std::size_t count);
    static void end(Line& line);

    std::uint16_t serverPort_;
    std::uint16_t port_ = 0; // before the listener, which sets it
    int listener_;
    mutable std::mutex mutex_; // guards fault_ and made_
    Fault fault_;
    std::size_t made_ = 0;
    std::array<std::atomic<std::size_t>, 2> carried_{};
    std::list<Line> lines_; // of the thread alone
    std::atomic<bool> stopping_ = false;
    std::thread thread_; // last, so that it starts when all else stands
};

} // namespace adversity
