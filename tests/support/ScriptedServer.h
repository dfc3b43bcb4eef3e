#pragma once

#include "tests/support/Bytes.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace support {

// A server on a real loopback socket that plays a script for each connection in turn, on its own thread. Every wait is
// limited: a script that waits too long fails, and the destructor interrupts waits in progress.
class ScriptedServer {
public:
    // The server's end of one connection. A step that can't be done throws, which ends the script as a failure.
    class Connection {
    public:
        // Reads exactly the given number of bytes.
        Bytes expect(std::size_t count);

        // Reads one frame and returns all of it.
        Bytes expectFrame();

        // Reads everything until the peer closes or resets.
        Bytes untilClosed();

        void send(const Bytes& bytes);

        // Sends byte by byte, each in a packet of its own.
        void drip(const Bytes& bytes);

        // Sends nothing until the peer closes.
        void stall() { untilClosed(); }

        void close();

        // Ends the server's side: the peer reads an end of file, but may still send.
        void endSending() const;

        // Ends the connection so that the peer sees a reset.
        void reset();

        [[nodiscard]] std::string peerAddress() const;

    private:
        friend class ScriptedServer;
        Connection(ScriptedServer& server, int socket, std::size_t index)
            : server_(server), socket_(socket), index_(index) {}

        // Waits for bytes and reads them: 0 when the peer has closed, -1 when it reset the connection.
        std::ptrdiff_t receiveSome(std::uint8_t* into, std::size_t count);

        ScriptedServer& server_;
        int socket_;
        std::size_t index_;
    };

    using Script = std::function<void(Connection&)>;

    explicit ScriptedServer(Script script);
    explicit ScriptedServer(std::vector<Script> scripts);
    ~ScriptedServer();
    ScriptedServer(const ScriptedServer&) = delete;
    ScriptedServer& operator=(const ScriptedServer&) = delete;

    [[nodiscard]] std::uint16_t port() const { return port_; }

    // Waits until all scripts have ended; the text of the first failure, empty when there was none.
    [[nodiscard]] std::string finish();

    // The bytes received over a connection so far.
    [[nodiscard]] Bytes received(std::size_t connection = 0) const;

    // A port of the loopback address on which nobody listens.
    [[nodiscard]] static std::uint16_t unusedPort();

private:
    void run();
    int acceptNext();
    void waitReadable(int socket) const;
    void record(std::size_t connection, const std::uint8_t* bytes, std::size_t count);

    std::vector<Script> scripts_;
    std::uint16_t port_ = 0; // declared before the listener, which sets it
    int listener_;
    std::atomic<bool> stopping_ = false;
    mutable std::mutex mutex_; // guards received_ and failure_
    std::vector<Bytes> received_;
    std::string failure_;
    std::thread thread_; // last, so that it starts when everything else is constructed
};

} // namespace support
