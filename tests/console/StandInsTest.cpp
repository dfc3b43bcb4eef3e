#include "tests/console/ShelfNode.h"
#include "tests/forms/SampleForm.h"
#include "tests/support/FormChecks.h"
#include "tests/support/RecordingConsole.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace console {
namespace {

using testing::ElementsAre;

TEST(FakeUserInterface, failsOnAnUnexpectedBox) {
    support::TestPlatform platform;
    EXPECT_NONFATAL_FAILURE(platform.ui.messageBox(0, u"Sure?", u"Warning", platform::boxStyle::okCancel),
                            "unexpected box \"Sure?\" (Warning)");
}

TEST(FakeUserInterface, failsOnAnUnexpectedFormAndCancelsIt) {
    support::TestPlatform platform;
    forms::SampleForm form(platform);
    EXPECT_NONFATAL_FAILURE(platform.ui.runModal(form, 0), "unexpected form \"Sample\"");
    EXPECT_TRUE(form.ended());
}

TEST(FakeUserInterface, failsOnAnAnswerLeftOver) {
    EXPECT_NONFATAL_FAILURE(
        {
            support::FakeUserInterface ui;
            ui.expectBox(platform::Answer::ok, u"Sure?");
        },
        "never came: a box \"Sure?\"");
}

TEST(FakeUserInterface, failsOnAButtonThatTheBoxDoesNotHave) {
    support::TestPlatform platform;
    platform.ui.expectBox(platform::Answer::yes);
    EXPECT_NONFATAL_FAILURE(platform.ui.messageBox(0, u"Sure?", u"Warning", platform::boxStyle::okCancel),
                            "no such button");
}

TEST(FakeUserInterface, failsOnAnotherQuestionThanTheOneAnnounced) {
    support::TestPlatform platform;
    platform.ui.expectBox(platform::Answer::ok, u"Delete?");
    EXPECT_NONFATAL_FAILURE(platform.ui.messageBox(0, u"Sure?", u"Warning", platform::boxStyle::okCancel), "Delete?");
}

TEST(FakeUserInterface, failsOnAFormThatTheScriptLeavesOpen) {
    support::TestPlatform platform;
    forms::SampleForm form(platform);
    platform.ui.expectForm([](forms::Form&) {});
    EXPECT_NONFATAL_FAILURE(platform.ui.runModal(form, 0), "left \"Sample\" open");
}

TEST(FakeUserInterface, aScriptGetsTheFormAsItsOwnClass) {
    support::TestPlatform platform;
    forms::SampleForm form(platform);
    platform.ui.expect<forms::SampleForm>([](forms::SampleForm& sample) {
        sample.name.userTyped(u"North");
        sample.okButton().userPressed();
    });
    EXPECT_EQ(platform.ui.runModal(form, 0), forms::idOk);
    EXPECT_EQ(form.name.text(), u"North");
}

TEST(FakeUserInterface, keepsThreadsForLaterWhenTold) {
    support::TestPlatform platform;
    std::vector<int> ran;
    platform.ui.startThread([&] { ran.push_back(1); });
    platform.ui.runThreadsAtOnce = false;
    platform.ui.startThread([&] { ran.push_back(2); });
    EXPECT_THAT(ran, ElementsAre(1));
    EXPECT_EQ(platform.ui.waitingThreads(), 1U);
    platform.ui.runThreads();
    EXPECT_THAT(ran, ElementsAre(1, 2));
}

TEST(RecordingConsole, takingARowAwayTakesAllBelowIt) {
    support::TestPlatform platform;
    support::RecordingConsole host;
    const auto top = host.addScopeRow(std::make_shared<ShelfNode>(platform));
    const auto middle = host.addScopeRow(std::make_shared<ShelfNode>(platform), top);
    host.addScopeRow(std::make_shared<ShelfNode>(platform), middle);
    static_cast<IConsoleNameSpace&>(host).DeleteItem(top, false);
    EXPECT_EQ(host.scopeRows.size(), 1U);
}

TEST(RecordingConsole, failsOnANodeThatNobodyOwns) {
    support::TestPlatform platform;
    support::RecordingConsole host;
    ShelfNode shelf(platform);
    EXPECT_NONFATAL_FAILURE(static_cast<IConsoleNameSpace&>(host).InsertItem(shelf.scopeFields()), "can be kept");
}

TEST(FormChecks, findAControlWithoutALabel) {
    support::TestPlatform platform;
    forms::SampleForm form(platform);
    forms::EditBox nameless(form, u"");
    EXPECT_NONFATAL_FAILURE(support::expectSound(form), "a control without a label");
}

TEST(FormChecks, findTwoControlsWithOneLabel) {
    support::TestPlatform platform;
    forms::SampleForm form(platform);
    forms::EditBox second(form, u" Pass&WORD ");
    EXPECT_NONFATAL_FAILURE(support::expectSound(form), "two with this label");
}

TEST(FormChecks, takeTwoControlsWithOneLabelThatStandBesideOthers) {
    support::TestPlatform platform;
    forms::SampleForm form(platform);
    forms::Button editBrand(form.where, u"Edit...");
    editBrand.setBeside(form.brand);
    forms::Button editPlace(form.where, u"Edit...");
    editPlace.setBeside(form.place);
    support::expectSound(form);
}

TEST(FormChecks, findTwoControlsOfAKindThatBorrowOneLabel) {
    support::TestPlatform platform;
    forms::SampleForm form(platform);
    forms::EditBox number(form, u"");
    number.setBeside(form.invisible);
    forms::DropList unit(form, u"");
    unit.setBeside(form.invisible);
    support::expectSound(form);
    forms::EditBox other(form, u"");
    other.setBeside(form.invisible);
    EXPECT_NONFATAL_FAILURE(support::expectSound(form), "two of a kind with one borrowed name");
}

TEST(MemorySettingsStore, answersAsItIsToldTo) {
    support::MemorySettingsStore settings;
    settings.opens = false;
    EXPECT_FALSE(settings.exists());
    EXPECT_TRUE(settings.write("UserName", u"eva"));
    EXPECT_TRUE(settings.exists());
    EXPECT_EQ(settings.read("UserName"), u"eva");
    settings.stores = false;
    EXPECT_FALSE(settings.write("UserName", u"adam"));
    EXPECT_EQ(settings.read("UserName"), u"eva");
}

} // namespace
} // namespace console
