#include "platform/Guard.h"
#include "diagnostics/Loggers.h"
#include "tests/support/TestPlatform.h"
#include "wire/Cancelled.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Keeps the lines only during a test; the list of loggers lives longer.
class LineKeeper final : public QvxDiagnostics::LoggerI {
public:
    explicit LineKeeper(std::shared_ptr<std::vector<std::string>> lines) : lines_(std::move(lines)) {}

    void log(std::uint32_t flags, std::string_view /*file*/, std::uint32_t /*line*/, std::string_view /*function*/,
             std::string_view level, std::string_view message, const std::vector<std::string>& tags) override {
        EXPECT_EQ(flags & QvxDiagnostics::abortAfterLine, 0U);
        lines_->push_back(std::string(level) + "|" + std::string(message) + "|" + tags.at(0));
    }

private:
    std::shared_ptr<std::vector<std::string>> lines_;
};

class GuardTest : public testing::Test {
protected:
    support::TestPlatform platform;

    bool run(const std::function<void()>& work) {
        return guarded(
            platform.platform(), [] { return std::string("here"); }, work);
    }
};

TEST_F(GuardTest, workThatEndsWellIsNotReported) {
    int times = 0;
    EXPECT_TRUE(run([&] { ++times; }));
    EXPECT_EQ(times, 1);
    EXPECT_THAT(platform.failures(), IsEmpty());
}

TEST_F(GuardTest, whateverIsThrownIsStoppedAndReported) {
    EXPECT_FALSE(run([] { throw "iGetData(): Socket operation on invalid socket"; }));
    EXPECT_FALSE(run([] { throw std::runtime_error("no connection"); }));
    EXPECT_FALSE(run([] { throw wire::Cancelled(); }));
    EXPECT_FALSE(run([] { throw 5; }));
    EXPECT_FALSE(run([] { throw static_cast<const char*>(nullptr); }));
    EXPECT_THAT(platform.failures(),
                ElementsAre("here: iGetData(): Socket operation on invalid socket", "here: no connection",
                            "here: Cancelled", "here: Unknown exception", "here: Unknown exception"));
}

TEST_F(GuardTest, failuresGoToTheLogAsErrorsAndCancellationsAsInformation) {
    const auto lines = std::make_shared<std::vector<std::string>>();
    QvxDiagnostics::addLogger(std::make_unique<LineKeeper>(lines));
    run([] { throw std::runtime_error("no connection"); });
    run([] { throw wire::Cancelled(); });
    EXPECT_THAT(*lines, ElementsAre("ERROR|no connection|here", "INFO|Cancelled|here"));
}

TEST_F(GuardTest, withoutAnObserverItStopsFailuresAllTheSame) {
    platform.platform().hooks.commands = nullptr;
    EXPECT_FALSE(run([] { throw "Reading out of scope"; }));
}

} // namespace
} // namespace platform
