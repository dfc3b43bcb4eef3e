#include "diagnostics/FileLogger.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdlib.h>

using QvxDiagnostics::FileLogger;

namespace {

class FileLoggerTest : public testing::Test {
protected:
    FileLoggerTest() {
        std::string pattern = (std::filesystem::temp_directory_path() / "vantrel-XXXXXX").string();
        folder_ = ::mkdtemp(pattern.data());
    }
    ~FileLoggerTest() override { std::filesystem::remove_all(folder_); }

    [[nodiscard]] std::filesystem::path file() const { return folder_ / "mmc_log.txt"; }

    [[nodiscard]] std::string content() const {
        std::ostringstream text;
        text << std::ifstream(file(), std::ios::binary).rdbuf();
        return text.str();
    }

    std::filesystem::path folder_;
};

} // namespace

TEST_F(FileLoggerTest, aLineIsInTheFileAsSoonAsItIsLogged) {
    FileLogger logger(file().string());
    logger.log(0, "", 0, "", "info", "first", {});
    EXPECT_EQ(content(), "info|first\n");
}

TEST_F(FileLoggerTest, theFileHoldsTheLatestLineOnly) {
    FileLogger logger(file().string());
    logger.log(0, "", 0, "", "info", "first", {});
    logger.log(0, "", 0, "", "info", "second", {});
    EXPECT_EQ(content(), "info|second\n");
}

TEST_F(FileLoggerTest, withoutTheFolderNothingHappensAtAll) {
    FileLogger logger((folder_ / "absent" / "mmc_log.txt").string());
    logger.log(0, "", 0, "", "info", "first", {});
    EXPECT_TRUE(std::filesystem::is_empty(folder_));
}

TEST_F(FileLoggerTest, theAbortFlagEndsTheProcessAfterTheLineIsClosed) {
    FileLogger logger(file().string());
    EXPECT_EXIT(logger.log(0x01, "", 0, "", "fatal", "the end", {}), testing::KilledBySignal(SIGABRT), "");
    EXPECT_EQ(content(), "fatal|the end\nAborting...\n");
}
