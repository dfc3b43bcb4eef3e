#include "forms/EditableList.h"

#include "forms/Form.h"
#include "forms/Questions.h"

#include <algorithm>
#include <utility>

namespace forms {

EditableList::EditableList(Container& container, std::u16string_view label, std::u16string_view editLabel)
    : list(container, label), editButton(container, editLabel), deleteButton(container, u"Delete") {
    editButton.setBeside(list);
    deleteButton.setBeside(list);
    list.onSelect = [this] { rowSelected(); };
    editButton.onPress = [this] { editPressed(); };
    deleteButton.onPress = [this] { deletePressed(); };
}

void EditableList::setVisible(bool visible) {
    list.setVisible(visible);
    editButton.setVisible(visible);
    deleteButton.setVisible(visible);
}

void EditableList::setOtherRows(bool emptyAbove, std::vector<wire::WideString> below) {
    emptyAbove_ = emptyAbove;
    below_ = std::move(below);
}

void EditableList::refill() {
    setKnown(false);
    list.clear();
    setKnown(read());
    if (emptyAbove_) {
        list.addItem({});
    }
    for (std::size_t record = 0; record < size(); ++record) {
        list.addItem(name(record));
    }
    for (const auto& item : below_) {
        list.addItem(item);
    }
    list.select(rowToGoBackTo());
    followSelection();
}

std::optional<std::size_t> EditableList::selectedRecord() const {
    const auto row = list.selection();
    if (!row || *row < rowOf(0) || *row >= rowOf(size())) {
        return std::nullopt;
    }
    const auto text = list.selectedText();
    const bool isOther = text == newItem || std::ranges::find(below_, text) != below_.end();
    return isOther ? std::nullopt : std::optional(*row - rowOf(0));
}

std::optional<std::size_t> EditableList::namedRecord() const {
    return list.selectedText().empty() ? std::nullopt : selectedRecord();
}

void EditableList::enableButtons(bool enabled) {
    editButton.setEnabled(enabled);
    deleteButton.setEnabled(enabled);
}

void EditableList::setKnown(bool known) {
    known_ = known;
    if (onKnown) {
        onKnown();
    }
}

void EditableList::rowSelected() {
    followSelection();
    if (list.selectedText() == newItem && std::ranges::find(below_, newItem) != below_.end()) {
        make();
    }
    afterSelection();
}

void EditableList::editPressed() {
    if (const auto record = namedRecord()) {
        edit(*record);
    }
}

void EditableList::deletePressed() {
    const auto record = namedRecord();
    const auto question = deleteQuestion();
    if (record && (question.empty() || confirmDelete(list.form(), question, name(*record)))) {
        remove(*record);
    }
}

} // namespace forms
