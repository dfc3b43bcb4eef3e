#pragma once

#include "wire/Message.h"
#include "wire/TransLogger.h"
#include "wire/TransferCounts.h"
#include "wire/WaitObserver.h"

#include <cstdint>
#include <memory>
#include <string>

namespace wire {

// One connection to the server, for one exchange: setHost, setPort, connect, addMessage for each message, sendMessages,
// getMessages, getMessage, disconnect. Used by one thread at a time; blocks it for as long as the time-outs allow.
class ITransport {
public:
    // Closes the connection and destroys what is queued.
    virtual ~ITransport() = default;

    virtual void setHost(const std::string& host) = 0;
    virtual void setPort(std::uint16_t port) = 0;

    // False when the server can't be reached in time; 0 seconds mean 8.
    [[nodiscard]] virtual bool connect(std::uint32_t timeoutSeconds, const TransLogger& logger) = 0;

    // Always true, also when nothing is open; the argument has no meaning.
    virtual bool disconnect(int ignored) = 0;

    // Puts the message at the front of the queue, so that messages are sent in reverse order. Throws the plain string
    // "Attempting to store a non rewinded message".
    virtual void addMessage(std::unique_ptr<Message> message) = 0;

    // Sends the queue as one frame and empties it. False only when there is no connection: a failed send is not
    // reported here.
    virtual bool sendMessages(const TransLogger& logger) = 0;

    // Takes the first message of that kind out of the queue; null when there is none.
    [[nodiscard]] virtual std::unique_ptr<Message> getMessage(MessageKind kind) = 0;

    // Replaces the queue by the messages of one received frame, the last one in front. False when no valid frame
    // arrived in time. Logs only when both a logger and a prefix are given. Throws the plain string "Reading out of
    // scope" for a frame whose messages don't fit into it.
    [[nodiscard]] virtual bool getMessages(const TransLogger& logger, const char* logPrefix) = 0;

    // Gives back a message that is no longer needed, so that its memory is reused for the next one received; null is
    // ignored.
    virtual void reuse(std::unique_ptr<Message> message) = 0;

    // The observer is not owned; it must outlive the connection or be removed with null. It is called from connect,
    // getMessages and the block calls, which may then throw Cancelled.
    virtual void setWaitObserver(WaitObserver* observer) = 0;

    // Passes the number of records read so far on to the observer.
    virtual void noteRecords(std::uint32_t records) = 0;

    [[nodiscard]] virtual const TransferCounts& counts() const = 0;
};

} // namespace wire
