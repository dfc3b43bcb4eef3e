#pragma once

#include "forms/CheckBox.h"
#include "forms/DateTimePicker.h"
#include "forms/DropList.h"
#include "forms/EditBox.h"
#include "forms/Form.h"
#include "forms/Group.h"
#include "forms/Label.h"
#include "forms/ListView.h"
#include "forms/MultiLineEdit.h"
#include "forms/Page.h"
#include "forms/PasswordBox.h"
#include "forms/RadioButton.h"
#include "forms/RadioGroup.h"
#include "forms/Tabs.h"
#include "forms/TreeView.h"

#include <functional>

namespace forms {

// A form with every kind of control; the test sets what its handlers do.
class SampleForm final : public Form {
public:
    explicit SampleForm(platform::Platform& platform, FormOptions options = {}) : Form(platform, u"Sample", options) {}

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

} // namespace forms
