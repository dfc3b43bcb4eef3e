#include "rules/MessageControl.h"

#include "client/CQVXAdminClass.h"
#include "rules/NewMessageDlg.h"

#include <algorithm>

namespace rules {

MessageControl::MessageControl(forms::Container& container, std::vector<wire::WideString> extraItems)
    : EditableList(container, u"Message", u"Edit"), extraItems_(extraItems.size()) {
    setOtherRows(false, {extraItems.rbegin(), extraItems.rend()});
}

void MessageControl::fill(const std::optional<wire::Uuid>& currentId) {
    current_ = currentId;
    refill();
}

bool MessageControl::read() {
    messages_.clear();
    return client::CQVXAdminClass().listUserMessages(messages_);
}

std::optional<std::size_t> MessageControl::rowToGoBackTo() const {
    if (messages_.empty()) {
        return std::nullopt;
    }
    const auto match = std::ranges::find_if(messages_, [&](const auto& message) { return message.id == current_; });
    return match != messages_.end() ? static_cast<std::size_t>(match - messages_.begin()) : messages_.size() - 1;
}

void MessageControl::updateButtons(std::optional<std::size_t> row) {
    if (messages_.empty() || !row || *row >= messages_.size() + extraItems_) {
        return;
    }
    const bool isMessage = *row < messages_.size();
    deleteButton.setEnabled(isMessage && !messages_[*row].builtIn);
    editButton.setEnabled(isMessage);
}

std::optional<wire::Uuid> MessageControl::selectedId() const {
    const auto record = namedRecord();
    return record ? std::optional(messages_[*record].id) : std::nullopt;
}

void MessageControl::make() {
    NewMessageDlg dialog(list.form().platform());
    if (list.form().runModal(dialog) == forms::idOk) {
        fill(dialog.record().id);
    }
}

void MessageControl::edit(std::size_t record) {
    NewMessageDlg dialog(list.form().platform(), messages_[record]);
    if (list.form().runModal(dialog) == forms::idOk) {
        fill(dialog.record().id);
    }
}

// At once and without a question, unlike every other delete of the rules; this must stay.
void MessageControl::remove(std::size_t record) {
    client::CQVXAdminClass().deleteUserMessage(messages_[record].id);
    fill(std::nullopt);
}

void MessageControl::afterSelection() {
    if (onSelect) {
        onSelect();
    }
}

} // namespace rules
