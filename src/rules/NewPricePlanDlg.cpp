#include "rules/NewPricePlanDlg.h"

#include "client/CQVXAdminClass.h"
#include "client/rules/NewRecord.h"
#include "forms/Questions.h"
#include "rules/PriceText.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>

namespace rules {
namespace {

using protocol::PricePlanRecord;

PricePlanRecord newPlan() {
    auto plan = client::newRecord<PricePlanRecord>();
    plan.defaultPrice = plan.colorMultiplier = plan.duplexMultiplier = plan.copyMultiplier = 1;
    plan.vat = 2500;
    return plan;
}

} // namespace

NewPricePlanDlg::NewPricePlanDlg(platform::Platform& platform)
    : NewPricePlanDlg(platform, true, newPlan(), std::nullopt) {}

NewPricePlanDlg::NewPricePlanDlg(platform::Platform& platform, PricePlanRecord plan)
    : NewPricePlanDlg(platform, false, std::move(plan), std::nullopt) {}

NewPricePlanDlg::NewPricePlanDlg(platform::Platform& platform, Opener opener)
    : NewPricePlanDlg(platform, true, newPlan(), std::move(opener)) {}

NewPricePlanDlg::NewPricePlanDlg(platform::Platform& platform, Opener opener, PricePlanRecord plan)
    : NewPricePlanDlg(platform, false, std::move(plan), std::move(opener)) {}

NewPricePlanDlg::NewPricePlanDlg(platform::Platform& platform, bool isNew, PricePlanRecord plan,
                                 std::optional<Opener> opener)
    : Form(platform, u"New Price Plan"),
      isNew_(isNew),
      plan_(std::move(plan)),
      opener_(std::move(opener)),
      knowsPrices_(isNew) {
    multipliers.setBeside(general);
    scanMultiplier.box.setLimit(64);
    papers.onChange = [this] { okButton().setEnabled(knowsPrices_ && !papers.updating()); };
}

void NewPricePlanDlg::onInitDialog() {
    for (const auto* const method : {u"Log", u"Wallet", u"External Debit", u"Wallet and external debit"}) {
        payMethod.addItem(method);
    }
    papers.open();
    showPlan();
    if (isNew_) {
        return;
    }
    setTitle(u"Edit Priceplan");
    client::CQVXAdminClass client;
    std::vector<protocol::PriceEntryRecord> prices;
    knowsPrices_ = client.listPriceEntries(plan_.id, prices);
    papers.setRows(std::move(prices));
}

void NewPricePlanDlg::showPlan() {
    name.setText(plan_.name);
    comment.setText(plan_.comment);
    payMethod.select(plan_.payMethod);
    defaultPrice.show(plan_.defaultPrice);
    colorMultiplier.show(plan_.colorMultiplier);
    duplexMultiplier.show(plan_.duplexMultiplier);
    copyMultiplier.show(plan_.copyMultiplier);
    scanMultiplier.show(plan_.scanMultiplier);
    const auto& locale = platform().locale;
    std::array<char, 16> percent{};
    std::snprintf(percent.data(), percent.size(), "%u.%02u", plan_.vat / 100, plan_.vat % 100);
    shownVat_ = formatAmount(locale, parsePrice(locale, wire::toWide(percent.data())));
    vat.setText(shownVat_);
}

void NewPricePlanDlg::onOk() {
    if (name.text().empty()) {
        forms::refuseBlank(name, u"Name field should not be blank!", u"A required field is empty!");
        return;
    }
    takePlan();
    client::CQVXAdminClass client;
    if (isNew_) {
        client.addPricePlan(plan_, papers.rows());
    } else {
        client.updatePricePlan(plan_, papers.rows());
    }
    if (opener_) {
        tellOpener();
    }
    EndDialog(forms::idOk);
}

void NewPricePlanDlg::takePlan() {
    plan_.name = name.text();
    plan_.comment = comment.text();
    plan_.payMethod = static_cast<std::uint8_t>(payMethod.selection().value_or(0));
    plan_.defaultPrice = defaultPrice.priceOr(plan_.defaultPrice);
    plan_.colorMultiplier = colorMultiplier.priceOr(plan_.colorMultiplier);
    plan_.duplexMultiplier = duplexMultiplier.priceOr(plan_.duplexMultiplier);
    plan_.copyMultiplier = copyMultiplier.priceOr(plan_.copyMultiplier);
    plan_.scanMultiplier = scanMultiplier.priceOr(plan_.scanMultiplier);
    if (!vat.text().empty() && vat.text() != shownVat_) {
        plan_.vat = static_cast<std::uint32_t>(parseHundredths(platform().locale, vat.text()));
    }
}

// The entry is updated on the server, although it may not exist there yet if the rule is new; this must stay.
void NewPricePlanDlg::tellOpener() {
    opener_->entry.targetId = plan_.id;
    client::CQVXAdminClass client;
    client.updateRuleEntry(opener_->entry);
    client.listPricePlans(opener_->plans);
    opener_->saved.become(plan_.name, opener_->plans, plan_.id, &PricePlanRecord::id);
}

} // namespace rules
