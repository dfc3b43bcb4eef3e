#pragma once

#include "localprinters/LocalPrinterRegionNode.h"
#include "localprinters/LocalPrintersRootNode.h"
#include "regions/CreateRegionDlg.h"
#include "tests/support/FakeEstate.h"
#include "tests/support/NodeDriver.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using Presses = std::vector<std::vector<platform::Key>>;
using Strings = std::vector<std::string>;
using Menu = std::vector<support::RecordingConsole::MenuItem>;
using Names = std::vector<wire::WideString>;
using Table = std::vector<std::vector<wire::WideString>>;

inline constexpr const char16_t* question = u"Are you sure you want to delete the selected local region?";

// The branch of the local printers in a console, over a small estate:
//   Home offices (1)
//     North (2)
//     Desk "l1", Shelf "l2"
//   Field service (3)
// Another region with the id 1 and a printer in it are in the tree of printers and queues.
class LocalPrinterTree : public ::testing::Test {
protected:
    LocalPrinterTree() {
        estate_.localRegions = {support::region(1, 0, u"Home offices"), support::region(2, 1, u"North"),
                                support::region(3, 0, u"Field service")};
        estate_.localPrinters = {support::printer("l1", 1, u"Desk"), support::printer("l2", 1, u"Shelf")};
        estate_.regions = {support::region(1, 0, u"Headquarters"), support::region(4, 3, u"Annex")};
        estate_.printers = {support::printer("p1", 1, u"Copier"), support::printer("p3", 3, u"Plotter")};
    }

    void expandNode(std::u16string_view name) {
        support::expand(console_, *support::nodeOf(console_, name), support::rowOf(console_, name));
    }
    void openHome() {
        expandNode(u"Local Printers");
        expandNode(u"Home offices");
        console_.calls.clear();
    }
    void expectNewRegion(const char16_t* name) {
        platform_.ui.expect<regions::CreateRegionDlg>([name](regions::CreateRegionDlg& dialog) {
            dialog.name.userTyped(name);
            dialog.okButton().userPressed();
        });
    }
    std::string idOf(std::u16string_view name) const { return std::to_string(support::rowOf(console_, name)); }

    support::TestPlatform platform_;
    support::FakeEstate estate_{platform_.platform().hooks};
    support::RecordingConsole console_;
    std::shared_ptr<localprinters::LocalPrintersRootNode> root_ =
        std::make_shared<localprinters::LocalPrintersRootNode>(platform_);
    console::ScopeId rootRow_ = console_.addScopeRow(root_);
};
