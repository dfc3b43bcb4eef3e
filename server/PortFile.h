#pragma once

#include <cstdint>
#include <filesystem>

namespace server {

// Writes the port as one line; whoever reads the file finds either nothing or all of it. Throws std::runtime_error with
// one line.
void writePortFile(const std::filesystem::path& file, std::uint16_t port);

} // namespace server
