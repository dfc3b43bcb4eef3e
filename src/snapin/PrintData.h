#pragma once

#include "console/CBaseNodeItem.h"
#include "snapin/PrintServer.h"

#include <memory>
#include <vector>

namespace snapin {

// The static root of the tree.
class PrintData final : public console::CBaseNodeItem<PrintData> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Vantrel Manager",
                                                    .nodeType = console::rootNodeType,
                                                    .image = 6,
                                                    .children = 3,
                                                    .viewOptions = 0};

    explicit PrintData(platform::Platform& platform);

    // Adds no page: logs in at once, and returns whether the snap-in may be added.
    console::Result CreatePropertyPages(console::DataObjectType type) override;
    console::Result QueryPagesFor(console::DataObjectType type) override;

    PrintServer& printServer() const { return *printServer_; }

protected:
    std::vector<console::ChildKind> childKinds() override;

private:
    std::shared_ptr<PrintServer> printServer_;
};

} // namespace snapin
