#include "rules/RuleObjectList.h"

#include "forms/Questions.h"
#include "protocol/rules/RuleEntry.h"
#include "rules/NewItem.h"

namespace rules {

RuleObjectList::RuleObjectList(forms::Container& container, platform::Platform& platform,
                               const protocol::RuleEntryRecord& entry)
    : list(container, u"Rule group"),
      editButton(container, u"Edit..."),
      deleteButton(container, u"Delete"),
      platform_(platform),
      entry_(entry),
      limits_(platform),
      plans_(platform),
      shortIds_(platform) {
    editButton.setBeside(list);
    deleteButton.setBeside(list);
    list.onSelect = [this] { rowSelected(); };
    editButton.onPress = [this] { edit(); };
    deleteButton.onPress = [this] { remove(); };
}

RuleObjects* RuleObjectList::objectsOf(std::uint8_t type) {
    switch (type) {
    case protocol::ruleEntryType::ruleGroup:
        return &groups_;
    case protocol::ruleEntryType::pageLimit:
        return &limits_;
    case protocol::ruleEntryType::pricePlan:
        return &plans_;
    case protocol::ruleEntryType::shortId:
        return &shortIds_;
    default:
        return nullptr;
    }
}

void RuleObjectList::showType(std::uint8_t type) {
    objects_ = objectsOf(type);
    const bool editable = objects_ != nullptr && objects_->editable() != nullptr;
    if (objects_ != nullptr) {
        list.setLabel(wire::WideString(objects_->label()));
    }
    list.setVisible(objects_ != nullptr);
    editButton.setVisible(editable);
    deleteButton.setVisible(editable);
    fill();
}

void RuleObjectList::fill() {
    list.clear();
    enableButtons();
    if (objects_ == nullptr) {
        return;
    }
    objects_->read();
    for (std::size_t row = 0; row < objects_->size(); ++row) {
        list.addItem(objects_->name(row));
    }
    if (objects_->editable() != nullptr) {
        list.addItem(wire::WideString(newItem));
    }
    list.select(rowToGoBackTo());
    enableButtons();
}

// Nothing is selected where there is no object: choosing "<New>" would open the editor at once.
std::optional<std::size_t> RuleObjectList::rowToGoBackTo() const {
    const auto size = objects_->size();
    const auto& saved = objects_->saved;
    if (size == 0) {
        return std::nullopt;
    }
    if (objects_->editable() == nullptr) {
        return 0;
    }
    if (saved.index && *saved.index < size) {
        return saved.index;
    }
    for (std::size_t row = 0; row < size && !saved.name.empty(); ++row) {
        if (objects_->name(row) == saved.name) {
            return row;
        }
    }
    return size - 1;
}

void RuleObjectList::select(std::string_view id) {
    for (std::size_t row = 0; objects_ != nullptr && row < objects_->size(); ++row) {
        if (objects_->id(row) == id) {
            list.select(row);
            enableButtons();
            return;
        }
    }
}

std::optional<std::size_t> RuleObjectList::selectedObject() const {
    const auto row = list.selection();
    const bool isObject = objects_ != nullptr && row && *row < objects_->size() && list.selectedText() != newItem;
    return isObject ? row : std::nullopt;
}

bool RuleObjectList::take(protocol::RuleEntryRecord& entry) {
    if (objects_ == nullptr) {
        entry.targetId.clear();
        return true;
    }
    const auto row = selectedObject();
    if (!row) {
        forms::refuseBlank(list, objects_->blankText());
        return false;
    }
    entry.targetId = objects_->id(*row);
    return true;
}

void RuleObjectList::saveName(const wire::WideString& name) {
    limits_.saved.name = name;
    plans_.saved.name = name;
    shortIds_.saved.name = name;
}

EditableRuleObjects* RuleObjectList::editableSelection() {
    const bool named = selectedObject() && !list.selectedText().empty();
    return named ? objects_->editable() : nullptr;
}

// When the editor is cancelled, "<New>" stays selected, and no object is chosen until the person does it.
void RuleObjectList::rowSelected() {
    if (objects_ != nullptr && objects_->editable() != nullptr && list.selectedText() == newItem) {
        const bool made = objects_->editable()->make(entry_);
        fill();
        if (!made) {
            list.select(objects_->size());
        }
    }
    enableButtons();
}

void RuleObjectList::edit() {
    if (auto* const objects = editableSelection()) {
        const auto row = *list.selection();
        objects->saved = {.index = row, .name = objects->name(row)};
        objects->edit(row, entry_);
        fill();
    }
}

void RuleObjectList::remove() {
    auto* const objects = editableSelection();
    if (objects != nullptr && forms::confirmDelete(list.form(), objects->deleteQuestion())) {
        objects->remove(*list.selection());
        objects->saved = {};
        fill();
    }
}

void RuleObjectList::enableButtons() {
    const bool enabled = editableSelection() != nullptr;
    editButton.setEnabled(enabled);
    deleteButton.setEnabled(enabled);
}

} // namespace rules
