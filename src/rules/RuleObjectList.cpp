#include "rules/RuleObjectList.h"

#include "forms/Questions.h"
#include "protocol/rules/RuleEntry.h"

namespace rules {

RuleObjectList::RuleObjectList(forms::Container& container, const protocol::RuleEntryRecord& entry)
    : EditableList(container, u"Rule group", u"Edit..."), entry_(entry) {
    for (const auto& [type, label] : protocol::ruleEntryType::labels) {
        byType_.emplace(type, RuleObjects::ofType(type));
    }
}

void RuleObjectList::showType(std::uint8_t type) {
    objects_ = byType_[type].get();
    const bool editable = objects_ != nullptr && objects_->editable();
    if (objects_ != nullptr) {
        list.setLabel(wire::WideString(objects_->texts.label));
    }
    list.setVisible(objects_ != nullptr);
    editButton.setVisible(editable);
    deleteButton.setVisible(editable);
    list.clear();
    followSelection();
    if (objects_ != nullptr) {
        setOtherRows(false, editable ? std::vector{wire::WideString(newItem)} : std::vector<wire::WideString>());
        refill();
    }
}

// Nothing is selected if there is no object: selecting "<New>" would open the editor at once.
std::optional<std::size_t> RuleObjectList::rowToGoBackTo() const {
    const auto& saved = objects_->saved;
    if (size() == 0) {
        return std::nullopt;
    }
    if (!objects_->editable()) {
        return 0;
    }
    if (saved.index && *saved.index < size()) {
        return saved.index;
    }
    for (std::size_t row = 0; row < size() && !saved.name.empty(); ++row) {
        if (name(row) == saved.name) {
            return row;
        }
    }
    return size() - 1;
}

void RuleObjectList::select(std::string_view id) {
    for (std::size_t row = 0; row < size(); ++row) {
        if (objects_->id(row) == id) {
            list.select(row);
            followSelection();
            return;
        }
    }
}

bool RuleObjectList::take(protocol::RuleEntryRecord& entry) {
    if (objects_ == nullptr) {
        entry.targetId.clear();
        return true;
    }
    const auto row = selectedRecord();
    if (!row) {
        forms::refuseBlank(list, objects_->texts.blank);
        return false;
    }
    entry.targetId = objects_->id(*row);
    return true;
}

void RuleObjectList::saveName(const wire::WideString& name) {
    for (const auto& [type, objects] : byType_) {
        if (objects != nullptr) {
            objects->saved.name = name;
        }
    }
}

void RuleObjectList::followSelection() {
    enableButtons(namedRecord() && objects_->editable());
}

// When the editor is cancelled, "<New>" stays selected, and no object is chosen until the user chooses one.
void RuleObjectList::make() {
    const bool made = objects_->make(list.form(), entry_);
    refill();
    if (!made) {
        list.select(size());
        followSelection();
    }
}

void RuleObjectList::edit(std::size_t record) {
    objects_->saved = {.index = record, .name = name(record)};
    objects_->edit(list.form(), record, entry_);
    refill();
}

void RuleObjectList::remove(std::size_t record) {
    objects_->remove(record);
    objects_->saved = {};
    refill();
}

} // namespace rules
