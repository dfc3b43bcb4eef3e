#pragma once

#include "forms/CheckBox.h"
#include "forms/DateTimePicker.h"
#include "forms/EditBox.h"
#include "forms/Group.h"
#include "forms/Label.h"
#include "forms/RadioButton.h"
#include "forms/RadioGroup.h"
#include "forms/RecordForm.h"
#include "protocol/rules/ShortId.h"
#include "rules/MessageControl.h"
#include "rules/MinutesField.h"

namespace rules {

// Creates or edits a rule about short ids: how long one is valid, and how long it is reserved after that.
class ShortIdDlg final : public forms::RecordForm<protocol::ShortIdRecord> {
public:
    explicit ShortIdDlg(platform::Platform& platform, std::optional<Record> edited = {});

    forms::EditBox name{*this, u"Name", {.limit = 64}};
    forms::EditBox comment{*this, u"Comment", {.limit = 255}};
    MessageControl message{*this,
                           {wire::WideString(MessageControl::newItem), wire::WideString(MessageControl::defaultItem)}};
    forms::CheckBox validFor{*this, u"Valid for"};
    MinutesField validTime{*this, validFor, u"from last print"};
    forms::RadioGroup reserved;
    forms::RadioButton reservedFor{*this, reserved, u"Reserved for"};
    MinutesField reservedTime{*this, reservedFor, u"after valid time"};
    forms::RadioButton reservedUntil{*this, reserved, u"Reserved until"};
    forms::DateTimePicker timeOfDay{*this, u"", {.date = false}};
    forms::Label eachDay{*this, u"", u"each day"};

protected:
    void onInitDialog() override;
    bool take() override;
    void addRecord(client::CQVXAdminClass& client) override;
    void updateRecord(client::CQVXAdminClass& client) override { client.updateShortId(record_); }

private:
    void showTimes();
    void enableTimes();
    void timesClicked();
    void takeTimes();
    [[nodiscard]] std::optional<std::int64_t> secondsOfDay() const;
};

} // namespace rules
