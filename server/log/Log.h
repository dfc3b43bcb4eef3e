#pragma once

#include <string_view>

// The server's log for the person who runs it: lines with time and severity. Any thread may write, even one that is out
// of memory: nothing is thrown.
namespace server::log {

// From now on lines go to standard error.
void toStandardError();

// From now on nothing is written.
void silence();

void info(std::string_view line) noexcept;
void warn(std::string_view line) noexcept;

// A line made of its subject and a text about it.
void info(std::string_view subject, std::string_view text) noexcept;
void warn(std::string_view subject, std::string_view text) noexcept;
void error(std::string_view subject, std::string_view text) noexcept;

} // namespace server::log
