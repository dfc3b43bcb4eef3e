#pragma once

#include "platform/Environment.h"

#include <map>
#include <set>
#include <string>

namespace support {

// An environment whose content the test sets.
class FakeEnvironment final : public platform::Environment {
public:
    std::map<std::string, std::string> variables;
    std::set<std::string> files;
    std::string folder = "/home/ann";
    platform::DateTime time{.year = 2014, .month = 3, .day = 5, .hour = 17, .minute = 4, .second = 9};

    [[nodiscard]] std::optional<std::string> variable(const std::string& name) const override {
        const auto found = variables.find(name);
        return found != variables.end() ? std::optional(found->second) : std::nullopt;
    }
    [[nodiscard]] bool exists(const std::string& path) const override { return files.contains(path); }
    [[nodiscard]] std::string currentFolder() const override { return folder; }
    [[nodiscard]] platform::DateTime now() const override { return time; }
};

} // namespace support
