#pragma once

#include "console/CBaseNodeItem.h"

#include <array>
#include <memory>
#include <span>
#include <vector>

namespace snapin {

// The print server: owns the top of every branch, all made before any login.
class PrintServer final : public console::CBaseNodeItem<PrintServer> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Vantrel Print Server", .image = 6, .children = 1, .viewOptions = 0};

    explicit PrintServer(platform::Platform& platform);

    // In the order in which they appear in the tree.
    std::span<const std::shared_ptr<console::NodeBase>> branches() const { return branches_; }

protected:
    std::vector<console::ChildKind> childKinds() override;

private:
    std::array<std::shared_ptr<console::NodeBase>, 8> branches_;
};

} // namespace snapin
