#pragma once

#include "forms/Button.h"
#include "forms/ChoiceList.h"
#include "forms/EditBox.h"
#include "forms/Group.h"
#include "forms/RecordForm.h"
#include "protocol/rules/PageLimit.h"
#include "rules/MessageControl.h"
#include "rules/PriceBox.h"

#include <string>

namespace rules {

// Creates or edits a page limit: which print jobs it applies to, how much they may print, and what happens to a job
// beyond that.
class PageLimitDlg final : public forms::RecordForm<protocol::PageLimitRecord> {
public:
    explicit PageLimitDlg(platform::Platform& platform, std::optional<Record> edited = {});

    forms::Group general{*this, u"Rule"};
    forms::EditBox name{general, u"Name", {.limit = 64}};
    forms::EditBox comment{general, u"Comment", {.limit = 255}};
    forms::Group jobs{*this, u"Print jobs"};
    forms::EditBox document{jobs, u"Document"};
    forms::ChoiceList<std::uint16_t> format{jobs, u"Format", {{anyFormat, u"Any"}}};
    forms::ChoiceList<std::uint8_t> color{jobs,
                                          u"Color",
                                          {{protocol::limitedColor::any, u"Any"},
                                           {protocol::limitedColor::blackAndWhite, u"B/W"},
                                           {protocol::limitedColor::color, u"Color"}}};
    forms::ChoiceList<std::uint8_t> duplex{jobs,
                                           u"Duplex",
                                           {{protocol::limitedDuplex::any, u"Any"},
                                            {protocol::limitedDuplex::no, u"No"},
                                            {protocol::limitedDuplex::yes, u"Yes"}}};
    forms::Group maximum{*this, u"Limit"};
    forms::EditBox maxPages{maximum, u"Max pages"};
    PriceBox maxCost{maximum, platform().locale, u"Max cost"};
    forms::ChoiceList<std::uint8_t> enforce{maximum, u"Enforce", {{0, u"No"}, {1, u"Yes"}}};
    forms::EditBox priority{maximum, u"Prio"};
    forms::Group beyond{*this, u"Beyond the limit"};
    // The last two are in the reverse order of their numbers; this must stay.
    forms::ChoiceList<std::uint8_t> action{beyond,
                                           u"Action",
                                           {{protocol::limitAction::nothing, u"Do nothing"},
                                            {protocol::limitAction::allow, u"Allow"},
                                            {protocol::limitAction::remove, u"Delete"},
                                            {protocol::limitAction::move, u"Move"},
                                            {protocol::limitAction::pause, u"Pause"},
                                            {protocol::limitAction::requirePin, u"Require PIN-Code"},
                                            {protocol::limitAction::divert, u"Printjob divert"}}};
    forms::EditBox destination{beyond, u"Destination", {.readOnly = true}};
    forms::Button searchButton{beyond, u"..."};
    MessageControl message{beyond, {wire::WideString(MessageControl::newItem)}};

protected:
    void onInitDialog() override;
    bool take() override;
    void addRecord(client::CQVXAdminClass& client) override { client.addPageLimit(record_); }
    void updateRecord(client::CQVXAdminClass& client) override { client.updatePageLimit(record_); }

private:
    static constexpr std::uint16_t anyFormat = 0;

    void showLimit();
    void showMessage();
    void showDestination();
    void allowOk();
    void actionSelected();
    void searchDestination();
    void takeJobs();
    // These two return false after saying what is missing.
    bool takeDestination();
    bool takePriority();

    bool knowsDestination_; // whether the name of the limit's queue is loaded
    std::string pickedId_;  // of the queue found by the search
    wire::WideString pickedName_;
};

} // namespace rules
