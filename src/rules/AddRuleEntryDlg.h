#pragma once

#include "forms/RecordForm.h"
#include "rules/RuleEntryFields.h"
#include "rules/RuleEntryPlace.h"

namespace rules {

// Creates a rule entry inside a rule group, or on a region.
class AddRuleEntryDlg final : public forms::RecordForm<protocol::RuleEntryRecord> {
public:
    enum class Mode : std::uint8_t { place, group };

    AddRuleEntryDlg(platform::Platform& platform, Mode mode, RuleEntryPlace place, std::optional<Record> edited = {});

    RuleEntryFields fields;

protected:
    void onInitDialog() override { fields.open(); }
    bool take() override;
    void addRecord(client::CQVXAdminClass& client) override;
    void updateRecord(client::CQVXAdminClass& client) override { client.updateRuleEntry(record_); }

private:
    [[nodiscard]] RuleEntryPlace placeToWrite() const;

    Mode mode_;
    RuleEntryPlace place_;
};

} // namespace rules
