#pragma once

#include "console/EditBox.h"
#include "console/Form.h"
#include "rules/AffectedList.h"
#include "rules/RuleEntryPlace.h"

namespace rules {

// Edits a rule entry of a rule group that points at nothing that could be edited instead, or makes one.
class CNewRuleDialog final : public console::Form {
public:
    CNewRuleDialog(console::Platform& platform, RuleEntryPlace place);
    CNewRuleDialog(console::Platform& platform, RuleEntryPlace place, protocol::RuleEntryRecord entry);

    console::DropList type{*this, u"Type"};
    console::EditBox name{*this, u"Name", {.limit = 64}};
    console::EditBox comment{*this, u"Comment", {.limit = 255}};
    AffectedList affected{*this, platform(), AffectedList::EmptyRow::none};

protected:
    void onInitDialog() override;
    void onOk() override;

private:
    // False, with a message, as soon as something is missing.
    bool take();

    RuleEntryPlace place_;
    bool editing_;
    protocol::RuleEntryRecord entry_;
};

} // namespace rules
