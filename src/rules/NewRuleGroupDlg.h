#pragma once

#include "forms/Button.h"
#include "forms/EditBox.h"
#include "forms/RecordForm.h"
#include "protocol/rules/RuleEntry.h"
#include "protocol/rules/RuleGroup.h"
#include "rules/RuleEntryList.h"

namespace rules {

// Creates or edits a rule group with its entries. A new group is on the server as soon as the form opens, because its
// entries need an owner; until the form ends it is there without a name, visible to everybody.
class NewRuleGroupDlg final : public forms::RecordForm<protocol::RuleGroupRecord> {
public:
    explicit NewRuleGroupDlg(platform::Platform& platform, std::optional<Record> edited = {});

    forms::EditBox name{*this, u"Group Name", {.limit = 64}};
    forms::EditBox comment{*this, u"Group Comment", {.limit = 255}};
    RuleEntryList rules{*this, {u"Rule Type", u"Rule Name", u"Rule Affected"}, RuleEntryList::TypeWords::ofServer};
    forms::Button editButton{*this, u"Edit..."};

protected:
    void onInitDialog() override;
    bool take() override;
    void addRecord(client::CQVXAdminClass& client) override { updateRecord(client); }
    void updateRecord(client::CQVXAdminClass& client) override { client.updateRuleGroup(record_); }
    void onCancel() override;

private:
    void enableEdit();
    void add();
    void edit();
    void editPageLimit(const protocol::RuleEntryRecord& entry);
    void editPricePlan(const protocol::RuleEntryRecord& entry);
};

} // namespace rules
