#pragma once

#include "forms/ChoiceList.h"
#include "forms/RecordForm.h"
#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleEntry.h"
#include "rules/PapersGroup.h"

namespace rules {

// Creates or edits a price plan: its general figures, and the prices of papers and areas.
class NewPricePlanDlg final : public forms::RecordForm<protocol::PricePlanRecord> {
public:
    explicit NewPricePlanDlg(platform::Platform& platform, std::optional<Record> edited = {});

    forms::Group general{*this, u"Plan"};
    forms::EditBox name{general, u"Name", {.limit = 64}};
    forms::EditBox comment{general, u"Comment", {.limit = 128}};
    forms::ChoiceList<std::uint8_t> payMethod{
        general,
        u"Pay method",
        {{protocol::payMethod::log, u"Log"},
         {protocol::payMethod::wallet, u"Wallet"},
         {protocol::payMethod::externalDebit, u"External Debit"},
         {protocol::payMethod::walletAndExternalDebit, u"Wallet and external debit"}}};
    PriceBox defaultPrice{general, platform().locale, u"Default price"};
    forms::EditBox vat{general, u"VAT (%)"};
    forms::Group multipliers{*this, u"Multipliers"};
    PriceBox colorMultiplier{multipliers, platform().locale, u"Color multiplier"};
    PriceBox duplexMultiplier{multipliers, platform().locale, u"Duplex multiplier"};
    PriceBox copyMultiplier{multipliers, platform().locale, u"Copy multiplier"};
    PriceBox scanMultiplier{multipliers, platform().locale, u"Scan multiplier"};
    PapersGroup papers{*this, platform().locale};

protected:
    void onInitDialog() override;
    bool take() override;
    void addRecord(client::CQVXAdminClass& client) override { client.addPricePlan(record_, papers.rows()); }
    void updateRecord(client::CQVXAdminClass& client) override { client.updatePricePlan(record_, papers.rows()); }

private:
    void showPlan();

    bool knowsPrices_; // whether the server's prices are loaded: without them the plan would lose them
    wire::WideString shownVat_;
};

// Makes a plan the target of the rule entry that it was written for. The entry is updated on the server, although it
// may not exist there yet if the rule is new; this must stay.
void pointAt(const protocol::PricePlanRecord& plan, protocol::RuleEntryRecord entry);

} // namespace rules
