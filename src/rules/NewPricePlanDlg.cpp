#include "rules/NewPricePlanDlg.h"

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

NewPricePlanDlg::NewPricePlanDlg(platform::Platform& platform, std::optional<Record> edited)
    : RecordForm(platform, {u"New Price Plan", u"Edit Priceplan"}, std::move(edited), newPlan()),
      knowsPrices_(isNew()) {
    multipliers.setBeside(general);
    scanMultiplier.box.setLimit(64);
    vat.onChange = [this] {
        const bool leftAlone = vat.text() == shownVat_;
        vat.setProblem(leftAlone ? wire::WideString() : hundredthsProblem(this->platform().locale, vat.text()));
    };
    papers.onChange = [this] { okButton().setEnabled(knowsPrices_ && !papers.updating()); };
}

void NewPricePlanDlg::onInitDialog() {
    showPlan();
    if (!isNew()) {
        client::CQVXAdminClass client;
        std::vector<protocol::PriceEntryRecord> prices;
        knowsPrices_ = client.listPriceEntries(record_.id, prices);
        papers.setRows(std::move(prices));
    }
}

void NewPricePlanDlg::showPlan() {
    name.setText(record_.name);
    comment.setText(record_.comment);
    if (!payMethod.selectValue(record_.payMethod)) {
        payMethod.select(std::nullopt);
    }
    defaultPrice.show(record_.defaultPrice);
    colorMultiplier.show(record_.colorMultiplier);
    duplexMultiplier.show(record_.duplexMultiplier);
    copyMultiplier.show(record_.copyMultiplier);
    scanMultiplier.show(record_.scanMultiplier);
    const auto& locale = platform().locale;
    std::array<char, 16> percent{};
    std::snprintf(percent.data(), percent.size(), "%u.%02u", record_.vat / 100, record_.vat % 100);
    shownVat_ = formatAmount(locale, parsePrice(locale, wire::toWide(percent.data())));
    vat.setText(shownVat_);
}

bool NewPricePlanDlg::take() {
    if (name.text().empty()) {
        forms::refuseBlank(name, u"Name field should not be blank!", u"A required field is empty!");
        return false;
    }
    record_.name = name.text();
    record_.comment = comment.text();
    record_.payMethod = payMethod.value().value_or(protocol::payMethod::log);
    record_.defaultPrice = defaultPrice.priceOr(record_.defaultPrice);
    record_.colorMultiplier = colorMultiplier.priceOr(record_.colorMultiplier);
    record_.duplexMultiplier = duplexMultiplier.priceOr(record_.duplexMultiplier);
    record_.copyMultiplier = copyMultiplier.priceOr(record_.copyMultiplier);
    record_.scanMultiplier = scanMultiplier.priceOr(record_.scanMultiplier);
    if (!vat.text().empty() && vat.text() != shownVat_) {
        record_.vat = static_cast<std::uint32_t>(parseHundredths(platform().locale, vat.text()));
    }
    return true;
}

void pointAt(const PricePlanRecord& plan, protocol::RuleEntryRecord entry) {
    entry.targetId = plan.id;
    client::CQVXAdminClass client;
    client.updateRuleEntry(entry);
}

} // namespace rules
