#pragma once

#include "forms/CheckBox.h"
#include "forms/DateTimePicker.h"
#include "forms/EditBox.h"
#include "forms/Form.h"
#include "forms/Group.h"
#include "forms/Label.h"
#include "forms/RadioButton.h"
#include "forms/RadioGroup.h"
#include "protocol/rules/ShortId.h"
#include "rules/MessageControl.h"
#include "rules/MinutesField.h"

namespace rules {

// Creates or edits a rule about short ids: how long one is valid, and how long it is reserved after that.
class ShortIdDlg final : public forms::Form {
public:
    explicit ShortIdDlg(platform::Platform& platform);
    ShortIdDlg(platform::Platform& platform, protocol::ShortIdRecord shortId);

    // As it was sent to the server, once the form has ended with OK.
    [[nodiscard]] const protocol::ShortIdRecord& shortId() const { return shortId_; }

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
    void onOk() override;

private:
    ShortIdDlg(platform::Platform& platform, bool editing, protocol::ShortIdRecord shortId);

    void showTimes();
    void enableTimes();
    void timesClicked();
    void takeTimes();
    [[nodiscard]] std::optional<std::int64_t> secondsOfDay() const;

    bool editing_;
    protocol::ShortIdRecord shortId_;
};

} // namespace rules
