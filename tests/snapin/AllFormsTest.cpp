#include "localprinters/LocalPrinterPropertiesDlg.h"
#include "printers/PrinterPreferencesDlg.h"
#include "printers/PrinterPropertiesDlg.h"
#include "queues/AddQueueDlg.h"
#include "queues/QueuePreferencesDlg.h"
#include "queues/QueuePropertiesDlg.h"
#include "regions/AddTabRuleDlg.h"
#include "regions/CreateRegionDlg.h"
#include "regions/RegionRulesDlg.h"
#include "regions/RegionTree.h"
#include "rules/AddRuleEntryDlg.h"
#include "rules/AffectedDlg.h"
#include "rules/CNewRuleDialog.h"
#include "rules/NewMessageDlg.h"
#include "rules/NewPricePlanDlg.h"
#include "rules/NewRuleGroupDlg.h"
#include "rules/PageLimitDlg.h"
#include "rules/SearchDestinationDlg.h"
#include "rules/ShortIdDlg.h"
#include "snapin/AuthenticationDlg.h"
#include "tests/support/FormChecks.h"
#include "tests/support/LayoutChecks.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

// All forms of the product.
class AllForms : public testing::Test {
protected:
    AllForms() {
        using rules::AddRuleEntryDlg;
        add<snapin::AuthenticationDlg>();
        add<regions::CreateRegionDlg>(0, regions::CreateRegionDlg::Mode::printerTree);
        add<queues::AddQueueDlg>(queues::NewQueue{.mode = queues::QueueMode::queue, .printerId = "p1"});
        add<queues::AddQueueDlg>(queues::NewQueue{.mode = queues::QueueMode::followPrint, .regionId = 1});
        add<queues::QueuePreferencesDlg>("q1");
        add<queues::QueuePropertiesDlg>(queues::QueueMode::queue, "q1", u"Lobby");
        add<queues::QueuePropertiesDlg>(queues::NewQueue{.mode = queues::QueueMode::queue, .printerId = "p1"});
        add<regions::AddTabRuleDlg>(place_);
        add<regions::RegionRulesDlg>(1);
        add<regions::RegionTree>();
        add<printers::PrinterPropertiesDlg>("p1");
        add<localprinters::LocalPrinterPropertiesDlg>("l1");
        for (const auto mode : {printers::PreferencesMode::newPrinter, printers::PreferencesMode::existing,
                                printers::PreferencesMode::followPrint, printers::PreferencesMode::migratedPrinter,
                                printers::PreferencesMode::migratedQueue}) {
            add<printers::PrinterPreferencesDlg>(printers::PreferencesSubject{
                .mode = mode, .regionId = 1, .regionName = u"North", .id = "p1", .migrated = {}});
        }
        add<AddRuleEntryDlg>(AddRuleEntryDlg::Mode::group, place_);
        add<AddRuleEntryDlg>(AddRuleEntryDlg::Mode::place, place_);
        add<rules::AffectedDlg>();
        add<rules::CNewRuleDialog>(place_);
        add<rules::NewMessageDlg>();
        add<rules::NewPricePlanDlg>();
        add<rules::NewRuleGroupDlg>();
        add<rules::PageLimitDlg>();
        forms_.push_back(std::make_unique<rules::SearchDestinationDlg>(platform_, destinationId_, destinationName_));
        add<rules::ShortIdDlg>();
    }

    void checkEach(const std::function<void(forms::Form&)>& check) {
        ASSERT_FALSE(forms_.empty());
        for (const auto& form : forms_) {
            SCOPED_TRACE(wire::toUtf8(form->title()));
            check(*form);
        }
    }

private:
    template <class Dialog, class... Arguments>
    void add(const Arguments&... arguments) {
        forms_.push_back(std::make_unique<Dialog>(platform_, arguments...));
    }

    support::TestPlatform platform_;
    std::vector<protocol::RuleEntryRecord> entries_;
    const rules::RuleEntryPlace place_{.entries = entries_, .ownerId = "g", .ownerNumber = 0, .parentId = {}};
    std::string destinationId_;
    wire::WideString destinationName_;
    std::vector<std::unique_ptr<forms::Form>> forms_;
};

TEST_F(AllForms, canBeDrawnByEveryHostAndToldApartByAPerson) {
    checkEach(support::expectSound);
}

TEST_F(AllForms, haveAPlaceForEachControlAndEachLabel) {
    for (const forms::Arrangement arrangement : forms::arrangements) {
        checkEach([arrangement](forms::Form& form) { support::expectPlacedOnce(form, arrangement); });
    }
}

TEST_F(AllForms, haveAnAccessKeyForEachLabelThatCanHaveOne) {
    checkEach(support::expectAccessKeys);
}

TEST_F(AllForms, keepTheirAccessKeysInEveryState) {
    checkEach(support::expectSteadyAccessKeys);
}

} // namespace
