#include "snapin/CPrintComponent.h"

#include "snapin/Print.h"
#include "tests/support/NodeDriver.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

namespace {

using console::DataObjectType;
using console::Event;
using console::Result;
using platform::Key;
using snapin::CPrintComponent;
using Presses = std::vector<std::vector<Key>>;

class PrintComponent : public ::testing::Test {
protected:
    PrintComponent() { component_->Initialize(console_); }

    console::NodeBase& printers() { return *print_.root().printServer().branches()[0]; }

    support::TestPlatform platform_;
    support::RecordingConsole console_;
    snapin::Print print_{platform_};
    std::unique_ptr<CPrintComponent> component_ = print_.CreateComponent();
};

TEST_F(PrintComponent, routesWhatTheConsoleSaysToTheNode) {
    console_.verbs[console::Verb::paste] = true;

    EXPECT_EQ(component_->Notify(&printers(), {.event = Event::show, .arg = 1}), Result::ok);

    EXPECT_EQ(console_.titles(), std::vector<wire::WideString>{u"Region Name"});
}

TEST_F(PrintComponent, doesNotKnowWhatToDoWithoutADataObject) {
    EXPECT_EQ(component_->Notify(nullptr, {.event = Event::show, .arg = 1}), Result::notImplemented);
    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(PrintComponent, pressesF5OnAClickOnTheFourthColumn) {
    EXPECT_EQ(component_->Notify(nullptr, {.event = Event::columnClick, .arg = 3}), Result::notImplemented);

    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(PrintComponent, pressesNothingOnAClickOnAnyOtherColumn) {
    component_->Notify(nullptr, {.event = Event::columnClick, .arg = 2});
    component_->Notify(nullptr, {.event = Event::columnClick, .arg = 4});

    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(PrintComponent, pressesF5OnTheFourthColumnAlsoWithADataObject) {
    component_->Notify(&printers(), {.event = Event::columnClick, .arg = 3});

    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

TEST_F(PrintComponent, tellsWhatARowShows) {
    console::ResultItemFields item;
    item.lParam = &printers();

    EXPECT_EQ(component_->GetDisplayInfo(item), Result::ok);

    EXPECT_EQ(wire::WideString(item.str), u"Printers");
    EXPECT_EQ(item.nImage, 7);
}

TEST_F(PrintComponent, asksANodeForItsViewAndTheRootWithoutACookie) {
    const char16_t* viewType = u"";
    std::int32_t options = -1;

    EXPECT_EQ(component_->GetResultViewType(&printers(), &viewType, &options), Result::notDone);
    EXPECT_EQ(viewType, nullptr);
    EXPECT_EQ(options, 0x40);
    EXPECT_EQ(component_->GetResultViewType(nullptr, &viewType, &options), Result::notDone);
    EXPECT_EQ(options, 0);
}

TEST_F(PrintComponent, hasNoViewForSeveralRowsAtOnce) {
    const char16_t* viewType = nullptr;
    std::int32_t options = 0;

    EXPECT_EQ(component_->GetResultViewType(CPrintComponent::multiSelectCookie(), &viewType, &options),
              Result::unexpected);
}

TEST_F(PrintComponent, wantsSomewhereToPutTheView) {
    const char16_t* viewType = nullptr;
    std::int32_t options = 0;

    EXPECT_EQ(component_->GetResultViewType(nullptr, nullptr, &options), Result::badPointer);
    EXPECT_EQ(component_->GetResultViewType(nullptr, &viewType, nullptr), Result::badPointer);
}

TEST_F(PrintComponent, sharesCookiesAndTheirOrderWithTheScopeSide) {
    EXPECT_EQ(component_->QueryDataObject(nullptr, DataObjectType::result), &print_.root());
    EXPECT_EQ(component_->CompareObjects(&printers(), &printers()), Result::ok);
    EXPECT_EQ(component_->CompareObjects(&printers(), &print_.root()), Result::notDone);
}

TEST_F(PrintComponent, letsGoOfItsConsoleInTheEnd) {
    EXPECT_EQ(component_->console(), &console_);

    EXPECT_EQ(component_->Destroy(), Result::ok);

    EXPECT_EQ(component_->console(), nullptr);
}

} // namespace
