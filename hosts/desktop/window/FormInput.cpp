#include "hosts/desktop/window/FormInput.h"

#include "forms/CheckBox.h"
#include "forms/ControlVisitor.h"
#include "forms/DateTimePicker.h"
#include "forms/DropList.h"
#include "forms/EditBox.h"
#include "forms/FormWalk.h"
#include "forms/Group.h"
#include "forms/Label.h"
#include "forms/ListView.h"
#include "forms/MultiLineEdit.h"
#include "forms/PasswordBox.h"
#include "forms/RadioButton.h"
#include "forms/Tabs.h"
#include "forms/TreeView.h"

#include <typeinfo>

namespace desktop {
namespace {

using Choice = std::optional<std::size_t>;

// Reads what a control holds.
template <class Value>
class Reader final : public forms::ControlVisitor {
public:
    Value value;

private:
    void keep(const Choice& choice) {
        if (choice) {
            value = *choice;
        }
    }
    void visit(forms::Button& /*control*/) override {}
    void visit(forms::CheckBox& control) override { value = control.checked(); }
    void visit(forms::DateTimePicker& control) override { value = control.value(); }
    void visit(forms::DropList& control) override { keep(control.selection()); }
    void visit(forms::EditBox& control) override { value = control.text(); }
    void visit(forms::Group& /*control*/) override {}
    void visit(forms::Label& /*control*/) override {}
    void visit(forms::ListView& control) override { keep(control.selection()); }
    void visit(forms::MultiLineEdit& control) override { value = control.text(); }
    void visit(forms::PasswordBox& /*control*/) override {}
    void visit(forms::RadioButton& control) override { value = control.chosen(); }
    void visit(forms::Tabs& control) override { value = control.current(); }
    void visit(forms::TreeView& control) override { keep(control.selection()); }
};

// Enters a value where the control holds another one.
template <class Value>
class Writer final : public forms::ControlVisitor {
public:
    explicit Writer(const Value& value) : value_(value) {}

private:
    template <class Kind>
    [[nodiscard]] const Kind* wanted(const Kind& current) const {
        const auto* const kept = std::get_if<Kind>(&value_);
        return kept != nullptr && *kept != current ? kept : nullptr;
    }
    template <class List>
    void choose(List& list, std::size_t count) {
        const auto* const kept = std::get_if<std::size_t>(&value_);
        if (kept != nullptr && *kept < count && list.selection() != *kept) {
            list.userSelected(*kept);
        }
    }
    void write(forms::TextControl& control) {
        if (const auto* const text = wanted(control.text())) {
            control.userTyped(*text);
        }
    }
    void visit(forms::Button& /*control*/) override {}
    void visit(forms::CheckBox& control) override {
        if (const auto* const checked = wanted(control.checked())) {
            control.userChecked(*checked);
        }
    }
    void visit(forms::DateTimePicker& control) override {
        if (const auto* const time = wanted(control.value())) {
            control.userPicked(*time);
        }
    }
    void visit(forms::DropList& control) override { choose(control, control.items().size()); }
    void visit(forms::EditBox& control) override { write(control); }
    void visit(forms::Group& /*control*/) override {}
    void visit(forms::Label& /*control*/) override {}
    void visit(forms::ListView& control) override { choose(control, control.rows().size()); }
    void visit(forms::MultiLineEdit& control) override { write(control); }
    void visit(forms::PasswordBox& /*control*/) override {}
    void visit(forms::RadioButton& control) override {
        const auto* const chosen = wanted(control.chosen());
        if (chosen != nullptr && *chosen) {
            control.userChose();
        }
    }
    void visit(forms::Tabs& control) override {
        if (const auto* const page = wanted(control.current()); page != nullptr && *page < control.pages().size()) {
            control.userShowed(*page);
        }
    }
    void visit(forms::TreeView& control) override { choose(control, control.items().size()); }

    const Value& value_;
};

} // namespace

FormInput::FormInput(forms::Form& form) : className_(typeid(form).name()), title_(form.title()) {
    for (forms::Control* const control : forms::controlsOf(form)) {
        Reader<Value> reader;
        control->accept(reader);
        values_.push_back(std::move(reader.value));
    }
}

bool FormInput::fits(const forms::Form& form) const {
    return className_ == typeid(form).name() && title_ == form.title();
}

void FormInput::enterInto(forms::Form& form) const {
    // What is entered in one control may be what enables another one in front of it.
    constexpr int rounds = 2;
    for (int round = 0; round < rounds; ++round) {
        const auto controls = forms::controlsOf(form);
        for (std::size_t place = 0; place < controls.size() && place < values_.size(); ++place) {
            Writer<Value> writer(values_[place]);
            controls[place]->accept(writer);
        }
    }
}

} // namespace desktop
