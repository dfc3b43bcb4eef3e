#pragma once

#include "console/Button.h"
#include "console/DropList.h"
#include "console/EditBox.h"
#include "console/Form.h"
#include "console/Group.h"
#include "protocol/rules/PageLimitRecord.h"
#include "protocol/rules/RuleEntryRecord.h"
#include "rules/MessageControl.h"
#include "rules/PriceBox.h"
#include "rules/SavedChoice.h"

#include <optional>
#include <string>
#include <vector>

namespace rules {

// Makes or edits a page limit: which print jobs it is for, how much they may print, and what becomes of a job beyond.
class PageLimitDlg final : public console::Form {
public:
    // A dialog of a rule, which gets to know what has become of the limits. All of it outlives the form.
    struct Opener {
        std::vector<std::string>& ids;        // both read anew once the limit is written
        std::vector<wire::WideString>& names; // in the order of the ids
        SavedChoice& saved;                   // becomes the limit
        protocol::RuleEntryRecord entry;      // unlike with a price plan, it isn't made to point at the limit
    };

    explicit PageLimitDlg(console::Platform& platform);
    PageLimitDlg(console::Platform& platform, protocol::PageLimitRecord limit);
    PageLimitDlg(console::Platform& platform, Opener opener);
    PageLimitDlg(console::Platform& platform, Opener opener, protocol::PageLimitRecord limit);

    // As it was sent to the server, once the form has ended with OK.
    const protocol::PageLimitRecord& limit() const { return limit_; }

    console::Group general{*this, u"Rule"};
    console::EditBox name{general, u"Name", {.limit = 64}};
    console::EditBox comment{general, u"Comment", {.limit = 255}};
    console::Group jobs{*this, u"Print jobs"};
    console::EditBox document{jobs, u"Document"};
    console::DropList format{jobs, u"Format"};
    console::DropList color{jobs, u"Color"};
    console::DropList duplex{jobs, u"Duplex"};
    console::Group maximum{*this, u"Limit"};
    console::EditBox maxPages{maximum, u"Max pages"};
    PriceBox maxCost{maximum, platform().locale, u"Max cost"};
    console::DropList enforce{maximum, u"Enforce"};
    console::EditBox priority{maximum, u"Prio"};
    console::Group beyond{*this, u"Beyond the limit"};
    console::DropList action{beyond, u"Action"};
    console::EditBox destination{beyond, u"Destination", {.readOnly = true}};
    console::Button searchButton{beyond, u"..."};
    MessageControl message{beyond, platform(), {wire::WideString(MessageControl::newItem)}};

protected:
    void onInitDialog() override;
    void onOk() override;

private:
    PageLimitDlg(console::Platform& platform, bool isNew, protocol::PageLimitRecord limit,
                 std::optional<Opener> opener);

    void fillLists();
    void showLimit();
    void showMessage();
    // False when the queues could not be read.
    bool showDestination();
    void actionSelected();
    void searchDestination();
    void takeJobs();
    void takeMaximum();
    // These two answer false once they have told what is missing.
    bool takeDestination();
    bool takePriority();
    void tellOpener();

    bool isNew_;
    protocol::PageLimitRecord limit_;
    std::optional<Opener> opener_;
    std::string pickedId_; // of the queue that was found
    wire::WideString pickedName_;
};

} // namespace rules
