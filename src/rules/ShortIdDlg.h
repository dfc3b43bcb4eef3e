#pragma once

#include "console/CheckBox.h"
#include "console/DateTimePicker.h"
#include "console/EditBox.h"
#include "console/Form.h"
#include "console/Group.h"
#include "console/Label.h"
#include "console/RadioButton.h"
#include "console/RadioGroup.h"
#include "protocol/rules/ShortIdRecord.h"
#include "rules/MessageControl.h"
#include "rules/MinutesField.h"

namespace rules {

// Makes or edits a rule about short ids: how long one is valid, and for how long it is reserved after that.
class ShortIdDlg final : public console::Form {
public:
    explicit ShortIdDlg(console::Platform& platform);
    ShortIdDlg(console::Platform& platform, protocol::ShortIdRecord shortId);

    // As it was sent to the server, once the form has ended with OK.
    const protocol::ShortIdRecord& shortId() const { return shortId_; }

    console::EditBox name{*this, u"Name", {.limit = 64}};
    console::EditBox comment{*this, u"Comment", {.limit = 255}};
    MessageControl message{
        *this, platform(), {wire::WideString(MessageControl::newItem), wire::WideString(MessageControl::defaultItem)}};
    console::CheckBox validFor{*this, u"Valid for"};
    MinutesField validTime{*this, validFor, u"from last print"};
    console::RadioGroup reserved;
    console::RadioButton reservedFor{*this, reserved, u"Reserved for"};
    MinutesField reservedTime{*this, reservedFor, u"after valid time"};
    console::RadioButton reservedUntil{*this, reserved, u"Reserved until"};
    console::DateTimePicker timeOfDay{*this, u"", {.date = false}};
    console::Label eachDay{*this, u"", u"each day"};

protected:
    void onInitDialog() override;
    void onOk() override;

private:
    ShortIdDlg(console::Platform& platform, bool editing, protocol::ShortIdRecord shortId);

    void showTimes();
    void enableTimes();
    void timesClicked();
    void takeTimes();
    std::optional<std::int64_t> secondsOfDay() const;

    bool editing_;
    protocol::ShortIdRecord shortId_;
};

} // namespace rules
