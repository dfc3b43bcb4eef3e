#pragma once

#include "forms/RecordForm.h"
#include "rules/RuleEntryFields.h"
#include "rules/RuleEntryPlace.h"

#include <optional>

namespace rules {

// The base of the dialogs that create a rule entry of any type.
class RuleEntryForm : public forms::RecordForm<protocol::RuleEntryRecord> {
public:
    RuleEntryFields fields;

protected:
    RuleEntryForm(platform::Platform& platform, RuleEntryPlace place, std::optional<Record> edited,
                  RuleEntryFields::Ways ways);

    void onInitDialog() override { fields.open(); }
    bool take() override { return fields.take(); }
    void updateRecord(client::CQVXAdminClass& client) override { client.updateRuleEntry(record_); }

    [[nodiscard]] const RuleEntryPlace& place() const { return place_; }
    // Where the entry belongs as it is sent: one that applies a rule group names that group as its owner, which must
    // stay.
    [[nodiscard]] RuleEntryPlace placeToWrite() const;

private:
    RuleEntryPlace place_;
};

} // namespace rules
