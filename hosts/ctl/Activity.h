#pragma once

#include "shell/ShellObserver.h"

#include <filesystem>
#include <fstream>

namespace ctl {

// Adds a line of JSON to a file for each command that went to the server. No password is ever in it.
class Activity final : public shell::ShellObserver {
public:
    // Throws Failure (refused) when the file can't be written.
    explicit Activity(const std::filesystem::path& file);

    void commandEnded(const client::CommandReport& report) override;

private:
    std::ofstream stream_;
};

} // namespace ctl
