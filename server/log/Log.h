#pragma once

#include <string_view>

// What the server tells the person who runs it: lines with the time and how serious they are. Any thread may write one,
// also one that has found no memory: nothing is thrown.
namespace server::log {

// From now on lines go to standard error.
void toStandardError();

// From now on nothing is written.
void silence();

void info(std::string_view line) noexcept;
void warn(std::string_view line) noexcept;

// What it is about, and what there is to say about it.
void info(std::string_view subject, std::string_view text) noexcept;
void warn(std::string_view subject, std::string_view text) noexcept;
void error(std::string_view subject, std::string_view text) noexcept;

} // namespace server::log
