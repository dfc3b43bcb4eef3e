#pragma once

#include "forms/ChoiceList.h"
#include "forms/EditBox.h"
#include "forms/RecordForm.h"
#include "rules/AffectedList.h"
#include "rules/RuleEntryPlace.h"

namespace rules {

// Edits a rule entry of a rule group that refers to nothing that could be edited instead, or creates one.
class CNewRuleDialog final : public forms::RecordForm<protocol::RuleEntryRecord> {
public:
    CNewRuleDialog(platform::Platform& platform, RuleEntryPlace place, std::optional<Record> edited = {});

    forms::ChoiceList<std::uint8_t> type{*this,
                                         u"Type",
                                         {{protocol::ruleEntryType::pageLimit, u"Page limit"},
                                          {protocol::ruleEntryType::pricePlan, u"Price plan"},
                                          {protocol::ruleEntryType::parsePrintJob, u"Parse print job"},
                                          {protocol::ruleEntryType::snmpQueryPrinter, u"SNMP query printer"},
                                          {protocol::ruleEntryType::clientBilling, u"Client billing"}}};
    forms::EditBox name{*this, u"Name", {.limit = 64}};
    forms::EditBox comment{*this, u"Comment", {.limit = 255}};
    AffectedList affected{*this, AffectedList::EmptyRow::none};

protected:
    void onInitDialog() override;
    bool take() override;
    void addRecord(client::CQVXAdminClass& client) override;
    void updateRecord(client::CQVXAdminClass& client) override { client.updateRuleEntry(record_); }

private:
    RuleEntryPlace place_;
};

} // namespace rules
