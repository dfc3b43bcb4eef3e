#include "hosts/common/SystemLauncher.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace common {
namespace {

namespace fs = std::filesystem;

// Starts shell commands that write their output to a fifo, from which the test reads until they have ended.
class SystemLauncherTest : public testing::Test {
protected:
    SystemLauncherTest() {
        std::string name = fs::temp_directory_path() / "launcher.XXXXXX";
        folder_ = ::mkdtemp(name.data());
        EXPECT_EQ(::mkfifo(fifo().c_str(), S_IRWXU), 0);
    }
    ~SystemLauncherTest() override { fs::remove_all(folder_); }

    [[nodiscard]] fs::path fifo() const { return folder_ / "fifo"; }

    // The output of a command, which gets the arguments as "$1" and so on.
    std::string outputOf(const std::string& command, const std::vector<wire::WideString>& arguments = {}) {
        std::vector<wire::WideString> all{u"-c", wire::toWide("exec >'" + fifo().string() + "'; " + command), u"sh"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        EXPECT_FALSE(launcher_.start(u"/bin/sh", all));
        std::ostringstream text;
        text << std::ifstream(fifo()).rdbuf();
        return text.str();
    }

    SystemLauncher launcher_;
    fs::path folder_;
};

TEST_F(SystemLauncherTest, passesArgumentsOnAsTheyStand) {
    EXPECT_EQ(outputOf("printf '<%s>' \"$@\"", {u"plain", u"two words", u"", u"\"'$*\\", u"Ångström"}),
              "<plain><two words><><\"'$*\\><Ångström>");
}

TEST_F(SystemLauncherTest, saysWhyAProgramCannotBeStarted) {
    EXPECT_EQ(launcher_.start(wire::toWide((folder_ / "missing").string()), {}), std::errc::no_such_file_or_directory);
    EXPECT_EQ(launcher_.start(wire::toWide(folder_.string()), {}), std::errc::permission_denied);
    EXPECT_EQ(launcher_.start(u"", {}), std::errc::no_such_file_or_directory);
}

TEST_F(SystemLauncherTest, aFileThatIsNoProgramIsRefused) {
    const fs::path file = folder_ / "note";
    std::ofstream(file) << "not a program\n";
    fs::permissions(file, fs::perms::owner_all);

    EXPECT_EQ(launcher_.start(wire::toWide(file.string()), {}), std::errc::executable_format_error);
}

TEST_F(SystemLauncherTest, leavesNoChildBehind) {
    outputOf("echo done");
    EXPECT_TRUE(launcher_.start(u"/nowhere/at/all", {}));

    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(SystemLauncherTest, theProgramIsNoChildOfThisOne) {
    const std::string parent = outputOf("ps -o ppid= -p $$ 2>/dev/null || cut -d' ' -f4 /proc/$$/stat");

    EXPECT_NE(std::stol(parent), ::getpid());
}

TEST_F(SystemLauncherTest, nothingThatIsOpenHereIsOpenThere) {
    const int open = ::open("/dev/zero", O_RDONLY); // stays open across an exec

    const std::string descriptors = outputOf("ls -l /proc/$$/fd");

    ::close(open);
    EXPECT_EQ(descriptors.find("/dev/zero"), std::string::npos) << descriptors;
    EXPECT_NE(descriptors.find("0 -> /dev/null"), std::string::npos) << descriptors;
    EXPECT_NE(descriptors.find("2 -> /dev/null"), std::string::npos) << descriptors;
}

TEST_F(SystemLauncherTest, doesNotWaitForTheProgram) {
    EXPECT_FALSE(launcher_.start(u"/bin/sh", {u"-c", wire::toWide("read line <'" + fifo().string() + "'")}));

    std::ofstream(fifo()) << "end\n"; // the program waits for this, and this process does not hang above
}

} // namespace
} // namespace common
