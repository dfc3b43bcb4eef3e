#pragma once

#include <cstdint>
#include <filesystem>

namespace server {

// Writes the port as one line; a reader of the file finds either nothing or the whole line. Throws std::runtime_error
// with one line.
void writePortFile(const std::filesystem::path& file, std::uint16_t port);

} // namespace server
