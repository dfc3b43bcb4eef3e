#include "regions/CreateRegionDlg.h"
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
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

TEST(AllForms, canBeDrawnByEveryHostAndToldApartByAPerson) {
    support::TestPlatform platform;
    std::string destinationId;
    wire::WideString destinationName;
    std::vector<std::unique_ptr<forms::Form>> forms;
    forms.push_back(std::make_unique<snapin::AuthenticationDlg>(platform));
    forms.push_back(
        std::make_unique<regions::CreateRegionDlg>(platform, 0, regions::CreateRegionDlg::Mode::printerTree));
    std::vector<protocol::RuleEntryRecord> entries;
    const rules::RuleEntryPlace place{.entries = entries, .ownerId = "g", .ownerNumber = 0, .parentId = {}};
    std::vector<protocol::AffectedRecord> affected;
    rules::SavedChoice saved;
    forms.push_back(std::make_unique<rules::AddRuleEntryDlg>(platform, rules::AddRuleEntryDlg::Mode::group, place));
    forms.push_back(std::make_unique<rules::AddRuleEntryDlg>(platform, rules::AddRuleEntryDlg::Mode::place, place));
    forms.push_back(
        std::make_unique<rules::AffectedDlg>(platform, rules::AffectedDlg::Opener{.list = affected, .saved = saved}));
    forms.push_back(std::make_unique<rules::CNewRuleDialog>(platform, place));
    forms.push_back(std::make_unique<rules::NewMessageDlg>(platform));
    forms.push_back(std::make_unique<rules::NewPricePlanDlg>(platform));
    forms.push_back(std::make_unique<rules::NewRuleGroupDlg>(platform));
    forms.push_back(std::make_unique<rules::PageLimitDlg>(platform));
    forms.push_back(std::make_unique<rules::SearchDestinationDlg>(platform, destinationId, destinationName));
    forms.push_back(std::make_unique<rules::ShortIdDlg>(platform));

    for (const auto& form : forms) {
        SCOPED_TRACE(wire::toUtf8(form->title()));
        support::expectSound(*form);
    }

    EXPECT_FALSE(forms.empty());
}

} // namespace
