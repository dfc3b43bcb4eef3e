#include "server/Schema.h"
#include "server/login/Accounts.h"
#include "tests/server/support/Sealing.h"
#include "tests/server/support/TestClient.h"
#include "tests/server/support/TestFolder.h"
#include "tests/server/support/VantreldProcess.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <atomic>
#include <csignal>
#include <set>
#include <thread>

namespace server {
namespace {

using support::hex;
using namespace test; // the words of requests

class Vantreld : public ::testing::Test {
protected:
    [[nodiscard]] std::vector<std::string> serving(std::vector<std::string> more = {}) const {
        std::vector<std::string> arguments = {"--database", database_, "--port", "0", "--login-required", "0"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return arguments;
    }

    // Runs until it exits, which must be at once.
    static std::pair<int, std::string> run(const std::vector<std::string>& arguments) {
        VantreldProcess process(arguments);
        const int status = process.wait();
        return {status, process.output()};
    }

    static std::uint32_t countRegions(std::uint16_t port) {
        const auto message = messagesOf(ask(port, request(0, u8(0) + u32(0) + u16(0)))).at(0);
        return FieldCursor(message).number(2);
    }

    static void createRegion(std::uint16_t port, const std::u16string& name) {
        tell(port, request(1, u8(0) + u32(0) + str16(name)));
    }

    TestFolder folder_;
    std::string database_ = (folder_ / "estate.db").string();
};

// A follow-print queue in region 1 with a name and nothing else.
Bytes createQueue(const std::u16string& name) {
    return request(9, str8("") + str8("") + str8("") + str8("") + str16(name) +
                          hex("00 00 00 00 00 00 00 00 00 00 00 00") + u32(515) + u32(1) + u16(0) +
                          hex("30 30 30 03 00 00") + str16(u"") + u16(0) +
                          hex("00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"));
}

TEST_F(Vantreld, theHelpIsForStandardOutputAndEndsWithZero) {
    const auto [status, output] = run({"--help"});
    EXPECT_EQ(status, 0);
    EXPECT_NE(output.find("--database"), std::string::npos);
}

TEST_F(Vantreld, anUnknownOptionEndsWithTwoAndOneLine) {
    const auto [status, output] = run({"--database", database_, "--colour"});
    EXPECT_EQ(status, 2);
    EXPECT_EQ(output.find("vantreld: "), 0U);
    EXPECT_EQ(output.find('\n'), output.size() - 1);
    EXPECT_FALSE(std::filesystem::exists(database_));
}

TEST_F(Vantreld, theSignalsToEndEndItWithZero) {
    for (const int signal : {SIGTERM, SIGINT}) {
        VantreldProcess process(serving());
        const auto port = process.waitForPort();
        EXPECT_EQ(countRegions(port), 0U);
        process.signal(signal);
        EXPECT_EQ(process.wait(), 0);
    }
}

TEST_F(Vantreld, thePortFileHoldsThePort) {
    VantreldProcess process(serving({"--port-file", (folder_ / "port").string()}));
    const auto port = process.waitForPort();
    std::string text;
    std::getline(std::ifstream(folder_ / "port"), text);
    EXPECT_EQ(text, std::to_string(port));
}

TEST_F(Vantreld, aPortFileThatCannotBeWrittenEndsWithOne) {
    const auto [status, output] = run(serving({"--port-file", (folder_ / "nowhere/port").string()}));
    EXPECT_EQ(status, 1);
    EXPECT_NE(output.find("the port file cannot be written"), std::string::npos);
}

TEST_F(Vantreld, aSecondOneOnTheSameDatabaseEndsWithOne) {
    VantreldProcess first(serving());
    const auto port = first.waitForPort();
    const auto [status, output] = run(serving());
    EXPECT_EQ(status, 1);
    EXPECT_EQ(output, "vantreld: " + database_ + ": the database is in use by another vantreld\n");
    EXPECT_EQ(countRegions(port), 0U);
}

TEST_F(Vantreld, aPortInUseEndsWithOne) {
    VantreldProcess first(serving());
    const auto port = std::to_string(first.waitForPort());
    const auto [status, output] = run({"--database", (folder_ / "other.db").string(), "--port", port});
    EXPECT_EQ(status, 1);
    EXPECT_EQ(output, "vantreld: cannot listen on 127.0.0.1 port " + port + ": Address already in use\n");
}

TEST_F(Vantreld, aFileThatIsNoDatabaseEndsWithOne) {
    const auto letter = folder_.write("letter", std::string(5000, 'x')).string();
    const auto [status, output] = run({"--database", letter, "--port", "0"});
    EXPECT_EQ(status, 1);
    EXPECT_EQ(output, "vantreld: " + letter + ": the file is not a database\n");
}

TEST_F(Vantreld, aPasswordFileThatIsMissingEndsWithOneBeforeADatabaseIsMade) {
    const auto [status, output] = run(serving({"--user", "admin", "--password-file", (folder_ / "missing").string()}));
    EXPECT_EQ(status, 1);
    EXPECT_NE(output.find("the password file cannot be read"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(database_));
}

TEST_F(Vantreld, theSampleGoesIntoAnEmptyDatabaseOnly) {
    {
        VantreldProcess process(serving({"--sample", "small"}));
        EXPECT_EQ(countRegions(process.waitForPort()), 10U);
        process.signal(SIGTERM);
        EXPECT_EQ(process.wait(), 0);
    }
    const auto [status, output] = run(serving({"--sample", "100"}));
    EXPECT_EQ(status, 1);
    EXPECT_EQ(output, "vantreld: " + database_ + ": --sample needs an empty database\n");
    VantreldProcess process(serving());
    EXPECT_EQ(countRegions(process.waitForPort()), 10U);
}

TEST_F(Vantreld, anAccountIsAddedChangedAndKept) {
    const auto verify = [&](const std::u16string& password) {
        const Store store(database_, schema());
        Accounts accounts(store);
        const auto key = accounts.publicKey();
        return accounts.verify({seal(key, u"admin"), seal(key, u""), seal(key, password)});
    };
    for (const auto* password : {"first", "second"}) {
        const auto file = folder_.write("pw", std::string(password) + "\n").string();
        VantreldProcess process(serving({"--user", "admin", "--password-file", file}));
        (void)process.waitForPort();
        process.signal(SIGTERM);
        EXPECT_EQ(process.wait(), 0);
        EXPECT_EQ(process.output().find(password), std::string::npos);
    }
    EXPECT_TRUE(verify(u"second"));
    EXPECT_FALSE(verify(u"first"));
}

TEST_F(Vantreld, everythingIsThereAgainAfterARestart) {
    {
        VantreldProcess process(serving());
        const auto port = process.waitForPort();
        createRegion(port, u"North");
        createRegion(port, u"South");
        process.signal(SIGTERM);
        EXPECT_EQ(process.wait(), 0);
    }
    VantreldProcess process(serving());
    EXPECT_EQ(countRegions(process.waitForPort()), 2U);
}

TEST_F(Vantreld, whatWasListedSurvivesAKill) {
    for (std::uint32_t round = 1; round <= 5; ++round) {
        VantreldProcess process(serving());
        const auto port = process.waitForPort();
        EXPECT_EQ(countRegions(port), round - 1);
        createRegion(port, std::u16string(round, u'x'));
        EXPECT_EQ(countRegions(port), round);
        process.signal(SIGKILL);
        EXPECT_EQ(process.wait(), -SIGKILL);
    }
}

TEST_F(Vantreld, whatWasAcknowledgedSurvivesAKillInTheMiddleOfChanges) {
    std::set<std::string> acknowledged;
    for (int round = 0; round < 6; ++round) {
        VantreldProcess process(serving());
        const auto port = process.waitForPort();
        if (round == 0) {
            createRegion(port, u"North");
        }
        std::atomic<int> made = 0;
        std::jthread writer([&] {
            try {
                for (int number = 0;; ++number) {
                    const auto digits = std::to_string(round * 100000 + number);
                    const auto message = messagesOf(ask(port, createQueue({digits.begin(), digits.end()})));
                    if (message.empty()) {
                        break; // the server is gone
                    }
                    FieldCursor cursor(message[0]);
                    EXPECT_EQ(cursor.text16(), u"");
                    (void)cursor.text16();
                    (void)cursor.number(4);
                    acknowledged.insert(cursor.text8());
                    made.fetch_add(1);
                    made.notify_one();
                }
            } catch (const std::exception&) {
                // The server is gone.
            }
            made = -1;
            made.notify_one();
        });
        for (int count = 0; (count = made.load()) >= 0 && count < 10 + round * 7;) {
            made.wait(count);
        }
        process.signal(SIGKILL);
        EXPECT_EQ(process.wait(), -SIGKILL);
    }
    VantreldProcess process(serving());
    const auto messages = messagesOf(ask(process.waitForPort(), request(6, str8("") + u32(1) + u16(3))));
    std::set<std::string> listed;
    for (std::size_t index = 1; index < messages.size(); ++index) {
        FieldCursor cursor(messages[index]);
        (void)cursor.text8();
        (void)cursor.text8();
        listed.insert(cursor.text8());
    }
    EXPECT_GE(acknowledged.size(), 60U);
    for (const auto& id : acknowledged) {
        EXPECT_TRUE(listed.contains(id)) << id;
    }
}

TEST_F(Vantreld, aFullDiskIsToldToTheConsoleAndTheServerGoesOn) {
    {
        VantreldProcess process(serving());
        createRegion(process.waitForPort(), u"North");
        process.signal(SIGTERM);
        EXPECT_EQ(process.wait(), 0);
    }
    VantreldProcess process(serving(), std::filesystem::file_size(database_) + 100000);
    const auto port = process.waitForPort();
    std::u16string caption;
    std::u16string text;
    std::uint32_t made = 0;
    for (; made < 100 && caption.empty(); ++made) {
        const auto message = messagesOf(ask(port, createQueue(std::u16string(10000 + made, u'x')))).at(0);
        FieldCursor cursor(message);
        caption = cursor.text16();
        text = cursor.text16();
    }
    EXPECT_EQ(caption, u"Not saved");
    EXPECT_EQ(text.find(u"The server could not store the change: "), 0U);
    const auto list = messagesOf(ask(port, request(6, str8("") + u32(1) + u16(3))));
    EXPECT_EQ(list.size() - 1, made - 1);
    process.signal(SIGTERM);
    EXPECT_EQ(process.wait(), 0);
}

TEST_F(Vantreld, aCommandWithoutALoginIsToldInTheLog) {
    VantreldProcess process({"--database", database_, "--port", "0"});
    EXPECT_TRUE(ask(process.waitForPort(), request(0, u8(0) + u32(0) + u16(0))).empty());
    process.signal(SIGTERM);
    EXPECT_EQ(process.wait(), 0);
    EXPECT_NE(process.output().find("127.0.0.1: command 0 without a login"), std::string::npos);
}

} // namespace
} // namespace server
