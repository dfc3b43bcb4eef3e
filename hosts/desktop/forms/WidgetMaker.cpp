#include "hosts/desktop/forms/WidgetMaker.h"

#include "console/Button.h"
#include "console/CheckBox.h"
#include "console/DateTimePicker.h"
#include "console/DropList.h"
#include "console/EditBox.h"
#include "console/Group.h"
#include "console/Label.h"
#include "console/ListView.h"
#include "console/MultiLineEdit.h"
#include "console/PasswordBox.h"
#include "console/RadioButton.h"
#include "console/Tabs.h"
#include "console/TreeView.h"
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

std::unique_ptr<ControlWidget> WidgetMaker::make(console::Control& control) {
    control.accept(*this);
    return std::move(made_);
}

void WidgetMaker::visit(console::Button& control) {
    made_ = std::make_unique<ButtonWidget>(control);
}

void WidgetMaker::visit(console::CheckBox& control) {
    made_ = std::make_unique<CheckBoxWidget>(control);
}

void WidgetMaker::visit(console::DateTimePicker& control) {
    made_ = std::make_unique<DateTimeWidget>(control);
}

void WidgetMaker::visit(console::DropList& control) {
    made_ = std::make_unique<DropListWidget>(control);
}

void WidgetMaker::visit(console::EditBox& control) {
    made_ = std::make_unique<LineWidget>(control, QLineEdit::Normal);
}

void WidgetMaker::visit(console::Group& control) {
    made_ = std::make_unique<GroupWidget>(control);
}

void WidgetMaker::visit(console::Label& control) {
    made_ = std::make_unique<LabelWidget>(control);
}

void WidgetMaker::visit(console::ListView& control) {
    made_ = std::make_unique<ListWidget>(control);
}

void WidgetMaker::visit(console::MultiLineEdit& control) {
    made_ = std::make_unique<TextWidget>(control);
}

void WidgetMaker::visit(console::PasswordBox& control) {
    made_ = std::make_unique<LineWidget>(control, QLineEdit::Password);
}

void WidgetMaker::visit(console::RadioButton& control) {
    QButtonGroup*& group = groups_[&control.group()];
    if (group == nullptr) {
        group = new QButtonGroup(&owner_);
    }
    made_ = std::make_unique<RadioButtonWidget>(control, *group);
}

void WidgetMaker::visit(console::Tabs& control) {
    made_ = std::make_unique<TabsWidget>(control);
}

void WidgetMaker::visit(console::TreeView& control) {
    made_ = std::make_unique<TreeWidget>(control);
}

} // namespace desktop
