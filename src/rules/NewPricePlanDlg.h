#pragma once

#include "forms/Form.h"
#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleEntry.h"
#include "rules/PapersGroup.h"
#include "rules/SavedChoice.h"

#include <optional>
#include <vector>

namespace rules {

// Creates or edits a price plan: its general figures, and the prices of papers and areas.
class NewPricePlanDlg final : public forms::Form {
public:
    // The dialog of a rule that opened this one and is updated with the result. All of it outlives the form.
    struct Opener {
        std::vector<protocol::PricePlanRecord>& plans; // read again once the plan is written
        SavedChoice& saved;                            // set to the plan
        protocol::RuleEntryRecord entry;               // its target becomes the plan
    };

    explicit NewPricePlanDlg(platform::Platform& platform);
    NewPricePlanDlg(platform::Platform& platform, protocol::PricePlanRecord plan);
    NewPricePlanDlg(platform::Platform& platform, Opener opener);
    NewPricePlanDlg(platform::Platform& platform, Opener opener, protocol::PricePlanRecord plan);

    // As it was sent to the server, once the form has ended with OK.
    [[nodiscard]] const protocol::PricePlanRecord& plan() const { return plan_; }

    forms::Group general{*this, u"Plan"};
    forms::EditBox name{general, u"Name", {.limit = 64}};
    forms::EditBox comment{general, u"Comment", {.limit = 128}};
    forms::DropList payMethod{general, u"Pay method"};
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
    void onOk() override;

private:
    NewPricePlanDlg(platform::Platform& platform, bool isNew, protocol::PricePlanRecord plan,
                    std::optional<Opener> opener);

    void showPlan();
    void takePlan();
    void tellOpener();

    bool isNew_;
    protocol::PricePlanRecord plan_;
    std::optional<Opener> opener_;
    bool knowsPrices_; // whether the server's prices are loaded: without them the plan would lose them
    wire::WideString shownVat_;
};

} // namespace rules
