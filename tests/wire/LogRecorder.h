#pragma once

#include "wire/TransLogger.h"

#include <string>
#include <vector>

// Records what a connection logs, one line for each call: "text | code | level".
class LogRecorder {
public:
    [[nodiscard]] wire::TransLogger logger() {
        return [this](const std::string& text, std::int32_t code, std::int32_t level) {
            texts.push_back(text);
            lines.push_back(text + " | " + std::to_string(code) + " | " + std::to_string(level));
        };
    }

    std::vector<std::string> texts;
    std::vector<std::string> lines;
};
