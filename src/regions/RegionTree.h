#pragma once

#include "forms/Form.h"
#include "forms/TreeView.h"

#include <cstdint>

namespace regions {

// Picks a region from the whole tree of regions of printers and queues.
class RegionTree final : public forms::Form {
public:
    explicit RegionTree(platform::Platform& platform) : Form(platform, u"Select Region") {}

    forms::TreeView tree{*this, u"Regions"};

    // Once the form has ended with OK.
    std::int32_t selectedRegionId = 0;
    wire::WideString selectedRegionName;

protected:
    // Throws client::ConnectFailed when the regions can't be read, so that none can be picked.
    void onInitDialog() override;
    void onOk() override;
};

} // namespace regions
