#pragma once

#include "shell/SnapIn.h"

namespace common {

// A snap-in made of a scope side and a view side with the platform's interfaces (component data and component). Owns
// the view side.
template <class ScopeSide, class ViewSide>
class TwoSidedSnapIn final : public shell::SnapIn {
public:
    // The scope side outlives this.
    explicit TwoSidedSnapIn(ScopeSide& scopeSide) : scopeSide_(scopeSide) {}

    std::shared_ptr<console::CSnapInItem> root() override { return scopeSide_.root().shared_from_this(); }

    console::Result Initialize(console::IConsole& console) override {
        const auto result = scopeSide_.Initialize(console);
        if (!console::succeeded(result)) {
            return result;
        }
        viewSide_ = scopeSide_.CreateComponent();
        return viewSide_->Initialize(console);
    }

    console::Result notifyScope(console::CSnapInItem& node, const console::Notification& notification) override {
        return scopeSide_.Notify(&node, notification);
    }

    console::Result notifyView(console::CSnapInItem& node, const console::Notification& notification) override {
        return viewSide_ ? viewSide_->Notify(&node, notification) : console::Result::unexpected;
    }

    console::Result GetResultViewType(console::CSnapInItem& node, const char16_t*& viewType,
                                      std::int32_t& viewOptions) override {
        return viewSide_ ? viewSide_->GetResultViewType(&node, &viewType, &viewOptions) : console::Result::unexpected;
    }

    void Destroy() override {
        if (viewSide_) {
            viewSide_->Destroy();
            viewSide_.reset();
            scopeSide_.Destroy();
        }
    }

private:
    ScopeSide& scopeSide_;
    std::unique_ptr<ViewSide> viewSide_;
};

} // namespace common
