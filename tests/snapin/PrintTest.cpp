#include "snapin/Print.h"

#include "regions/CreateRegionDlg.h"
#include "snapin/CPrintComponent.h"
#include "tests/snapin/LoginSteps.h"
#include "tests/support/FakeEstate.h"
#include "tests/support/NodeDriver.h"

#include <sstream>

namespace {

using console::DataObjectType;
using console::Event;
using console::Result;
using platform::Key;
using snapin::Print;
using Presses = std::vector<std::vector<Key>>;
using Strings = std::vector<std::string>;

class PrintSnapIn : public LoginSteps {
protected:
    support::RecordingConsole console_;
    Print print_{platform_};
};

TEST_F(PrintSnapIn, startsTheLoginAndThenSetsTheImages) {
    platform_.ui.runThreadsAtOnce = false;

    EXPECT_EQ(print_.Initialize(console_), Result::ok);

    EXPECT_EQ(platform_.ui.waitingThreads(), 1U);
    EXPECT_EQ(console_.calls.size(), 1U);
    EXPECT_EQ(print_.console(), &console_);
    expectCancel();
    platform_.ui.runThreads();
    EXPECT_EQ(platform_.ui.closed, std::vector<platform::WindowHandle>{console_.mainWindow});
}

TEST_F(PrintSnapIn, doesNotStartWithoutAListOfImages) {
    console_.hasImages = false;

    EXPECT_EQ(print_.Initialize(console_), Result::unexpected);

    EXPECT_TRUE(platform_.ui.forms().empty());
    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(PrintSnapIn, inTheSameProcessAsAnotherFindsTheLoginDoneAndOnlyPressesF5) {
    support::FakeLoginServer server({1});
    expectLogin(server);
    platform_.ui.expectBox(platform::Answer::ok);
    print_.Initialize(console_);
    Print second(platform_);

    second.Initialize(console_);

    EXPECT_EQ(platform_.ui.forms().size(), 1U);
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::up}, {Key::f5}, {Key::f5}}));
}

TEST_F(PrintSnapIn, leavesALoginThatStillRunsToItselfWhenItGoes) {
    platform_.ui.runThreadsAtOnce = false;
    {
        Print passing(platform_);
        passing.Initialize(console_);
        passing.Destroy();
    }
    expectCancel();

    platform_.ui.runThreads();

    EXPECT_EQ(platform_.ui.closed.size(), 1U);
}

TEST_F(PrintSnapIn, makesTheWholeUpperTreeBeforeAnyLogin) {
    EXPECT_EQ(print_.root().displayName(), u"Vantrel Manager");
    EXPECT_EQ(print_.root().printServer().branches().size(), 8U);
    EXPECT_TRUE(platform_.commands().empty());
}

TEST_F(PrintSnapIn, routesWhatTheConsoleSaysToTheNode) {
    snapin::loginDone = 1;
    print_.Initialize(console_);
    const auto row = console_.addScopeRow(print_.root().shared_from_this());

    EXPECT_EQ(print_.Notify(&print_.root(), {.event = Event::expand, .arg = 1, .param = row}), Result::ok);

    EXPECT_EQ(console_.childNames(row), std::vector<wire::WideString>{u"Vantrel Print Server"});
}

TEST_F(PrintSnapIn, takesNoDataObjectForNothingToDo) {
    EXPECT_EQ(print_.Notify(nullptr, {.event = Event::expand, .arg = 1}), Result::ok);
}

TEST_F(PrintSnapIn, looksForTheNodeOfACutInTheSource) {
    snapin::loginDone = 1;
    print_.Initialize(console_);

    EXPECT_EQ(print_.Notify(&print_.root(), {.event = Event::cutOrMove}), Result::ok);
    EXPECT_EQ(print_.Notify(nullptr, {.event = Event::cutOrMove, .source = &print_.root()}), Result::notDone);
}

TEST_F(PrintSnapIn, takesNoCookieForTheRoot) {
    EXPECT_EQ(print_.QueryDataObject(nullptr, DataObjectType::scope), &print_.root());
    EXPECT_EQ(print_.QueryDataObject(&print_.root().printServer(), DataObjectType::scope),
              &print_.root().printServer());
}

TEST_F(PrintSnapIn, tellsWhatARowShows) {
    console::ScopeItemFields item;
    item.lParam = &print_.root().printServer();

    EXPECT_EQ(print_.GetDisplayInfo(item), Result::ok);

    EXPECT_EQ(wire::WideString(item.displayname), u"Vantrel Print Server");
    EXPECT_EQ(item.nImage, 6);
}

TEST_F(PrintSnapIn, tellsNodesApart) {
    EXPECT_EQ(print_.CompareObjects(&print_.root(), &print_.root()), Result::ok);
    EXPECT_EQ(print_.CompareObjects(&print_.root(), &print_.root().printServer()), Result::notDone);
}

TEST_F(PrintSnapIn, hasTheClassIdOfAllItsNodes) {
    EXPECT_EQ(print_.GetClassID(), console::guid(u"6F257AE4-F4E0-49EC-AE9D-61078938E7CE"));
}

TEST_F(PrintSnapIn, isCleanEvenAfterAChangeInTheTree) {
    support::FakeEstate estate;
    const auto& printers = print_.root().printServer().branches()[0];
    expand(console_, *printers, console_.addScopeRow(printers));
    platform_.ui.expect<regions::CreateRegionDlg>([](regions::CreateRegionDlg& dialog) {
        dialog.name.userTyped(u"North");
        dialog.okButton().userPressed();
    });

    printers->Command(247, DataObjectType::scope);

    EXPECT_EQ(estate.changes(1).size(), 1U);
    EXPECT_EQ(print_.IsDirty(), Result::notDone);
}

TEST_F(PrintSnapIn, savesABlockThatBeginsWithLocal) {
    std::ostringstream stream;

    EXPECT_EQ(print_.Save(stream, true), Result::ok);

    EXPECT_EQ(stream.str().size(), 260U);
    EXPECT_EQ(stream.str().substr(0, 6), std::string("local\0", 6));
}

TEST_F(PrintSnapIn, doesNotSaveToAStreamThatFails) {
    std::ostringstream stream;
    stream.setstate(std::ios::badbit);

    EXPECT_EQ(print_.Save(stream, true), Result::failed);
}

TEST_F(PrintSnapIn, loadsWhatAnyVersionHasSaved) {
    std::istringstream stream(std::string(260, '\xFF'));

    EXPECT_EQ(print_.Load(stream), Result::ok);

    EXPECT_EQ(stream.tellg(), 260);
}

TEST_F(PrintSnapIn, doesNotLoadABlockThatIsCutShort) {
    std::istringstream stream(std::string(259, '\0'));

    EXPECT_EQ(print_.Load(stream), Result::failed);
}

TEST_F(PrintSnapIn, asksForTheSpaceOfItsBlock) {
    EXPECT_EQ(print_.GetSizeMax(), 260U);
}

TEST_F(PrintSnapIn, hasAnEmptyHelpTopicAndNoOthers) {
    EXPECT_EQ(print_.GetHelpTopic(), (std::array<char16_t, 260>{}));
    EXPECT_EQ(print_.GetLinkedTopics(), Result::notDone);
}

TEST_F(PrintSnapIn, letsGoOfItsConsoleInTheEnd) {
    snapin::loginDone = 1;
    print_.Initialize(console_);

    EXPECT_EQ(print_.Destroy(), Result::ok);

    EXPECT_EQ(print_.console(), nullptr);
}

} // namespace
