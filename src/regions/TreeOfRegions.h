#pragma once

#include "console/KeySequence.h"
#include "protocol/estate/Region.h"
#include "regions/CreateRegionDlg.h"
#include "regions/RegionDeletion.h"

#include <cstdint>

namespace regions {

// What is the same for all nodes of one tree of regions.
struct TreeOfRegions {
    protocol::RegionKind kind;
    CreateRegionDlg::Mode createMode;
    console::KeySequence keysAfterCreateFromRow; // pressed after a region was made below a row of a list
    bool refreshesAfterCancel;                   // reads itself again even if the dialog made no region
    const char16_t* deleteQuestion;
    RegionContents (*readContents)(client::CQVXAdminClass& client, std::int32_t regionId); // what forbids a delete
    const char16_t* notEmptyText; // why a region that is not empty is not deleted
    bool deletesBothRows;         // in tree and list; otherwise only where the command was given
};

// The blank at the end of the question is intentional, and so is the second Tab where F5 could be expected.
inline constexpr TreeOfRegions printersAndQueues{
    .kind = protocol::RegionKind::printersAndQueues,
    .createMode = CreateRegionDlg::Mode::printerTree,
    .keysAfterCreateFromRow{platform::Key::tab, platform::Key::tab},
    .refreshesAfterCancel = false,
    .deleteQuestion = u"Are you sure you want to delete the selected region? ",
    .readContents = readRegionContents,
    .notEmptyText = u"Cannot delete as the region includes Printers or Follow Printer Queue or Sub Regions!",
    .deletesBothRows = true};

// Sub-regions are left to the server, which refuses to delete a region that has some.
inline constexpr TreeOfRegions localPrinters{.kind = protocol::RegionKind::localPrinters,
                                             .createMode = CreateRegionDlg::Mode::localPrinterTree,
                                             .keysAfterCreateFromRow{platform::Key::tab, platform::Key::f5},
                                             .refreshesAfterCancel = true,
                                             .deleteQuestion =
                                                 u"Are you sure you want to delete the selected local region?",
                                             .readContents = readLocalRegionContents,
                                             .notEmptyText = u"Cannot delete as the region includes printers",
                                             .deletesBothRows = false};

} // namespace regions
