#include "server/Options.h"

#include "server/PortFile.h"
#include "tests/server/support/TestFolder.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using namespace std::chrono_literals;
using test::TestFolder;

Options::Outcome parse(std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "vantreld");
    return Options::parse(static_cast<int>(arguments.size()), arguments.data());
}

std::string usageError(const std::vector<const char*>& arguments) {
    const auto outcome = parse(arguments);
    EXPECT_FALSE(outcome.options);
    EXPECT_EQ(outcome.exitStatus, 2);
    EXPECT_EQ(outcome.text.find('\n'), std::string::npos) << outcome.text;
    return outcome.text;
}

TEST(Options, haveDefaultsForAllButTheDatabase) {
    const auto options = parse({"--database", "a.db"}).options;
    ASSERT_TRUE(options);
    EXPECT_EQ(options->database, "a.db");
    EXPECT_EQ(options->listen, "127.0.0.1");
    EXPECT_EQ(options->port, 5005);
    EXPECT_FALSE(options->portFile);
    EXPECT_FALSE(options->sample);
    EXPECT_FALSE(options->user);
    EXPECT_EQ(options->loginRequired, 720min);
}

TEST(Options, areAllTaken) {
    const auto options = parse({"--database", "a.db", "--listen", "::1", "--port", "0", "--port-file", "p", "--sample",
                                "250", "--user", "admin", "--password-file", "pw", "--login-required", "0"})
                             .options;
    ASSERT_TRUE(options);
    EXPECT_EQ(options->listen, "::1");
    EXPECT_EQ(options->port, 0);
    EXPECT_EQ(options->portFile, "p");
    EXPECT_EQ(options->sample->printers, 250);
    EXPECT_EQ(options->user, "admin");
    EXPECT_EQ(options->passwordFile, "pw");
    EXPECT_EQ(options->loginRequired, 0min);
}

TEST(Options, theSmallSampleHasNoNumber) {
    EXPECT_EQ(parse({"--database", "a.db", "--sample", "small"}).options->sample->printers, 0);
}

TEST(Options, helpNamesEveryOption) {
    const auto outcome = parse({"--help"});
    EXPECT_EQ(outcome.exitStatus, 0);
    for (const auto* option : {"--database", "--listen", "--port", "--port-file", "--sample", "--user",
                               "--password-file", "--login-required"}) {
        EXPECT_NE(outcome.text.find(option), std::string::npos) << option;
    }
}

TEST(Options, everyMisuseIsOneLineThatNamesIt) {
    EXPECT_NE(usageError({}).find("--database"), std::string::npos);
    EXPECT_NE(usageError({"--database"}).find("--database"), std::string::npos);
    EXPECT_NE(usageError({"--database", ""}).find("--database"), std::string::npos);
    EXPECT_NE(usageError({"--database", "a.db", "--colour"}).find("--colour"), std::string::npos);
    EXPECT_NE(usageError({"--database", "a.db", "stray"}).find("stray"), std::string::npos);
    for (const auto* port : {"65536", "-1", "http", "5005x", ""}) {
        EXPECT_NE(usageError({"--database", "a.db", "--port", port}).find("--port"), std::string::npos) << port;
    }
    for (const auto* sample : {"big", "0", "-5", "12x", "1000001"}) {
        EXPECT_NE(usageError({"--database", "a.db", "--sample", sample}).find("--sample"), std::string::npos) << sample;
    }
    for (const auto* minutes : {"-1", "soon"}) {
        EXPECT_NE(usageError({"--database", "a.db", "--login-required", minutes}).find("--login-required"),
                  std::string::npos)
            << minutes;
    }
    EXPECT_NE(usageError({"--database", "a.db", "--user", "admin"}).find("--password-file"), std::string::npos);
    EXPECT_NE(usageError({"--database", "a.db", "--password-file", "pw"}).find("--user"), std::string::npos);
    EXPECT_NE(usageError({"--database", "a.db", "--user", "", "--password-file", "pw"}).find("--user"),
              std::string::npos);
}

TEST(PasswordFile, isItsFirstLineInUnicode) {
    const TestFolder folder;
    EXPECT_EQ(readPassword(folder.write("a", "secret")), u"secret");
    EXPECT_EQ(readPassword(folder.write("b", "geheim \xC3\xA4\r\nsecond line\n")), u"geheim ä");
}

TEST(PasswordFile, thatIsMissingOrEmptyOrAFolderIsTold) {
    const TestFolder folder;
    const auto messageOf = [](const std::filesystem::path& file) -> std::string {
        try {
            (void)readPassword(file);
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return {};
    };
    const auto missing = folder / "missing";
    EXPECT_EQ(messageOf(missing), missing.string() + ": the password file cannot be read");
    std::filesystem::create_directory(folder / "sub");
    EXPECT_NE(messageOf(folder / "sub").find("cannot be read"), std::string::npos);
    EXPECT_NE(messageOf(folder.write("empty", "")).find("contains no password"), std::string::npos);
    EXPECT_NE(messageOf(folder.write("line", "\n")).find("contains no password"), std::string::npos);
}

TEST(PortFile, holdsThePortAndLeavesNothingBeside) {
    const TestFolder folder;
    writePortFile(folder / "port", 5005);
    writePortFile(folder / "port", 6006);
    std::string text;
    std::getline(std::ifstream(folder / "port"), text);
    EXPECT_EQ(text, "6006");
    const std::filesystem::directory_iterator files((folder / "port").parent_path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST(PortFile, thatCannotBeWrittenIsTold) {
    const TestFolder folder;
    EXPECT_THROW(writePortFile(folder / "nowhere/port", 1), std::runtime_error);
    std::filesystem::create_directory(folder / "sub");
    EXPECT_THROW(writePortFile(folder / "sub", 1), std::runtime_error);
}

} // namespace
} // namespace server
