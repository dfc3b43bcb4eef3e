#include "hosts/common/DiagnosticsLog.h"

#include "tests/server/support/TestFolder.h"
#include "tests/support/Environment.h"

#include <sys/stat.h>

#include <gmock/gmock.h>

#include <csignal>
#include <fstream>

namespace hosttest {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class DiagnosticsLog : public testing::Test {
protected:
    void write(const std::string& message) { log_.log(0, "", 0, "", "ERROR", message, {}); }
    static std::string contentOf(const fs::path& where) {
        std::ifstream stream(where, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    static unsigned permissionsOf(const fs::path& where) {
        return static_cast<unsigned>(fs::status(where).permissions()) & 0777U;
    }
    static void put(const fs::path& where, const std::string& content) {
        fs::create_directories(where.parent_path());
        std::ofstream(where) << content;
    }

    server::test::TestFolder folder;
    const fs::path states = fs::path(folder / "state");
    const fs::path file = states / "vantrel" / "mmc_log.txt";
    std::vector<std::string> complaints;

private:
    common::DiagnosticsLog log_{file, [this](const std::string& line) { complaints.push_back(line); }};
};

TEST_F(DiagnosticsLog, isMadeWithItsFirstLineForItsOwnerOnly) {
    EXPECT_FALSE(fs::exists(states));

    write("first");

    EXPECT_EQ(contentOf(file), "ERROR|first\n");
    EXPECT_EQ(permissionsOf(file), 0600U);
    EXPECT_EQ(permissionsOf(file.parent_path()), 0700U);
    EXPECT_THAT(complaints, IsEmpty());
}

TEST_F(DiagnosticsLog, addsToWhatIsThere) {
    put(file, "before\n");

    write("first");
    write("second");

    EXPECT_EQ(contentOf(file), "before\nERROR|first\nERROR|second\n");
}

TEST_F(DiagnosticsLog, isTakenFromOthersWhereTheyCouldReadIt) {
    put(file, "");
    fs::permissions(file, fs::perms(0644));

    write("first");

    EXPECT_EQ(permissionsOf(file), 0600U);
}

TEST_F(DiagnosticsLog, doesNotFollowALink) {
    put(folder / "victim", "mine");
    fs::create_directories(file.parent_path());
    fs::create_symlink(folder / "victim", file);

    write("first");
    write("second");

    EXPECT_EQ(contentOf(folder / "victim"), "mine");
    EXPECT_THAT(complaints, ElementsAre("The diagnostics log " + file.string() + " can't be written"));
}

TEST_F(DiagnosticsLog, doesNotFollowALinkOfItsFolder) {
    fs::create_directories(folder / "elsewhere");
    fs::create_directories(states);
    fs::create_symlink(folder / "elsewhere", states / "vantrel");

    write("first");

    EXPECT_TRUE(fs::is_empty(folder / "elsewhere"));
    EXPECT_THAT(complaints, testing::SizeIs(1));
}

TEST_F(DiagnosticsLog, isNotHeldUpByAPipe) {
    fs::create_directories(file.parent_path());
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);

    write("first");

    EXPECT_THAT(complaints, testing::SizeIs(1));
}

TEST_F(DiagnosticsLog, endsTheProgramAfterALineThatSaysSo) {
    common::DiagnosticsLog log(file, [](const std::string&) {});

    EXPECT_EXIT(log.log(1, "", 0, "", "FATAL", "the end", {}), testing::KilledBySignal(SIGABRT), "");
    EXPECT_EQ(contentOf(file), "FATAL|the end\nAborting...\n");
}

TEST_F(DiagnosticsLog, standsInTheFolderForStates) {
    const support::EnvironmentVariable home("HOME", "/home/anna");
    {
        const support::EnvironmentVariable state("XDG_STATE_HOME", "/var/anna");
        EXPECT_EQ(common::DiagnosticsLog::defaultPath(), "/var/anna/vantrel/mmc_log.txt");
    }
    const support::EnvironmentVariable state("XDG_STATE_HOME", "relative");
    EXPECT_EQ(common::DiagnosticsLog::defaultPath(), "/home/anna/.local/state/vantrel/mmc_log.txt");
}

TEST(NoDiagnosticsLog, isSaidOnceAndHoldsUpNobody) {
    std::vector<std::string> complaints;
    common::DiagnosticsLog log({}, [&](const std::string& line) { complaints.push_back(line); });

    log.log(0, "", 0, "", "ERROR", "first", {});
    log.log(0, "", 0, "", "ERROR", "second", {});

    EXPECT_THAT(complaints, ElementsAre("There is no folder for the diagnostics log"));
}

} // namespace
} // namespace hosttest
