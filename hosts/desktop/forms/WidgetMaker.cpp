#include "hosts/desktop/forms/WidgetMaker.h"

#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/DateTimePicker.h"
#include "forms/DropList.h"
#include "forms/EditBox.h"
#include "forms/Group.h"
#include "forms/Label.h"
#include "forms/ListView.h"
#include "forms/MultiLineEdit.h"
#include "forms/PasswordBox.h"
#include "forms/RadioButton.h"
#include "forms/Tabs.h"
#include "forms/TreeView.h"
#include "hosts/desktop/forms/ButtonWidget.h"
#include "hosts/desktop/forms/CheckBoxWidget.h"
#include "hosts/desktop/forms/DateTimeWidget.h"
#include "hosts/desktop/forms/DropListWidget.h"
#include "hosts/desktop/forms/GroupWidget.h"
#include "hosts/desktop/forms/LabelWidget.h"
#include "hosts/desktop/forms/LineWidget.h"
#include "hosts/desktop/forms/ListWidget.h"
#include "hosts/desktop/forms/RadioButtonWidget.h"
#include "hosts/desktop/forms/TabsWidget.h"
#include "hosts/desktop/forms/TextWidget.h"
#include "hosts/desktop/forms/TreeWidget.h"

#include <QButtonGroup>

#include <utility>

namespace desktop {

WidgetMaker::WidgetMaker(QWidget& owner) : owner_(owner) {}

WidgetMaker::~WidgetMaker() = default;

std::unique_ptr<ControlWidget> WidgetMaker::make(forms::Control& control) {
    control.accept(*this);
    return std::move(made_);
}

void WidgetMaker::visit(forms::Button& control) {
    made_ = std::make_unique<ButtonWidget>(control);
}

void WidgetMaker::visit(forms::CheckBox& control) {
    made_ = std::make_unique<CheckBoxWidget>(control);
}

void WidgetMaker::visit(forms::DateTimePicker& control) {
    made_ = std::make_unique<DateTimeWidget>(control);
}

void WidgetMaker::visit(forms::DropList& control) {
    made_ = std::make_unique<DropListWidget>(control);
}

void WidgetMaker::visit(forms::EditBox& control) {
    made_ = std::make_unique<LineWidget>(control, QLineEdit::Normal);
}

void WidgetMaker::visit(forms::Group& control) {
    made_ = std::make_unique<GroupWidget>(control);
}

void WidgetMaker::visit(forms::Label& control) {
    made_ = std::make_unique<LabelWidget>(control);
}

void WidgetMaker::visit(forms::ListView& control) {
    made_ = std::make_unique<ListWidget>(control);
}

void WidgetMaker::visit(forms::MultiLineEdit& control) {
    made_ = std::make_unique<TextWidget>(control);
}

void WidgetMaker::visit(forms::PasswordBox& control) {
    made_ = std::make_unique<LineWidget>(control, QLineEdit::Password);
}

void WidgetMaker::visit(forms::RadioButton& control) {
    QButtonGroup*& group = groups_[&control.group()];
    if (group == nullptr) {
        group = new QButtonGroup(&owner_);
    }
    made_ = std::make_unique<RadioButtonWidget>(control, *group);
}

void WidgetMaker::visit(forms::Tabs& control) {
    made_ = std::make_unique<TabsWidget>(control);
}

void WidgetMaker::visit(forms::TreeView& control) {
    made_ = std::make_unique<TreeWidget>(control);
}

} // namespace desktop
