#include "tests/hosts/desktop/forms/ProductForms.h"

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

namespace desktop {
namespace {

rules::RuleEntryPlace inAGroup() {
    static std::vector<protocol::RuleEntryRecord> entries;
    return {.entries = entries, .ownerId = "g", .ownerNumber = 0, .parentId = {}};
}

template <rules::AddRuleEntryDlg::Mode mode>
std::unique_ptr<forms::Form> newEntry(platform::Platform& platform) {
    return std::make_unique<rules::AddRuleEntryDlg>(platform, mode, inAGroup());
}

template <class Dialog>
std::unique_ptr<forms::Form> plain(platform::Platform& platform) {
    return std::make_unique<Dialog>(platform);
}

std::unique_ptr<forms::Form> newRegion(platform::Platform& platform) {
    return std::make_unique<regions::CreateRegionDlg>(platform, 0, regions::CreateRegionDlg::Mode::printerTree);
}

template <printers::PreferencesMode mode>
std::unique_ptr<forms::Form> preferences(platform::Platform& platform) {
    return std::make_unique<printers::PrinterPreferencesDlg>(
        platform,
        printers::PreferencesSubject{.mode = mode, .regionId = 1, .regionName = u"North", .id = {}, .migrated = {}});
}

template <class Dialog>
std::unique_ptr<forms::Form> propertiesOf(platform::Platform& platform) {
    return std::make_unique<Dialog>(platform, "p1");
}

std::unique_ptr<forms::Form> newQueue(platform::Platform& platform) {
    return std::make_unique<queues::AddQueueDlg>(
        platform, queues::NewQueue{.mode = queues::QueueMode::queue, .printerId = "p1", .regionId = 1});
}

std::unique_ptr<forms::Form> queueOnOnePage(platform::Platform& platform) {
    return std::make_unique<queues::QueuePreferencesDlg>(platform, "q1");
}

std::unique_ptr<forms::Form> queueProperties(platform::Platform& platform) {
    return std::make_unique<queues::QueuePropertiesDlg>(platform, queues::QueueMode::queue, "q1", u"Lobby");
}

std::unique_ptr<forms::Form> ruleOnPrinter(platform::Platform& platform) {
    return std::make_unique<regions::AddTabRuleDlg>(platform, inAGroup());
}

std::unique_ptr<forms::Form> rulesOfRegion(platform::Platform& platform) {
    return std::make_unique<regions::RegionRulesDlg>(platform, 1);
}

std::unique_ptr<forms::Form> newRule(platform::Platform& platform) {
    return std::make_unique<rules::CNewRuleDialog>(platform, inAGroup());
}

std::unique_ptr<forms::Form> searchDestination(platform::Platform& platform) {
    static std::string id;
    static wire::WideString name;
    return std::make_unique<rules::SearchDestinationDlg>(platform, id, name);
}

} // namespace

std::vector<ProductForm> productForms() {
    using rules::AddRuleEntryDlg;
    return {{"login", plain<snapin::AuthenticationDlg>},
            {"createRegion", newRegion},
            {"ruleGroup", plain<rules::NewRuleGroupDlg>},
            {"ruleEntryInGroup", newEntry<AddRuleEntryDlg::Mode::group>},
            {"ruleEntryOnRegion", newEntry<AddRuleEntryDlg::Mode::place>},
            {"newPrinter", preferences<printers::PreferencesMode::newPrinter>},
            {"followPrint", preferences<printers::PreferencesMode::followPrint>},
            {"printer", propertiesOf<printers::PrinterPropertiesDlg>},
            {"localPrinter", propertiesOf<localprinters::LocalPrinterPropertiesDlg>},
            {"newQueue", newQueue},
            {"queuePreferences", queueOnOnePage},
            {"queueProperties", queueProperties},
            {"ruleOnPrinter", ruleOnPrinter},
            {"regionRules", rulesOfRegion},
            {"regionTree", plain<regions::RegionTree>},
            {"newRule", newRule},
            {"affected", plain<rules::AffectedDlg>},
            {"message", plain<rules::NewMessageDlg>},
            {"shortId", plain<rules::ShortIdDlg>},
            {"pageLimit", plain<rules::PageLimitDlg>},
            {"searchDestination", searchDestination},
            {"pricePlan", plain<rules::NewPricePlanDlg>}};
}

} // namespace desktop
