#include "protocol/estate/Login.h"
#include "tests/client/ClientTest.h"
#include "tests/client/ServerKey.h"

#include <array>

namespace client {
namespace {

namespace status = protocol::loginStatus;
using support::ScriptedServer;

class Login : public ClientTest {
protected:
    static Bytes lengthOf(const Bytes& block) {
        const auto size = static_cast<std::uint32_t>(block.size());
        return {static_cast<std::uint8_t>(size), static_cast<std::uint8_t>(size >> 8),
                static_cast<std::uint8_t>(size >> 16), static_cast<std::uint8_t>(size >> 24)};
    }

    static ScriptedServer::Script givesKey(const Bytes& key) {
        return [key](Connection& connection) {
            connection.expectFrame();
            connection.send(frame({dataMessage(hex("01 00 76 07 00 00 00"))}));
            connection.send(lengthOf(key));
            connection.expect(1);
            connection.send(key);
            connection.expect(1);
            connection.untilClosed();
        };
    }

    // Receives the three blocks, and answers with this frame.
    ScriptedServer::Script takesCredentials(const Bytes& reply) {
        return [this, reply](Connection& connection) {
            connection.expectFrame();
            for (Bytes& block : blocks) {
                connection.expect(4);
                connection.send(hex("00"));
                block = connection.expect(256);
                connection.send(hex("01"));
            }
            connection.send(reply);
            connection.untilClosed();
        };
    }

    static Bytes statusFrame(const char* fields) { return frame({dataMessage(hex(fields))}); }

    std::uint16_t login(const wire::WideString& user = u"admin", const wire::WideString& password = u"secret",
                        const wire::WideString& domain = u"OFFICE") {
        return CQVXAdminClass(settings).login(user, password, domain);
    }

    const Bytes request78 = hex("01  09 00 00 00  58 00 00 00  00 09 00 00 00 01 00 4E 00");
    std::array<Bytes, 3> blocks;
};

TEST_F(Login, sealsUserDomainAndPasswordInThisOrder) {
    serve({givesKey(serverKey().publicHalf()), takesCredentials(statusFrame("01 00"))});

    EXPECT_EQ(login(), status::loggedIn);

    EXPECT_EQ(server->finish(), "");
    EXPECT_EQ(serverKey().open(blocks[0]), u"admin");
    EXPECT_EQ(serverKey().open(blocks[1]), u"OFFICE");
    EXPECT_EQ(serverKey().open(blocks[2]), u"secret");
}

TEST_F(Login, asksForTheKeyAndConfirmsIt) {
    const Bytes key = serverKey().publicHalf();
    serve({givesKey(key), takesCredentials(statusFrame("01 00"))});

    login();

    const Bytes acknowledgement{lengthOf(key)[0]};
    EXPECT_EQ(received(0), request78 + acknowledgement + hex("01"));
}

TEST_F(Login, opensWithThreeAndZeroAndThenTheBlocks) {
    serve({givesKey(serverKey().publicHalf()), takesCredentials(statusFrame("01 00"))});

    login();

    const Bytes length = hex("00 01 00 00");
    EXPECT_EQ(received(1), hex("02  12 00 00 00  2D 00 00 00  01 09 00 00 00 03 00 00 00  00 09 00 00 00 01 00 16 00") +
                               length + blocks[0] + length + blocks[1] + length + blocks[2]);
}

TEST_F(Login, givesTheServersStatus) {
    const auto key = givesKey(serverKey().publicHalf());
    serve({key, takesCredentials(statusFrame("02 00")), key, takesCredentials(statusFrame("03 00"))});

    EXPECT_EQ(login(), status::wrongCredentials);
    EXPECT_EQ(login(), status::wrongVersion);
}

TEST_F(Login, theSettingsHoldTheTypedTextAndNotTheCipherText) {
    serve({givesKey(serverKey().publicHalf()), takesCredentials(statusFrame("01 00"))});

    login();

    EXPECT_EQ(settings->userName, u"admin");
    EXPECT_EQ(settings->domainName, u"OFFICE");
}

TEST_F(Login, theSettingsStandChangedEvenWhenTheLoginFails) {
    serve({givesKey(serverKey().publicHalf()), takesCredentials(statusFrame("02 00"))});

    login();

    EXPECT_EQ(settings->userName, u"admin");
    EXPECT_EQ(settings->domainName, u"OFFICE");
}

TEST_F(Login, aKeyFetchThatFailsLeavesUserAndDomainAsTheyStood) {
    settings->userName = u"stored user";
    settings->domainName = u"stored domain";
    serve({[](Connection& connection) { connection.expectFrame(); }});

    EXPECT_EQ(login(), status::noAnswer);

    EXPECT_EQ(settings->userName, u"stored user");
    EXPECT_EQ(settings->domainName, u"stored domain");
}

TEST_F(Login, aCredentialOf123CharactersEndsInStatusZero) {
    serve({givesKey(serverKey().publicHalf()), [](Connection& connection) {
               connection.expectFrame();
               for (int block = 0; block < 2; ++block) {
                   connection.expect(4);
                   connection.send(hex("00"));
                   connection.expect(256);
                   connection.send(hex("01"));
               }
           }});

    EXPECT_EQ(login(u"admin", wire::WideString(123, u'x')), status::noAnswer);
}

TEST_F(Login, anEmptyServerNameEndsInStatusZero) {
    settings->host.clear();

    EXPECT_EQ(login(), status::noAnswer);
}

TEST_F(Login, withoutAServerEndsInStatusZero) {
    EXPECT_EQ(login(), status::noAnswer);
}

TEST_F(Login, aServerThatIsGoneAfterTheKeyEndsInStatusZero) {
    serve({givesKey(serverKey().publicHalf()), [](Connection&) {}});

    EXPECT_EQ(login(), status::noAnswer);
}

TEST_F(Login, aBlockThatTheServerRejectsIsNotNoticed) {
    serve({givesKey(serverKey().publicHalf()), [](Connection& connection) {
               connection.expectFrame();
               for (int block = 0; block < 3; ++block) {
                   connection.expect(4);
                   connection.send(hex("00"));
                   connection.expect(256);
                   connection.send(hex("02"));
               }
               connection.send(statusFrame("02 00"));
               connection.untilClosed();
           }});

    EXPECT_EQ(login(), status::wrongCredentials);
}

TEST_F(Login, aStatusThatIsTooShortEndsInStatusZero) {
    serve({givesKey(serverKey().publicHalf()), takesCredentials(statusFrame("01"))});

    EXPECT_EQ(login(), status::noAnswer);
}

TEST_F(Login, aFrameThatDoesNotAddUpEndsInStatusZero) {
    serve({[](Connection& connection) {
        connection.expectFrame();
        connection.send(frame({hex("01 FF 00 00 00 00 00")}));
        connection.untilClosed();
    }});

    EXPECT_EQ(login(), status::noAnswer);
}

TEST_F(Login, aKeyThatIsCutShortIsAFailureAndTheServerIsTold) {
    serve({[](Connection& connection) {
        connection.expectFrame();
        connection.send(statusFrame("00 00 00 00 00 00"));
        connection.send(hex("FF 00 00 00"));
        connection.expect(1);
        connection.send(hex("30 82"));
        connection.endSending();
        connection.untilClosed();
    }});
    std::string key;

    EXPECT_TRUE(CQVXAdminClass(settings).fetchPublicKey(key, "127.0.0.1", settings->port));

    EXPECT_EQ(received(), request78 + hex("FF 02"));
}

TEST_F(Login, aKeyLongerThanAnyIsAFailureBeforeItIsReceived) {
    serve({[](Connection& connection) {
        connection.expectFrame();
        connection.send(statusFrame("00 00 00 00 00 00"));
        connection.send(hex("01 08 00 00"));
        connection.untilClosed();
    }});

    EXPECT_EQ(login(), status::noAnswer);

    EXPECT_EQ(received(), request78 + hex("02"));
    EXPECT_EQ(observer.ended.at(0).text, "The server's key did not arrive whole");
}

TEST_F(Login, aKeyMayHoldZeroBytes) {
    serve({givesKey(hex("30 00 00 41"))});
    std::string key;

    EXPECT_FALSE(CQVXAdminClass(settings).fetchPublicKey(key, "127.0.0.1", settings->port));

    EXPECT_EQ(key, std::string("0\0\0A", 4));
}

TEST_F(Login, isReportedWithTheUserButNeverWithAPassword) {
    serve({givesKey(serverKey().publicHalf()), takesCredentials(statusFrame("01 00"))});

    login();

    ASSERT_EQ(observer.ended.size(), 2U);
    EXPECT_EQ(observer.ended[0].name, "GetPublicKey");
    EXPECT_EQ(observer.ended[1].name, "Login");
    EXPECT_EQ(observer.ended[1].summary, "admin");
    for (const auto& report : observer.ended) {
        EXPECT_EQ(report.outcome, CommandOutcome::done);
        EXPECT_EQ((report.summary + report.text + report.target).find("secret"), std::string::npos);
    }
}

TEST_F(Login, whatThrowsIsReportedThoughTheLoginOnlyGivesZero) {
    GivingUp givingUp;
    settings->hooks.wait = &givingUp;
    serve({[](Connection& connection) { connection.stall(); }});

    EXPECT_EQ(login(), status::noAnswer);

    ASSERT_EQ(observer.ended.size(), 1U);
    EXPECT_EQ(observer.ended[0].outcome, CommandOutcome::cancelled);
}

} // namespace
} // namespace client
