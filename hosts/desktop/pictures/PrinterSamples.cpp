#include "hosts/desktop/pictures/PrinterSamples.h"

#include "client/CQVXAdminClass.h"
#include "printers/PrinterPreferencesDlg.h"
#include "printers/PrinterPropertiesDlg.h"
#include "regions/AddTabRuleDlg.h"
#include "regions/RegionRulesDlg.h"
#include "regions/RegionTree.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace desktop {
namespace {

// The printers of the first region that has any with a model and an alarm program.
protocol::PrinterRecord busyPrinter() {
    client::CQVXAdminClass client;
    client.listRegions(protocol::RegionKind::printersAndQueues);
    for (const auto& region : client.regions()) {
        client::CQVXAdminClass reader;
        std::int16_t count = 0;
        reader.getPrintersInRegion(region.id, count);
        for (const auto& printer : reader.printerRecords()) {
            if (!printer.modelId.empty() && !printer.alarmProgramId.empty() && printer.snmpStatus != '0') {
                return printer;
            }
        }
    }
    throw std::runtime_error("no printer in the sample");
}

std::int32_t regionNamed(std::u16string_view name) {
    client::CQVXAdminClass client;
    client.listRegions(protocol::RegionKind::printersAndQueues);
    const auto found = std::ranges::find(client.regions(), name, &protocol::RegionRecord::name);
    return found != client.regions().end() ? found->id : 0;
}

std::unique_ptr<forms::Form> printerToMake(platform::Platform& platform) {
    return std::make_unique<printers::PrinterPreferencesDlg>(
        platform, printers::PreferencesSubject{.mode = printers::PreferencesMode::newPrinter,
                                               .regionId = regionNamed(u"Warehouse"),
                                               .regionName = u"Warehouse",
                                               .id = {},
                                               .migrated = {}});
}

void enterAPrinter(forms::Form& form) {
    auto& dialog = dynamic_cast<printers::PrinterPreferencesDlg&>(form);
    enter(dialog.name, u"BER-WH-006");
    dialog.brandAndModel.brand.select(0);
    dialog.brandAndModel.brand.userSelected(0);
    dialog.brandAndModel.model.select(0);
    dialog.brandAndModel.model.userSelected(0);
    enter(dialog.location, u"Loading bay");
    enter(dialog.fields.ip, u"10.20.4.16");
}

std::unique_ptr<forms::Form> printerToEdit(platform::Platform& platform) {
    return std::make_unique<printers::PrinterPropertiesDlg>(platform, busyPrinter().id);
}

void showRules(forms::Form& form) {
    auto& dialog = dynamic_cast<printers::PrinterPropertiesDlg&>(form);
    dialog.tabs.show(1);
}

std::unique_ptr<forms::Form> rulesOfRegion(platform::Platform& platform) {
    return std::make_unique<regions::RegionRulesDlg>(platform, regionNamed(u"Berlin"));
}

void selectARegion(forms::Form& form) {
    auto& tree = dynamic_cast<regions::RegionTree&>(form).tree;
    tree.select(1);
    tree.userSelected(1);
}

void leaveAsItIs(forms::Form& /*form*/) {}

} // namespace

std::vector<Sample> printerSamples() {
    return {
        {"new-printer", printerToMake, enterAPrinter},
        {"printer", printerToEdit, leaveAsItIs},
        {"printer-rules", printerToEdit, showRules},
        {"region-rules", rulesOfRegion, leaveAsItIs},
        {"region-tree", [](auto& platform) { return std::make_unique<regions::RegionTree>(platform); }, selectARegion},
    };
}

} // namespace desktop
