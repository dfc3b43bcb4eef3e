#pragma once

#include "tests/torture/Requests.h"

#include <set>
#include <string>

namespace torture {

// What an administrator does while things go wrong, remembering what the server has answered.
class Errands {
public:
    // Looks up a region on a server without faults.
    explicit Errands(std::uint16_t port) : port_(port), region_(regionsAt(port).value().front().id) {}

    // The server now has another port.
    void goTo(std::uint16_t port) { port_ = port; }

    // Creates a queue with a new name, and reads the list of all. Throws nothing when something fails.
    void run();

    // Whether the queue of the last run was acknowledged.
    [[nodiscard]] bool wasAcknowledged() const { return acknowledged_.contains(name_); }

    // Everything the server acknowledged or listed that is no longer true; empty when there is nothing.
    [[nodiscard]] std::string lies() const;

private:
    std::uint16_t port_;
    std::int32_t region_;
    int runs_ = 0;
    wire::WideString name_;
    std::set<wire::WideString> acknowledged_;
    std::set<wire::WideString> refused_;
    std::set<wire::WideString> listed_;
};

} // namespace torture
