#include "server/PortFile.h"

#include <unistd.h>

#include <fstream>
#include <stdexcept>
#include <string>

namespace server {

void writePortFile(const std::filesystem::path& file, std::uint16_t port) {
    auto written = file;
    written += ".new" + std::to_string(::getpid());
    std::error_code error;
    {
        std::ofstream stream(written);
        stream << port << "\n";
        if (!stream.flush()) {
            std::filesystem::remove(written, error);
            throw std::runtime_error(file.string() + ": the port file cannot be written");
        }
    }
    std::filesystem::rename(written, file, error);
    if (error) {
        const auto reason = error.message();
        std::filesystem::remove(written, error);
        throw std::runtime_error(file.string() + ": the port file cannot be written: " + reason);
    }
}

} // namespace server
