#include "printers/PrinterPreferencesDlg.h"

#include "client/CQVXAdminClass.h"
#include "client/ChangedField.h"
#include "client/ConnectFailed.h"
#include "printers/RequiredModel.h"
#include "regions/RegionTree.h"

#include <algorithm>
#include <utility>

namespace printers {
namespace {

using client::PrinterRecordEdit;
using protocol::PrinterRecord;

std::u16string_view titleOf(PreferencesMode mode) {
    switch (mode) {
    case PreferencesMode::newPrinter:
        return u"New Printer";
    case PreferencesMode::migratedPrinter:
        return u"Create migrated printer";
    case PreferencesMode::migratedQueue:
        return u"Create migrated queue";
    case PreferencesMode::followPrint:
        return u"Printer Preferences";
    default:
        return u"Properties";
    }
}

// Empty for a region that isn't listed.
wire::WideString nameOfRegion(std::int32_t regionId) {
    client::CQVXAdminClass client;
    if (!client.listRegions(protocol::RegionKind::printersAndQueues)) {
        throw client::ConnectFailed();
    }
    const auto found = std::ranges::find(client.regions(), regionId, &protocol::RegionRecord::id);
    return found != client.regions().end() ? found->name : wire::WideString();
}

} // namespace

PrinterPreferencesDlg::PrinterPreferencesDlg(platform::Platform& platform, PreferencesSubject subject)
    : Form(platform, titleOf(subject.mode)), subject_(std::move(subject)) {
    brandAndModel.onKnown = [this] { okButton().setEnabled(brandAndModel.known()); };
    selectRegion.setBeside(region);
    selectRegion.onPress = [this] { pickRegion(); };
    modelText.setVisible(isMigrated());
    // A follow-print device is told by the address of its box instead of its region.
    region.setVisible(!isFollowPrint());
    selectRegion.setVisible(!isFollowPrint());
    fields.fpBoxIp.setVisible(isFollowPrint());
    fields.fpBoxIp.setLabel(u"FP Box IP");
    fields.physicalStatus.setVisible(subject_.mode == PreferencesMode::existing);
    fields.printingStatus.setVisible(subject_.mode == PreferencesMode::existing);
}

bool PrinterPreferencesDlg::isMigrated() const {
    return subject_.mode == PreferencesMode::migratedPrinter || subject_.mode == PreferencesMode::migratedQueue;
}

void PrinterPreferencesDlg::makeEdit() {
    namespace type = protocol::recordType;
    const auto& entry = subject_.migrated;
    switch (subject_.mode) {
    case PreferencesMode::newPrinter:
        edit_.emplace(subject_.regionId, std::string(), type::printer);
        break;
    case PreferencesMode::followPrint:
        edit_.emplace(subject_.regionId, std::string(), type::followQueue);
        break;
    case PreferencesMode::migratedPrinter:
        edit_.emplace(entry.entryId, type::copyOfPrinter);
        break;
    case PreferencesMode::migratedQueue:
        edit_.emplace(entry.entryId, type::copyOfQueue);
        edit_->setPhysicalPrinterId(entry.printerId);
        break;
    default:
        edit_.emplace(subject_.id, type::loadPrinter);
    }
}

void PrinterPreferencesDlg::onInitDialog() {
    makeEdit();
    auto record = edit_->record();
    if (isMigrated()) {
        record.name = subject_.migrated.name;
    } else if (subject_.mode != PreferencesMode::existing) {
        record.snmpCommunity = u"public";
    }
    showHead(record);
    showRegion();
    fields.open(record);
    brandAndModel.fillFor(record.modelId);
}

void PrinterPreferencesDlg::showHead(const PrinterRecord& record) {
    name.setText(record.name);
    location.setText(record.location);
    modelText.setText(subject_.migrated.modelText);
    doNotAutoCreateQueue.setChecked(record.doNotAutoCreateQueue != 0);
}

// A printer on the server is moved in the tree and not here.
void PrinterPreferencesDlg::showRegion() {
    selectRegion.setEnabled(subject_.mode != PreferencesMode::existing);
    if (subject_.regionId == 0) {
        subject_.regionId = edit_->record().regionId;
    }
    region.setText(subject_.regionName.empty() ? nameOfRegion(subject_.regionId) : subject_.regionName);
}

void PrinterPreferencesDlg::pickRegion() {
    regions::RegionTree tree(platform());
    if (runModal(tree) == forms::idOk) {
        subject_.regionId = tree.selectedRegionId;
        region.setText(tree.selectedRegionName);
    }
}

void PrinterPreferencesDlg::take() {
    change(*edit_, &PrinterRecord::doNotAutoCreateQueue, &PrinterRecordEdit::setDoNotAutoCreateQueue,
           doNotAutoCreateQueue.checked() ? 1 : 0);
    change(*edit_, &PrinterRecord::modelId, &PrinterRecordEdit::setModelId, brandAndModel.model.selectedData());
    change(*edit_, &PrinterRecord::name, &PrinterRecordEdit::setName, name.text());
    change(*edit_, &PrinterRecord::location, &PrinterRecordEdit::setLocation, location.text());
    fields.take(*edit_);
    if (subject_.mode != PreferencesMode::existing) {
        edit_->setRegionId(subject_.regionId);
    }
}

bool PrinterPreferencesDlg::blank() const {
    return name.text().empty() && location.text().empty() && fields.blank();
}

// Without any text there is nothing to save. The form ends although a refusal has been shown; this must stay. A host
// may show it again.
void PrinterPreferencesDlg::onOk() {
    if (!modelChosen(brandAndModel)) {
        return;
    }
    take();
    if (!blank()) {
        edit_->save();
    }
    EndDialog(forms::idOk);
}

} // namespace printers
