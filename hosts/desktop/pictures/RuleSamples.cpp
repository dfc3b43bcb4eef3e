#include "hosts/desktop/pictures/RuleSamples.h"

#include "client/CQVXAdminClass.h"
#include "rules/NewMessageDlg.h"
#include "rules/NewPricePlanDlg.h"
#include "rules/PageLimitDlg.h"
#include "rules/SearchDestinationDlg.h"
#include "rules/ShortIdDlg.h"

#include <algorithm>

namespace desktop {
namespace {

std::unique_ptr<forms::Form> planToEdit(platform::Platform& platform) {
    client::CQVXAdminClass client;
    std::vector<protocol::PricePlanRecord> plans;
    client.listPricePlans(plans);
    const auto hasPrices = [&client](const protocol::PricePlanRecord& plan) {
        std::vector<protocol::PriceEntryRecord> prices;
        return client.listPriceEntries(plan.id, prices) && !prices.empty();
    };
    const auto found = std::ranges::find_if(plans, hasPrices);
    return std::make_unique<rules::NewPricePlanDlg>(platform, found != plans.end() ? *found : plans.at(0));
}

void priceAbsolutely(rules::NewPricePlanDlg& dialog) {
    enter(dialog.name, u"Plotters");
    enter(dialog.comment, u"By paper and by area");
    auto& papers = dialog.papers;
    papers.multiplierType.userSelected(1);
    papers.paperList.userSelected(0);
    auto& fields = papers.fields;
    double price = 0.02;
    for (auto* const box : {&fields.print.bwSimplex, &fields.print.bwDuplex, &fields.print.colorSimplex,
                            &fields.print.colorDuplex, &fields.copy.bwSimplex, &fields.copy.bwDuplex,
                            &fields.copy.colorSimplex, &fields.copy.colorDuplex, &fields.scan.bw, &fields.scan.color}) {
        box->show(static_cast<float>(price += 0.03));
    }
    papers.addButton.userPressed();
    papers.prices.userSelected(1);
}

void reserveForAWhile(rules::ShortIdDlg& dialog) {
    enter(dialog.name, u"Lobby");
    enter(dialog.comment, u"Visitors fetch their prints by a short id");
    dialog.validFor.setChecked(true);
    dialog.validFor.userChecked(true);
    dialog.reservedFor.choose();
    dialog.reservedFor.userChose();
}

void warn(rules::NewMessageDlg& dialog) {
    enter(dialog.name, u"Quota");
    enter(dialog.caption, u"Your print job has been stopped");
    enter(dialog.text, u"It has more pages than you may print today.\nPlease ask at the reception.");
    dialog.icon.select(2);
}

std::unique_ptr<forms::Form> limitToEdit(platform::Platform& platform) {
    client::CQVXAdminClass client;
    std::vector<std::string> ids;
    std::vector<wire::WideString> names;
    client.listPageLimits(ids, names);
    std::vector<protocol::PageLimitRecord> limits;
    limits.reserve(ids.size());
    for (const auto& id : ids) {
        limits.push_back(client.getPageLimit(id).value());
    }
    const auto found = std::ranges::find_if(limits, [](const auto& limit) { return !limit.destinationId.empty(); });
    return std::make_unique<rules::PageLimitDlg>(platform, found != limits.end() ? *found : limits.at(0));
}

std::unique_ptr<forms::Form> searchForQueues(platform::Platform& platform) {
    static std::string id;
    static wire::WideString name;
    return std::make_unique<rules::SearchDestinationDlg>(platform, id, name);
}

void searchAll(forms::Form& form) {
    dynamic_cast<rules::SearchDestinationDlg&>(form).searchButton.userPressed();
}

} // namespace

std::vector<Sample> ruleSamples() {
    return {
        {"price-plan", planToEdit, [](forms::Form&) {}},
        sample<rules::NewPricePlanDlg>("price-plan-absolute", priceAbsolutely),
        {"page-limit", limitToEdit, [](forms::Form&) {}},
        {"search-destination", searchForQueues, searchAll},
        sample<rules::ShortIdDlg>("short-id", reserveForAWhile),
        sample<rules::NewMessageDlg>("user-message", warn),
    };
}

} // namespace desktop
