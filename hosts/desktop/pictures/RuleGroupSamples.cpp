#include "hosts/desktop/pictures/RuleGroupSamples.h"

#include "client/CQVXAdminClass.h"
#include "rules/AddRuleEntryDlg.h"
#include "rules/AffectedDlg.h"
#include "rules/CNewRuleDialog.h"
#include "rules/NewRuleGroupDlg.h"

#include <algorithm>
#include <utility>

namespace desktop {
namespace {

struct FilledGroup {
    protocol::RuleGroupRecord group;
    std::vector<protocol::RuleEntryRecord> entries;
};

rules::RuleEntryPlace placeIn(const protocol::RuleGroupRecord& group) {
    static std::vector<protocol::RuleEntryRecord> entries; // of an opener
    return {.entries = entries, .ownerId = group.id, .ownerNumber = 0, .parentId = {}};
}

// The group with the most entries.
FilledGroup fullestGroup() {
    client::CQVXAdminClass client;
    std::vector<protocol::RuleGroupRecord> groups;
    client.listRuleGroups(groups);
    FilledGroup fullest;
    for (const auto& group : groups) {
        std::vector<protocol::RuleEntryRecord> entries;
        client.listRuleEntries(group.id, 0, entries);
        if (entries.size() > fullest.entries.size()) {
            fullest = {.group = group, .entries = std::move(entries)};
        }
    }
    return fullest;
}

std::unique_ptr<forms::Form> groupToEdit(platform::Platform& platform) {
    return std::make_unique<rules::NewRuleGroupDlg>(platform, fullestGroup().group);
}

void selectAnEntry(forms::Form& form) {
    dynamic_cast<rules::NewRuleGroupDlg&>(form).rules.list.select(1);
    dynamic_cast<rules::NewRuleGroupDlg&>(form).rules.list.userSelected(1);
}

template <rules::AddRuleEntryDlg::Mode mode>
std::unique_ptr<forms::Form> entryToMake(platform::Platform& platform) {
    return std::make_unique<rules::AddRuleEntryDlg>(platform, mode, placeIn({}));
}

void applyALimit(forms::Form& form) {
    auto& fields = dynamic_cast<rules::AddRuleEntryDlg&>(form).fields;
    enter(fields.name, u"Students print little");
    enter(fields.comment, u"Ten pages a job, all but the staff");
    fields.affected.list.select(1);
    fields.affected.list.userSelected(1);
}

void parsePrintJobs(forms::Form& form) {
    auto& fields = dynamic_cast<rules::AddRuleEntryDlg&>(form).fields;
    fields.type.selectText(u"Parse print job");
    fields.type.userSelected(fields.type.selection().value_or(0));
    enter(fields.name, u"Count pages");
}

std::unique_ptr<forms::Form> entryToEdit(platform::Platform& platform) {
    const auto [group, entries] = fullestGroup();
    const auto found = std::ranges::find_if(entries, [](const auto& entry) { return !entry.comment.empty(); });
    return std::make_unique<rules::CNewRuleDialog>(platform, placeIn(group),
                                                   found != entries.end() ? *found : entries.at(0));
}

std::unique_ptr<forms::Form> partyToEdit(platform::Platform& platform) {
    std::vector<protocol::AffectedRecord> affected;
    client::CQVXAdminClass client;
    client.listAffected(affected);
    return std::make_unique<rules::AffectedDlg>(platform, affected.at(0));
}

void leave(forms::Form& /*form*/) {}

} // namespace

std::vector<Sample> ruleGroupSamples() {
    using Mode = rules::AddRuleEntryDlg::Mode;
    return {
        {"rule-group", groupToEdit, selectAnEntry},
        {"rule-entry", entryToMake<Mode::group>, applyALimit},
        {"rule-entry-without-object", entryToMake<Mode::group>, parsePrintJobs},
        {"rule-entry-on-region", entryToMake<Mode::place>, leave},
        {"rule-entry-edited", entryToEdit, leave},
        {"affected", partyToEdit, leave},
    };
}

} // namespace desktop
