#include "rules/MessageControl.h"

#include "client/CQVXAdminClass.h"
#include "rules/NewMessageDlg.h"

#include <algorithm>
#include <utility>

namespace rules {

MessageControl::MessageControl(forms::Container& container, platform::Platform& platform,
                               std::vector<wire::WideString> extraItems)
    : list(container, u"Message"),
      editButton(container, u"Edit"),
      deleteButton(container, u"Delete"),
      platform_(platform),
      extraItems_(std::move(extraItems)) {
    editButton.setBeside(list);
    deleteButton.setBeside(list);
    list.onSelect = [this] { selected(); };
    editButton.onPress = [this] { editMessage(); };
    deleteButton.onPress = [this] { deleteMessage(); };
}

void MessageControl::fill(const std::optional<wire::Uuid>& currentId) {
    messages_.clear();
    list.clear();
    client::CQVXAdminClass client;
    client.listUserMessages(messages_);
    for (const auto& message : messages_) {
        list.addItem(message.name);
    }
    std::for_each(extraItems_.rbegin(), extraItems_.rend(), [this](const auto& item) { list.addItem(item); });
    if (messages_.empty()) {
        return;
    }
    const auto match = std::ranges::find_if(messages_, [&](const auto& message) { return message.id == currentId; });
    const auto row = match != messages_.end() ? match - messages_.begin() : std::ssize(messages_) - 1;
    list.select(static_cast<std::size_t>(row));
    updateButtons(list.selection());
}

void MessageControl::updateButtons(std::optional<std::size_t> row) {
    if (messages_.empty() || !row || *row >= messages_.size() + extraItems_.size()) {
        return;
    }
    const bool isMessage = *row < messages_.size();
    deleteButton.setEnabled(isMessage && !messages_[*row].builtIn);
    editButton.setEnabled(isMessage);
}

std::optional<wire::Uuid> MessageControl::selectedId() const {
    const auto* const message = selectedMessage();
    return message != nullptr ? std::optional(message->id) : std::nullopt;
}

// A message whose name is empty, or that of an extra item, can't be told from what is none; this must stay.
const protocol::UserMessageRecord* MessageControl::selectedMessage() const {
    const auto row = list.selection();
    const auto text = list.selectedText();
    const bool isNone = text.empty() || std::ranges::find(extraItems_, text) != extraItems_.end();
    return !isNone && *row < messages_.size() ? &messages_[*row] : nullptr;
}

void MessageControl::selected() {
    updateButtons(list.selection());
    if (list.selectedText() == newItem) {
        makeMessage();
    }
    if (onSelect) {
        onSelect();
    }
}

void MessageControl::makeMessage() {
    NewMessageDlg dialog(platform_);
    if (platform_.ui.runModal(dialog, platform_.ui.activeWindow()) == forms::idOk) {
        fill(dialog.message().id);
    }
}

void MessageControl::editMessage() {
    const auto* const message = selectedMessage();
    if (message == nullptr) {
        return;
    }
    NewMessageDlg dialog(platform_, *message);
    if (platform_.ui.runModal(dialog, platform_.ui.activeWindow()) == forms::idOk) {
        fill(dialog.message().id);
    }
}

// At once and without a question, unlike every other delete of the rules; this must stay.
void MessageControl::deleteMessage() {
    const auto* const message = selectedMessage();
    if (message == nullptr) {
        return;
    }
    client::CQVXAdminClass client;
    client.deleteUserMessage(message->id);
    fill(std::nullopt);
}

} // namespace rules
