#pragma once

#include "shell/ShellObserver.h"

#include <filesystem>
#include <fstream>

namespace ctl {

// Appends a line of JSON to a file for each command sent to the server. Never contains a password.
class Activity final : public shell::ShellObserver {
public:
    // Throws Failure (refused) when the file can't be written.
    explicit Activity(const std::filesystem::path& file);

    void commandEnded(const client::CommandReport& report) override;

private:
    std::ofstream stream_;
};

} // namespace ctl
