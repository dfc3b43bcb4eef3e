#pragma once

#include "server/net/Limits.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace server {

// Which sample estate to fill an empty database with: the given number of printers, or the small estate when it is 0.
struct Sample {
    int printers = 0;
};

// The options with which the server is started.
struct Options {
    std::filesystem::path database;
    std::string listen = "127.0.0.1";
    std::uint16_t port = 5005; // 0 for any that is free
    std::optional<std::filesystem::path> portFile;
    std::optional<Sample> sample;
    std::optional<std::string> user; // to add, or to give a new password
    std::filesystem::path passwordFile;
    std::chrono::minutes loginRequired{720}; // 0 for no login at all

    // Either the options, or what to print and the status to end with.
    struct Outcome;
    [[nodiscard]] static Outcome parse(int count, const char* const* arguments);
};

struct Options::Outcome {
    std::optional<Options> options;
    std::string text;
    int exitStatus = 0; // 0: the text is help for standard output, else a line for standard error
};

// The first line of the file without its line end, as the password of an account. Throws std::runtime_error with one
// line when it cannot be read or is empty.
[[nodiscard]] std::u16string readPassword(const std::filesystem::path& file);

} // namespace server
