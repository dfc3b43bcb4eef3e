#pragma once

#include "console/CheckBox.h"
#include "console/DateTimePicker.h"
#include "console/DropList.h"
#include "console/EditBox.h"
#include "console/Form.h"
#include "console/Group.h"
#include "console/Label.h"
#include "console/ListView.h"
#include "console/MultiLineEdit.h"
#include "console/Page.h"
#include "console/PasswordBox.h"
#include "console/RadioButton.h"
#include "console/RadioGroup.h"
#include "console/Tabs.h"
#include "console/TreeView.h"

#include <functional>

namespace console {

// A form with every kind of control; the test sets what its handlers do.
class SampleForm final : public Form {
public:
    explicit SampleForm(Platform& platform, FormOptions options = {}) : Form(platform, u"Sample", options) {}

    EditBox name{*this, u"&Name       "};
    PasswordBox password{*this, u"Password"};
    MultiLineEdit comment{*this, u"Comment", {.limit = 5}};
    Label version{*this, u"", u"Version 1"};
    Group where{*this, u"Where"};
    RadioGroup choice;
    RadioButton byBrand{where, choice, u"By brand"};
    DropList brand{where, u"", {.sorted = true, .belongsTo = &byBrand}};
    RadioButton byName{where, choice, u"By name"};
    EditBox place{where, u"Name"};
    CheckBox invisible{*this, u"Invisible"};
    Tabs tabs{*this};
    Page general{tabs, u"General"};
    ListView rules{general, u"Rules"};
    Button apply{general, u"&Apply"};
    Page more{tabs, u"More"};
    Group times{more, u"Times"};
    DateTimePicker from{times, u"From"};
    TreeView regions{more, u"Regions"};

    using Form::EndDialog;
    using Form::messageBox;
    using Form::runModal;
    using Form::setTitle;

    std::function<void()> opening;
    std::function<void()> confirming;
    std::function<void()> cancelling;

protected:
    void onInitDialog() override {
        if (opening) {
            opening();
        }
    }
    void onOk() override { confirming ? confirming() : Form::onOk(); }
    void onCancel() override { cancelling ? cancelling() : Form::onCancel(); }
};

} // namespace console
