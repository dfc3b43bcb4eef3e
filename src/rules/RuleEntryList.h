#pragma once

#include "forms/Button.h"
#include "forms/ListView.h"
#include "protocol/rules/RuleEntry.h"
#include "rules/RuleEntryPlace.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace rules {

// The rules of a rule group, a printer, a queue or a region in a dialog, with buttons that add and remove them.
class RuleEntryList {
public:
    using Titles = std::array<std::u16string_view, 3>; // of type, name and whom the rule affects
    // Who words the type of a rule: the server, or the console in words of its own.
    enum class TypeWords : std::uint8_t { ofServer, ofConsole };

    RuleEntryList(forms::Container& container, const Titles& titles, TypeWords words);
    RuleEntryList(const RuleEntryList&) = delete;
    RuleEntryList& operator=(const RuleEntryList&) = delete;

    // Lists the rules of an owner: by its id, or with an empty id of the region with the number.
    void open(std::string ownerId, std::int32_t ownerNumber = 0);
    // Shows the rules as they were read last. Nothing is selected then.
    void show();
    // Selects the rule with the id; nothing if it is not listed.
    void select(std::string_view id);
    // Null without a selection, and for a rule without an id, which can't be named to the server.
    [[nodiscard]] const protocol::RuleEntryRecord* selected() const;
    // For the dialogs that write a rule of this owner. Valid as long as this list.
    [[nodiscard]] RuleEntryPlace place();

    // Runs the dialog that creates a rule; the list is read again afterwards.
    std::function<void()> onAdd;
    // Another rule is selected, or none.
    std::function<void()> onSelection;

    forms::ListView list;
    forms::Button addButton;
    forms::Button removeButton;

private:
    void read();
    void add();
    void remove();
    void followSelection();
    [[nodiscard]] wire::WideString typeText(const protocol::RuleEntryRecord& entry) const;

    TypeWords words_;
    std::string ownerId_;
    std::int32_t ownerNumber_ = 0;
    std::vector<protocol::RuleEntryRecord> entries_;
};

} // namespace rules
