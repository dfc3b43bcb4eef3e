#pragma once

#include "tests/torture/Requests.h"

#include <set>
#include <string>

namespace torture {

// What an administrator does while things go wrong, with a memory of what the server has said to it.
class Errands {
public:
    // Looks for a region at a server where all is well.
    explicit Errands(std::uint16_t port) : port_(port), region_(regionsAt(port).value().front().id) {}

    // The server is somewhere else now.
    void goTo(std::uint16_t port) { port_ = port; }

    // Makes a queue of a name that was not there before, and reads the list of all. Nothing that goes wrong is thrown.
    void run();

    // The queue of the last run was acknowledged.
    [[nodiscard]] bool wasAcknowledged() const { return acknowledged_.contains(name_); }

    // What the server does not remember rightly of all that it said; empty when all is well.
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
