#include "diagnostics/Loggers.h"

#include <gtest/gtest.h>

using namespace QvxDiagnostics;

namespace {

using Lines = std::vector<std::string>;

class RecordingLogger final : public LoggerI {
public:
    explicit RecordingLogger(Lines& lines) : lines_(lines) {}

    void log(std::uint32_t flags, std::string_view file, std::uint32_t line, std::string_view function,
             std::string_view level, std::string_view message, const std::vector<std::string>& tags) override {
        lines_.push_back(std::to_string(flags) + " " + std::string(file) + " " + std::to_string(line) + " " +
                         std::string(function) + " " + std::string(level) + " " + std::string(message) + " " +
                         std::to_string(tags.size()));
    }

private:
    Lines& lines_;
};

} // namespace

TEST(Loggers, aSecondLoggerKeepsTheFirst) {
    static Lines first;
    static Lines second;
    addLogger(std::make_unique<RecordingLogger>(first));
    log(0, "a.cpp", 1, "f", "info", "one", {});
    addLogger(std::make_unique<RecordingLogger>(second));
    log(0x20, "b.cpp", 2, "g", "error", "two", {"tag"});
    EXPECT_EQ(first, (Lines{"0 a.cpp 1 f info one 0", "32 b.cpp 2 g error two 1"}));
    EXPECT_EQ(second, (Lines{"32 b.cpp 2 g error two 1"}));
}
