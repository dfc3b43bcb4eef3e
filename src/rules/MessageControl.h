#pragma once

#include "forms/EditableList.h"
#include "protocol/rules/UserMessage.h"

namespace rules {

// The list of the user messages in a dialog.
class MessageControl final : public forms::EditableList {
public:
    static constexpr std::u16string_view defaultItem = u"<Default>";

    // The extra items are below the messages, the last of them first, and can be neither edited nor deleted.
    MessageControl(forms::Container& container, std::vector<wire::WideString> extraItems);

    // Reads the messages again and selects the one with the id, or else the last. Without any message nothing is
    // selected, and the buttons stay as they are.
    void fill(const std::optional<wire::Uuid>& currentId);
    // Sets the buttons for a row. A row that does not exist changes nothing, and neither does any row while there are
    // no messages.
    void updateButtons(std::optional<std::size_t> row);

    [[nodiscard]] const std::vector<protocol::UserMessageRecord>& messages() const { return messages_; }
    // The id of the selected message; none for an extra item, for a message without a name and without a selection. A
    // message named like an extra item can't be told apart from it; this must stay.
    [[nodiscard]] std::optional<wire::Uuid> selectedId() const;

    // Called after the user has selected something; a new message, if one was made, is then in the list.
    std::function<void()> onSelect;

private:
    bool read() override;
    [[nodiscard]] std::size_t size() const override { return messages_.size(); }
    [[nodiscard]] const wire::WideString& name(std::size_t record) const override { return messages_[record].name; }
    [[nodiscard]] std::optional<std::size_t> rowToGoBackTo() const override;
    void followSelection() override { updateButtons(list.selection()); }
    void make() override;
    void edit(std::size_t record) override;
    void remove(std::size_t record) override;
    void afterSelection() override;

    std::size_t extraItems_;
    std::optional<wire::Uuid> current_; // the one to select
    std::vector<protocol::UserMessageRecord> messages_;
};

} // namespace rules
