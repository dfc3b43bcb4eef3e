#pragma once

#include "forms/Button.h"
#include "forms/DropList.h"
#include "forms/EditBox.h"
#include "forms/Form.h"
#include "forms/Group.h"
#include "protocol/rules/PageLimit.h"
#include "protocol/rules/RuleEntry.h"
#include "rules/MessageControl.h"
#include "rules/PriceBox.h"
#include "rules/SavedChoice.h"

#include <optional>
#include <string>
#include <vector>

namespace rules {

// Creates or edits a page limit: which print jobs it applies to, how much they may print, and what happens to a job
// beyond that.
class PageLimitDlg final : public forms::Form {
public:
    // The dialog of a rule that opened this one and is updated with the result. All of it outlives the form.
    struct Opener {
        std::vector<std::string>& ids;        // both read again once the limit is written
        std::vector<wire::WideString>& names; // in the order of the ids
        SavedChoice& saved;                   // set to the limit
        protocol::RuleEntryRecord entry;      // unlike with a price plan, its target stays
    };

    explicit PageLimitDlg(platform::Platform& platform);
    PageLimitDlg(platform::Platform& platform, protocol::PageLimitRecord limit);
    PageLimitDlg(platform::Platform& platform, Opener opener);
    PageLimitDlg(platform::Platform& platform, Opener opener, protocol::PageLimitRecord limit);

    // As it was sent to the server, once the form has ended with OK.
    [[nodiscard]] const protocol::PageLimitRecord& limit() const { return limit_; }

    forms::Group general{*this, u"Rule"};
    forms::EditBox name{general, u"Name", {.limit = 64}};
    forms::EditBox comment{general, u"Comment", {.limit = 255}};
    forms::Group jobs{*this, u"Print jobs"};
    forms::EditBox document{jobs, u"Document"};
    forms::DropList format{jobs, u"Format"};
    forms::DropList color{jobs, u"Color"};
    forms::DropList duplex{jobs, u"Duplex"};
    forms::Group maximum{*this, u"Limit"};
    forms::EditBox maxPages{maximum, u"Max pages"};
    PriceBox maxCost{maximum, platform().locale, u"Max cost"};
    forms::DropList enforce{maximum, u"Enforce"};
    forms::EditBox priority{maximum, u"Prio"};
    forms::Group beyond{*this, u"Beyond the limit"};
    forms::DropList action{beyond, u"Action"};
    forms::EditBox destination{beyond, u"Destination", {.readOnly = true}};
    forms::Button searchButton{beyond, u"..."};
    MessageControl message{beyond, {wire::WideString(MessageControl::newItem)}};

protected:
    void onInitDialog() override;
    void onOk() override;

private:
    PageLimitDlg(platform::Platform& platform, bool isNew, protocol::PageLimitRecord limit,
                 std::optional<Opener> opener);

    void fillLists();
    void showLimit();
    void showMessage();
    void showDestination();
    void allowOk();
    void actionSelected();
    void searchDestination();
    void takeJobs();
    void takeMaximum();
    // These two return false after saying what is missing.
    bool takeDestination();
    bool takePriority();
    void tellOpener();

    bool isNew_;
    protocol::PageLimitRecord limit_;
    std::optional<Opener> opener_;
    bool knowsDestination_; // whether the name of the limit's queue is loaded
    std::string pickedId_;  // of the queue found by the search
    wire::WideString pickedName_;
};

} // namespace rules
