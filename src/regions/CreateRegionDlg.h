#pragma once

#include "forms/EditBox.h"
#include "forms/Form.h"

#include <cstdint>

namespace regions {

// Names a new region and makes it on the server.
class CreateRegionDlg final : public forms::Form {
public:
    // Which tree the region is for. These are not the server's numbers for the trees.
    enum class Mode : std::int32_t { printerTree = 1, localPrinterTree = 2 };

    CreateRegionDlg(platform::Platform& platform, std::int32_t parentId, Mode mode);

    // The id of the region made; 0 while it is not known. The server's answer does not contain it, so the tree is read
    // again instead.
    std::int32_t newRegionId = 0;

    forms::EditBox name{*this, u"Region Name"};

protected:
    void onInitDialog() override;
    void onOk() override;

private:
    std::int32_t parentId_;
    Mode mode_;
};

} // namespace regions
