#include "hosts/common/TwoSidedSnapIn.h"
#include "tests/shell/ShellFixture.h"

namespace shelltest {
namespace {

class ViewSide final : public console::IComponent {
public:
    explicit ViewSide(Lines& log) : log_(log) {}
    console::Result Initialize(console::IConsole& itsConsole) {
        console_ = &itsConsole;
        return console::Result::ok;
    }
    console::Result Notify(console::CSnapInItem* /*node*/, const console::Notification& /*notification*/) {
        log_.emplace_back("view");
        return console::Result::ok;
    }
    console::Result GetResultViewType(console::CSnapInItem* /*node*/, const char16_t** viewType,
                                      std::int32_t* viewOptions) const {
        *viewType = nullptr;
        *viewOptions = 17;
        return console::Result::notDone;
    }
    console::Result Destroy() {
        log_.emplace_back("view destroyed");
        return console::Result::ok;
    }
    console::IConsole* console() override { return console_; }

private:
    Lines& log_;
    console::IConsole* console_ = nullptr;
};

class ScopeSide {
public:
    explicit ScopeSide(console::CSnapInItem& root) : root_(root) {}
    console::CSnapInItem& root() { return root_; }
    console::Result Initialize(console::IConsole& /*console*/) const { return initializeResult; }
    std::unique_ptr<ViewSide> CreateComponent() { return std::make_unique<ViewSide>(log); }
    console::Result Notify(console::CSnapInItem* /*node*/, const console::Notification& /*notification*/) {
        log.emplace_back("scope");
        return console::Result::ok;
    }
    console::Result Destroy() {
        log.emplace_back("scope destroyed");
        return console::Result::ok;
    }

    console::Result initializeResult = console::Result::ok;
    Lines log;

private:
    console::CSnapInItem& root_;
};

class TwoSidedSnapIn : public ShellFixture {
protected:
    std::shared_ptr<FolderNode> root =
        std::make_shared<FolderNode>(platform, estate, Estate::Entry{.key = "x", .name = u"X"});
    ScopeSide scopeSide{*root};
    common::TwoSidedSnapIn<ScopeSide, ViewSide> both{scopeSide};
};

TEST_F(TwoSidedSnapIn, notificationsGoToTheirSide) {
    ASSERT_EQ(both.Initialize(shell), console::Result::ok);

    both.notifyScope(*root, {});
    both.notifyView(*root, {});

    EXPECT_EQ(scopeSide.log, (Lines{"scope", "view"}));
    EXPECT_EQ(both.root(), root);
}

TEST_F(TwoSidedSnapIn, theViewSideIsAskedForTheKindOfView) {
    ASSERT_EQ(both.Initialize(shell), console::Result::ok);
    const char16_t* type = u"";
    std::int32_t options = 0;

    EXPECT_EQ(both.GetResultViewType(*root, type, options), console::Result::notDone);

    EXPECT_EQ(options, 17);
}

TEST_F(TwoSidedSnapIn, withoutAScopeSideThereIsNoViewSide) {
    scopeSide.initializeResult = console::Result::failed;

    EXPECT_EQ(both.Initialize(shell), console::Result::failed);
    EXPECT_EQ(both.notifyView(*root, {}), console::Result::unexpected);
}

TEST_F(TwoSidedSnapIn, theViewSideIsDestroyedFirst) {
    ASSERT_EQ(both.Initialize(shell), console::Result::ok);

    both.Destroy();
    both.Destroy();

    EXPECT_EQ(scopeSide.log, (Lines{"view destroyed", "scope destroyed"}));
}

} // namespace
} // namespace shelltest
