#include "printers/PrinterPropertiesForm.h"

#include "client/ChangedField.h"
#include "printers/RequiredModel.h"

#include <utility>

namespace printers {

PrinterPropertiesForm::PrinterPropertiesForm(platform::Platform& platform, std::string id, std::uint16_t recordType)
    : Form(platform, u"Properties"), id_(std::move(id)), recordType_(recordType) {
    brandAndModel.onKnown = [this] { okButton().setEnabled(brandAndModel.known()); };
}

void PrinterPropertiesForm::onInitDialog() {
    edit_.emplace(id_, recordType_);
    const auto& record = edit_->record();
    name.setText(record.name);
    location.setText(record.location);
    general.open(record);
    brandAndModel.fillFor(record.modelId);
    rules.open(id_);
}

bool PrinterPropertiesForm::complete() {
    return modelChosen(brandAndModel);
}

// A refusal has been shown when the form ends, and what was entered is lost; this must stay.
void PrinterPropertiesForm::onOk() {
    using protocol::PrinterRecord;
    using Edit = client::PrinterRecordEdit;
    if (!complete()) {
        return;
    }
    change(*edit_, &PrinterRecord::modelId, &Edit::setModelId, brandAndModel.model.selectedData());
    change(*edit_, &PrinterRecord::name, &Edit::setName, name.text());
    change(*edit_, &PrinterRecord::location, &Edit::setLocation, location.text());
    general.fields.take(*edit_);
    general.sendOctetOrder(id_);
    edit_->save();
    EndDialog(forms::idOk);
}

} // namespace printers
