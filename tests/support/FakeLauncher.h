#pragma once

#include "platform/ProcessLauncher.h"

#include <vector>

namespace support {

// Records the programs that would have been started.
class FakeLauncher final : public platform::ProcessLauncher {
public:
    std::vector<std::vector<wire::WideString>> started; // each the program, then its arguments
    std::error_code error;                              // the error of the next starts

    std::error_code start(const wire::WideString& program, const std::vector<wire::WideString>& arguments) override {
        if (!error) {
            started.push_back({program});
            started.back().insert(started.back().end(), arguments.begin(), arguments.end());
        }
        return error;
    }
};

} // namespace support
