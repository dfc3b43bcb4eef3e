#pragma once

namespace wire {
class WaitObserver;
}

namespace client {

class CommandObserver;
class RequestObserver;
class ServerMessages;

// Who takes part in the commands of a host. All are optional and not owned: they outlive the settings that name them.
struct ClientHooks {
    CommandObserver* commands = nullptr;
    wire::WaitObserver* wait = nullptr;
    ServerMessages* messages = nullptr;
    RequestObserver* requests = nullptr;
};

} // namespace client
