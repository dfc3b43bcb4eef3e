#include "snapin/AuthenticationDlg.h"

#include "client/CQVXAdminClassProperties.h"
#include "tests/support/FakeLoginServer.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

namespace {

using platform::Answer;
using snapin::AuthenticationDlg;
using snapin::AuthenticationStatus;

class AuthenticationDialog : public ::testing::Test {
protected:
    ~AuthenticationDialog() override { client::theProperties.reset(); }

    // Opens the dialog and fills it for a server of the test.
    void fill(const support::FakeLoginServer& server) { fill(server.portText()); }
    void fill(const wire::WideString& port) {
        dialog_.open();
        dialog_.serverName.userTyped(u"127.0.0.1");
        dialog_.port.userTyped(port);
        dialog_.userName.userTyped(u"ann");
        dialog_.password.userTyped(u"secret");
        dialog_.domain.userTyped(u"OFFICE");
    }

    void expectFailure(const wire::WideString& text) { platform_.ui.expectBox(Answer::ok, text); }

    support::TestPlatform platform_;
    AuthenticationDlg dialog_{platform_};
};

const wire::WideString unavailable = u"Server unavailable";

wire::WideString nobodysPort() {
    return wire::toWide(std::to_string(support::ScriptedServer::unusedPort()));
}

TEST_F(AuthenticationDialog, isDrawnAsItsUsersKnowIt) {
    EXPECT_EQ(dialog_.title(), u"Connect to Vantrel Print Management Server");
    EXPECT_EQ(dialog_.okButton().label(), u"Login");
    EXPECT_EQ(dialog_.cancelButton().label(), u"Cancel");
    EXPECT_EQ(dialog_.userAuthentication.label(), u"User Authentication");
    EXPECT_EQ(dialog_.serverName.label(), u"Server Name       ");
    EXPECT_EQ(dialog_.port.label(), u"Port                     ");
    EXPECT_EQ(dialog_.userName.label(), u"User Name          ");
    EXPECT_EQ(dialog_.password.label(), u"Password            ");
    EXPECT_EQ(dialog_.domain.label(), u"Domain                ");
    EXPECT_EQ(dialog_.version.text(), u"VERSION");
}

TEST_F(AuthenticationDialog, hasControlsWithTheNumbersThatTheyHaveAlwaysHad) {
    EXPECT_EQ(dialog_.serverName.resourceId(), 294);
    EXPECT_EQ(dialog_.port.resourceId(), 295);
    EXPECT_EQ(dialog_.userName.resourceId(), 276);
    EXPECT_EQ(dialog_.password.resourceId(), 260);
    EXPECT_EQ(dialog_.domain.resourceId(), 292);
    EXPECT_EQ(dialog_.version.resourceId(), 461);
    EXPECT_EQ(dialog_.userAuthentication.resourceId(), 296);
    EXPECT_EQ(dialog_.okButton().resourceId(), 1);
    EXPECT_EQ(dialog_.cancelButton().resourceId(), 2);
}

TEST_F(AuthenticationDialog, showsTheVersionOfTheModule) {
    platform_.platform().productVersion = {1, 0, 2, 77};

    dialog_.open();

    EXPECT_EQ(dialog_.version.text(), u"Vantrel Admin MMC Version: 1.0.2.77");
}

TEST_F(AuthenticationDialog, showsAFixedLineWhenTheVersionCannotBeRead) {
    dialog_.open();

    EXPECT_EQ(dialog_.version.text(), u"VantrelAdmin MMC Version");
}

TEST_F(AuthenticationDialog, startsWithWhatWasStored) {
    platform_.settings.values = {
        {"ServerName", u"print1"}, {"ServerPort", u"5005"}, {"UserName", u"ann"}, {"DomainName", u"OFFICE"}};

    dialog_.open();

    EXPECT_EQ(dialog_.serverName.text(), u"print1");
    EXPECT_EQ(dialog_.port.text(), u"5005");
    EXPECT_EQ(dialog_.userName.text(), u"ann");
    EXPECT_EQ(dialog_.domain.text(), u"OFFICE");
    EXPECT_EQ(dialog_.password.text(), u"");
    EXPECT_EQ(dialog_.focus(), &dialog_.password);
}

TEST_F(AuthenticationDialog, startsInTheFirstFieldThatIsMissing) {
    platform_.settings.values = {{"ServerName", u"print1"}, {"ServerPort", u"5005"}, {"DomainName", u"OFFICE"}};

    dialog_.open();

    EXPECT_EQ(dialog_.focus(), &dialog_.userName);
}

TEST_F(AuthenticationDialog, startsEmptyInTheServerFieldWhenNothingWasEverStored) {
    platform_.settings.opens = false;

    dialog_.open();

    EXPECT_EQ(dialog_.serverName.text(), u"");
    EXPECT_EQ(dialog_.port.text(), u"");
    EXPECT_EQ(dialog_.focus(), &dialog_.serverName);
}

TEST_F(AuthenticationDialog, wantsANumberAsPort) {
    dialog_.open();
    dialog_.port.userTyped(u"50a5");
    platform_.ui.expectBox(Answer::ok, u"Port should be a number");

    dialog_.port.userLeft();

    EXPECT_EQ(platform_.ui.boxes().front().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().front().style, platform::boxStyle::iconWarning);
    EXPECT_EQ(dialog_.focus(), &dialog_.port);
}

TEST_F(AuthenticationDialog, leavesAnEmptyPortFieldAlone) {
    dialog_.open();

    dialog_.port.userLeft();

    EXPECT_TRUE(platform_.ui.boxes().empty());
}

TEST_F(AuthenticationDialog, endsConnectedAndStoresTheFourValues) {
    support::FakeLoginServer server({1});
    fill(server);

    dialog_.okButton().userPressed();

    EXPECT_EQ(server.finish(), "");
    EXPECT_TRUE(dialog_.ended());
    EXPECT_EQ(dialog_.status(), AuthenticationStatus::connected);
    EXPECT_EQ(dialog_.statusText(), u"Connected to Vantrel Print Management Server");
    EXPECT_EQ(platform_.settings.values.at("ServerName"), u"127.0.0.1");
    EXPECT_EQ(platform_.settings.values.at("ServerPort"), server.portText());
    EXPECT_EQ(platform_.settings.values.at("UserName"), u"ann");
    EXPECT_EQ(platform_.settings.values.at("DomainName"), u"OFFICE");
}

TEST_F(AuthenticationDialog, leavesNoPasswordInTheSettings) {
    support::FakeLoginServer server({1});
    fill(server);

    dialog_.okButton().userPressed();

    EXPECT_EQ(platform_.settings.values.size(), 4U);
    for (const auto& [name, value] : platform_.settings.values) {
        EXPECT_EQ(value.find(u"secret"), wire::WideString::npos) << name;
    }
}

TEST_F(AuthenticationDialog, storesAtMostFiftyCharactersOfAName) {
    support::FakeLoginServer server({1});
    fill(server);
    dialog_.userName.userTyped(wire::WideString(60, u'u'));
    dialog_.domain.userTyped(wire::WideString(51, u'd'));
    dialog_.port.userTyped(wire::WideString(10, u'0') + server.portText());

    dialog_.okButton().userPressed();

    EXPECT_EQ(platform_.settings.values.at("UserName"), wire::WideString(50, u'u'));
    EXPECT_EQ(platform_.settings.values.at("DomainName"), wire::WideString(50, u'd'));
    EXPECT_EQ(platform_.settings.values.at("ServerPort"), wire::WideString(10, u'0'));
}

TEST_F(AuthenticationDialog, connectsAlsoWhenNothingCanBeStored) {
    platform_.settings.stores = false;
    support::FakeLoginServer server({1});
    fill(server);

    dialog_.okButton().userPressed();

    EXPECT_EQ(dialog_.status(), AuthenticationStatus::connected);
    EXPECT_TRUE(platform_.ui.boxes().empty());
}

TEST_F(AuthenticationDialog, makesTheSettingsWithTheTypedNamesAndNotTheirCipherText) {
    support::FakeLoginServer server({1});
    fill(server);

    dialog_.okButton().userPressed();

    EXPECT_EQ(client::theProperties->host, "127.0.0.1");
    EXPECT_EQ(client::theProperties->port, server.port());
    EXPECT_EQ(client::theProperties->connectTimeout, 10U);
    EXPECT_EQ(client::theProperties->userName, u"ann");
    EXPECT_EQ(client::theProperties->domainName, u"OFFICE");
    EXPECT_EQ(client::theProperties->hooks.commands, platform_.platform().hooks.commands);
}

TEST_F(AuthenticationDialog, tellsOfAWrongPasswordAndStaysOpen) {
    support::FakeLoginServer server({2});
    fill(server);
    expectFailure(u"Invalid username or password!");

    dialog_.okButton().userPressed();

    EXPECT_FALSE(dialog_.ended());
    EXPECT_EQ(dialog_.status(), AuthenticationStatus::badCredentials);
    EXPECT_EQ(dialog_.statusText(), u"Invalid username or password!");
    EXPECT_EQ(platform_.ui.boxes().front().caption, u"Login Failed");
    EXPECT_EQ(platform_.ui.boxes().front().style, platform::boxStyle::iconStop);
    EXPECT_TRUE(platform_.settings.values.empty());
}

TEST_F(AuthenticationDialog, tellsOfAServerOfAnotherVersion) {
    support::FakeLoginServer server({3});
    fill(server);
    expectFailure(u"Wrong server version");

    dialog_.okButton().userPressed();

    EXPECT_EQ(dialog_.status(), AuthenticationStatus::wrongVersion);
    EXPECT_EQ(platform_.ui.boxes().front().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().front().style, platform::boxStyle::iconWarning);
}

TEST_F(AuthenticationDialog, tellsOfAServerThatIsNotThere) {
    fill(nobodysPort());
    expectFailure(unavailable);

    dialog_.okButton().userPressed();

    EXPECT_EQ(dialog_.status(), AuthenticationStatus::serverUnavailable);
    EXPECT_EQ(dialog_.statusText(), unavailable);
    EXPECT_EQ(platform_.ui.boxes().front().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().front().style, platform::boxStyle::iconWarning);
}

TEST_F(AuthenticationDialog, takesAnAnswerThatMeansNothingForAServerOutOfReach) {
    support::FakeLoginServer server({9});
    fill(server);
    expectFailure(unavailable);

    dialog_.okButton().userPressed();

    EXPECT_EQ(dialog_.status(), AuthenticationStatus::serverUnavailable);
}

TEST_F(AuthenticationDialog, clearsUserAndPasswordAfterAFailureButNotServerPortOrDomain) {
    support::FakeLoginServer server({2});
    fill(server);
    expectFailure(u"Invalid username or password!");

    dialog_.okButton().userPressed();

    EXPECT_EQ(dialog_.userName.text(), u"");
    EXPECT_EQ(dialog_.password.text(), u"");
    EXPECT_EQ(dialog_.serverName.text(), u"127.0.0.1");
    EXPECT_EQ(dialog_.port.text(), server.portText());
    EXPECT_EQ(dialog_.domain.text(), u"OFFICE");
    EXPECT_EQ(dialog_.focus(), &dialog_.userName);
}

TEST_F(AuthenticationDialog, canBeTriedAgain) {
    support::FakeLoginServer server({2, 1});
    fill(server);
    expectFailure(u"Invalid username or password!");
    dialog_.okButton().userPressed();
    dialog_.userName.userTyped(u"ann");
    dialog_.password.userTyped(u"right");

    dialog_.okButton().userPressed();

    EXPECT_EQ(server.finish(), "");
    EXPECT_EQ(dialog_.status(), AuthenticationStatus::connected);
}

TEST_F(AuthenticationDialog, withoutAServerSaysThatItIsUnavailable) {
    fill(nobodysPort());
    dialog_.serverName.userTyped(u"");
    expectFailure(unavailable);

    dialog_.okButton().userPressed();

    EXPECT_EQ(client::theProperties->host, "");
    EXPECT_EQ(dialog_.status(), AuthenticationStatus::serverUnavailable);
}

TEST_F(AuthenticationDialog, takesAPortOf70000AndCutsItTo16Bits) {
    fill(u"70000");
    dialog_.serverName.userTyped(u"");
    expectFailure(unavailable);
    dialog_.port.userLeft();

    dialog_.okButton().userPressed();

    EXPECT_EQ(client::theProperties->port, 4464);
}

TEST_F(AuthenticationDialog, withoutAPortGoesToPort0AndSaysThatTheServerIsUnavailable) {
    fill(u"");
    expectFailure(unavailable);

    dialog_.okButton().userPressed();

    EXPECT_EQ(client::theProperties->port, 0);
}

TEST_F(AuthenticationDialog, keepsTheTypedNamesWhenTheKeyDoesNotCome) {
    fill(nobodysPort());
    expectFailure(unavailable);

    dialog_.okButton().userPressed();

    EXPECT_EQ(client::theProperties->userName, u"ann");
    EXPECT_EQ(client::theProperties->domainName, u"OFFICE");
}

TEST_F(AuthenticationDialog, refusesAServerNameOf125BytesAndLosesNothing) {
    fill(u"5005");
    dialog_.serverName.userTyped(wire::WideString(125, u'h'));
    expectFailure(u"Server Name should not be longer than 124 bytes");

    dialog_.okButton().userPressed();

    EXPECT_EQ(client::theProperties, nullptr);
    EXPECT_EQ(dialog_.status(), AuthenticationStatus::none);
    EXPECT_EQ(dialog_.password.text(), u"secret");
    EXPECT_FALSE(dialog_.ended());
}

TEST_F(AuthenticationDialog, takesAServerNameOf124Bytes) {
    fill(u"0");
    dialog_.serverName.userTyped(wire::WideString(124, u'.'));
    expectFailure(unavailable);

    dialog_.okButton().userPressed();

    EXPECT_EQ(client::theProperties->host.size(), 124U);
}

TEST_F(AuthenticationDialog, refusesAPortOf125Bytes) {
    fill(wire::WideString(125, u'1'));
    expectFailure(u"Port should not be longer than 124 bytes");

    dialog_.okButton().userPressed();

    EXPECT_EQ(client::theProperties, nullptr);
}

TEST_F(AuthenticationDialog, endsOnCancelWithWordsToTryAgain) {
    dialog_.open();

    dialog_.cancelButton().userPressed();

    EXPECT_TRUE(dialog_.ended());
    EXPECT_EQ(dialog_.status(), AuthenticationStatus::cancelled);
    EXPECT_EQ(dialog_.statusText(), u"Try Again");
    EXPECT_EQ(client::theProperties, nullptr);
}

} // namespace
