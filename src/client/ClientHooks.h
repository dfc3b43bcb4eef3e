#pragma once

namespace wire {
class WaitObserver;
}

namespace client {

class CommandObserver;
class RequestObserver;
class ServerMessages;

// The observers of a host's commands. All are optional and not owned: they outlive the settings that refer to them.
// Each is called on the thread that runs the command: the console's own, and that of the login where a host has given
// it one.
struct ClientHooks {
    CommandObserver* commands = nullptr;
    wire::WaitObserver* wait = nullptr;
    ServerMessages* messages = nullptr;
    RequestObserver* requests = nullptr;
};

} // namespace client
