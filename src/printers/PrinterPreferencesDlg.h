#pragma once

#include "client/PrinterRecordEdit.h"
#include "drivers/BrandAndModelLists.h"
#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/EditBox.h"
#include "forms/Form.h"
#include "forms/Label.h"
#include "printers/PrinterFields.h"

#include <cstdint>
#include <optional>
#include <string>

namespace printers {

// What the dialog creates or edits.
enum class PreferencesMode : std::int32_t {
    existing = 0,
    newPrinter = 1,
    followPrint = 3, // a new device with a follow-print box
    migratedPrinter = 9,
    migratedQueue = 10
};

// A printer that a report has found in the old estate.
struct MigratedEntry {
    std::string entryId;
    wire::WideString name;
    wire::WideString modelText;
    std::string printerId; // of the queue to be made
};

struct PreferencesSubject {
    PreferencesMode mode = PreferencesMode::newPrinter;
    std::int32_t regionId = 0; // of a new device
    wire::WideString regionName;
    std::string id; // of an existing printer
    MigratedEntry migrated{};
};

// Creates a printer or a follow-print device, from nothing or from an entry of the inventory, or edits a printer on a
// single page.
class PrinterPreferencesDlg final : public forms::Form {
public:
    PrinterPreferencesDlg(platform::Platform& platform, PreferencesSubject subject);

    forms::EditBox name{*this, u"Printer Name"};
    drivers::BrandAndModelLists brandAndModel{*this};
    forms::Label modelText{*this, u"Model found"}; // only for an entry of the inventory
    forms::EditBox location{*this, u"Location"};
    forms::EditBox region{*this, u"Region", {.readOnly = true}};
    forms::Button selectRegion{*this, u"Select"};
    // "Internal" comes twice, and the three rows about polling are stored like it; this must stay.
    PrinterFields fields{*this,
                         {u"Internal", u"Poll information", u"Poll & Use external information",
                          u"Poll & Merge external information", u"Internal", u"External"}};
    forms::CheckBox doNotAutoCreateQueue{fields.network, u"Do not auto create queue"};

protected:
    void onInitDialog() override;
    void onOk() override;

private:
    void makeEdit();
    [[nodiscard]] bool isFollowPrint() const { return subject_.mode == PreferencesMode::followPrint; }
    [[nodiscard]] bool isMigrated() const;
    void showHead(const protocol::PrinterRecord& record);
    void showRegion();
    void pickRegion();
    void take();
    [[nodiscard]] bool blank() const;

    PreferencesSubject subject_;
    std::optional<client::PrinterRecordEdit> edit_; // once it is loaded
};

} // namespace printers
