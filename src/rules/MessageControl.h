#pragma once

#include "forms/Button.h"
#include "forms/DropList.h"
#include "platform/Platform.h"
#include "protocol/rules/UserMessage.h"

#include <functional>
#include <optional>
#include <vector>

namespace rules {

// The list of the user messages in a dialog, and the buttons that edit and delete them. "<New>" in the list makes one.
class MessageControl {
public:
    static constexpr std::u16string_view newItem = u"<New>";
    static constexpr std::u16string_view defaultItem = u"<Default>";

    // The extra items stand below the messages, the last of them first, and offer nothing to edit or delete.
    MessageControl(forms::Container& container, platform::Platform& platform, std::vector<wire::WideString> extraItems);

    // Reads the messages anew and selects the one with the id, else the last. Without any message nothing is selected,
    // and the buttons stay as they are.
    void fill(const std::optional<wire::Uuid>& currentId);
    // Sets the buttons for a row. A row that is not there changes nothing, and no row does while there are no messages.
    void updateButtons(std::optional<std::size_t> row);

    const std::vector<protocol::UserMessageRecord>& messages() const { return messages_; }
    // That of the selected message; none for an extra item, for a message without a name and without a selection.
    std::optional<wire::Uuid> selectedId() const;

    // The person has selected something, and a new message, if that was asked for, stands in the list.
    std::function<void()> onSelect;

    forms::DropList list;
    forms::Button editButton;
    forms::Button deleteButton;

private:
    // Null where there is nothing to edit or delete.
    const protocol::UserMessageRecord* selectedMessage() const;
    void selected();
    void makeMessage();
    void editMessage();
    void deleteMessage();

    platform::Platform& platform_;
    std::vector<wire::WideString> extraItems_;
    std::vector<protocol::UserMessageRecord> messages_;
};

} // namespace rules
