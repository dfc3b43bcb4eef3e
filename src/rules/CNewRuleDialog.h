#pragma once

#include "forms/EditBox.h"
#include "forms/Form.h"
#include "rules/AffectedList.h"
#include "rules/RuleEntryPlace.h"

namespace rules {

// Edits a rule entry of a rule group that refers to nothing that could be edited instead, or creates one.
class CNewRuleDialog final : public forms::Form {
public:
    CNewRuleDialog(platform::Platform& platform, RuleEntryPlace place);
    CNewRuleDialog(platform::Platform& platform, RuleEntryPlace place, protocol::RuleEntryRecord entry);

    forms::DropList type{*this, u"Type"};
    forms::EditBox name{*this, u"Name", {.limit = 64}};
    forms::EditBox comment{*this, u"Comment", {.limit = 255}};
    AffectedList affected{*this, AffectedList::EmptyRow::none};

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
