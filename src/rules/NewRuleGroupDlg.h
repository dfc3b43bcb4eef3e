#pragma once

#include "forms/Button.h"
#include "forms/EditBox.h"
#include "forms/ListView.h"
#include "forms/RecordForm.h"
#include "protocol/rules/RuleEntry.h"
#include "protocol/rules/RuleGroup.h"
#include "rules/RuleEntryPlace.h"

#include <vector>

namespace rules {

// Creates or edits a rule group with its entries. A new group is on the server as soon as the form opens, because its
// entries need an owner; until the form ends it is there without a name, visible to everybody.
class NewRuleGroupDlg final : public forms::RecordForm<protocol::RuleGroupRecord> {
public:
    explicit NewRuleGroupDlg(platform::Platform& platform, std::optional<Record> edited = {});

    forms::EditBox name{*this, u"Group Name", {.limit = 64}};
    forms::EditBox comment{*this, u"Group Comment", {.limit = 255}};
    forms::ListView entries{*this, u"Rules"};
    forms::Button addButton{*this, u"Add..."};
    forms::Button removeButton{*this, u"Remove"};
    forms::Button editButton{*this, u"Edit..."};

protected:
    void onInitDialog() override;
    bool take() override;
    void addRecord(client::CQVXAdminClass& client) override { updateRecord(client); }
    void updateRecord(client::CQVXAdminClass& client) override { client.updateRuleGroup(record_); }
    void onCancel() override;

private:
    RuleEntryPlace place() { return {.entries = entries_, .ownerId = record_.id, .ownerNumber = 0, .parentId = {}}; }
    // Null without a selection, and for an entry without an id.
    [[nodiscard]] const protocol::RuleEntryRecord* selectedEntry() const;
    void listEntries();
    void showEntries();
    void enableButtons();
    void add();
    void remove();
    void edit();
    void editPageLimit(const protocol::RuleEntryRecord& entry);
    void editPricePlan(const protocol::RuleEntryRecord& entry);

    std::vector<protocol::RuleEntryRecord> entries_;
};

} // namespace rules
