#include "rules/PageLimitDlg.h"

#include "client/CQVXAdminClass.h"
#include "client/rules/NewRecord.h"
#include "forms/Questions.h"
#include "protocol/rules/PaperCode.h"
#include "rules/SearchDestinationDlg.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace rules {
namespace {

using protocol::PageLimitRecord;

namespace limitAction = protocol::limitAction;

struct Action {
    std::u16string_view label;
    std::uint8_t value;
};

// In the order of the list, where the last two are in the reverse order of their numbers; this must stay.
constexpr std::array<Action, 7> actions = {{{u"Do nothing", limitAction::nothing},
                                            {u"Allow", limitAction::allow},
                                            {u"Delete", limitAction::remove},
                                            {u"Move", limitAction::move},
                                            {u"Pause", limitAction::pause},
                                            {u"Require PIN-Code", limitAction::requirePin},
                                            {u"Printjob divert", limitAction::divert}}};

constexpr std::u16string_view missingField = u"Required field is empty";

PageLimitRecord newLimit() {
    auto limit = client::newRecord<PageLimitRecord>();
    limit.priority = 1;
    return limit;
}

void fill(forms::DropList& list, std::initializer_list<std::u16string_view> items, std::size_t selected = 0) {
    for (const auto item : items) {
        list.addItem(wire::WideString(item));
    }
    list.select(selected);
}

// For a list that begins with "Any" and has two more items, whose values are their row numbers.
void selectOneOfThree(forms::DropList& list, std::uint8_t value) {
    list.select(value <= 2 ? value : 0);
}

std::uint8_t oneOfThree(const forms::DropList& list) {
    return static_cast<std::uint8_t>(std::min<std::size_t>(list.selection().value_or(2), 2));
}

wire::WideString decimal(std::uint16_t number) {
    return wire::toWide(std::to_string(number));
}

// The digits at the beginning of a text, cut to 16 bits; without any it is 0, without a message. Both must stay.
std::uint16_t numberAtStart(wire::WideStringView text) {
    std::uint32_t number = 0;
    for (const char16_t unit : text) {
        if (unit < u'0' || unit > u'9') {
            break;
        }
        number = (number * 10 + (unit - u'0')) & 0xFFFF;
    }
    return static_cast<std::uint16_t>(number);
}

} // namespace

PageLimitDlg::PageLimitDlg(platform::Platform& platform) : PageLimitDlg(platform, true, newLimit(), std::nullopt) {}

PageLimitDlg::PageLimitDlg(platform::Platform& platform, PageLimitRecord limit)
    : PageLimitDlg(platform, false, std::move(limit), std::nullopt) {}

PageLimitDlg::PageLimitDlg(platform::Platform& platform, Opener opener)
    : PageLimitDlg(platform, true, newLimit(), std::move(opener)) {}

PageLimitDlg::PageLimitDlg(platform::Platform& platform, Opener opener, PageLimitRecord limit)
    : PageLimitDlg(platform, false, std::move(limit), std::move(opener)) {}

PageLimitDlg::PageLimitDlg(platform::Platform& platform, bool isNew, PageLimitRecord limit,
                           std::optional<Opener> opener)
    : Form(platform, u"New Page Limit Rule"),
      isNew_(isNew),
      limit_(std::move(limit)),
      opener_(std::move(opener)),
      knowsDestination_(limit_.destinationId.empty()) {
    maximum.setBeside(jobs);
    searchButton.setBeside(destination);
    message.onKnown = [this] { allowOk(); };
    action.onSelect = [this] { actionSelected(); };
    searchButton.onPress = [this] { searchDestination(); };
}

void PageLimitDlg::onInitDialog() {
    fillLists();
    if (isNew_) {
        priority.setText(decimal(limit_.priority));
        message.fill(std::nullopt);
        return;
    }
    setTitle(u"Edit Page Limit Rule");
    showLimit();
    showMessage();
    showDestination();
}

// A limit whose message or queue can't be shown would lose it.
void PageLimitDlg::allowOk() {
    okButton().setEnabled(message.known() && knowsDestination_);
}

void PageLimitDlg::fillLists() {
    fill(format, {u"Any"});
    for (const auto& size : protocol::paperSizes) {
        format.addItem(wire::WideString(size.label));
    }
    fill(color, {u"Any", u"B/W", u"Color"});
    fill(duplex, {u"Any", u"No", u"Yes"});
    fill(enforce, {u"No", u"Yes"}, 1);
    for (const auto& each : actions) {
        action.addItem(wire::WideString(each.label));
    }
    action.select(0);
}

void PageLimitDlg::showLimit() {
    name.setText(limit_.name);
    comment.setText(limit_.comment);
    document.setText(limit_.document);
    for (std::size_t row = 0; row < protocol::paperSizes.size(); ++row) {
        if (protocol::paperSizes[row].code == limit_.format) {
            format.select(row + 1);
        }
    }
    selectOneOfThree(color, limit_.color);
    selectOneOfThree(duplex, limit_.duplex);
    maxPages.setText(decimal(limit_.maxPages));
    maxCost.showAmount(limit_.maxCost);
    enforce.select(limit_.enforce == 1 ? 1 : 0);
    priority.setText(decimal(limit_.priority));
    const auto shown = std::ranges::find(actions, limit_.action, &Action::value);
    action.select(shown != actions.end() ? static_cast<std::size_t>(shown - actions.begin()) : 0);
}

// A limit without a message, or whose message no longer exists, is shown with the first one; this must stay.
void PageLimitDlg::showMessage() {
    message.fill(limit_.messageId);
    const auto& known = message.messages();
    const auto match = std::ranges::find_if(known, [&](const auto& each) { return each.id == limit_.messageId; });
    if (!known.empty() && match == known.end()) {
        message.list.select(0);
        message.updateButtons(0);
    }
}

void PageLimitDlg::showDestination() {
    client::CQVXAdminClass client;
    if (knowsDestination_ || !client.searchQueues({})) {
        return;
    }
    const auto& queues = client.foundQueues();
    const auto found = std::ranges::find(queues, limit_.destinationId, &protocol::FoundQueueRecord::queueId);
    if (found != queues.end()) {
        pickedId_ = found->queueId;
        pickedName_ = found->queueName;
        destination.setText(pickedName_);
    }
    knowsDestination_ = true;
    allowOk();
}

void PageLimitDlg::actionSelected() {
    const bool diverts = action.selectedText() == u"Printjob divert";
    if (diverts) {
        destination.setText({});
    }
    destination.setEnabled(!diverts); // but not the button beside it; this must stay
}

void PageLimitDlg::searchDestination() {
    SearchDestinationDlg dialog(platform(), pickedId_, pickedName_);
    if (runModal(dialog) == forms::idOk) {
        destination.setText(pickedName_);
    }
}

void PageLimitDlg::onOk() {
    if (name.text().empty()) {
        forms::refuseBlank(name, u"Name field shoud not be blank!", missingField);
        return;
    }
    takeJobs();
    limit_.messageId = message.selectedId();
    takeMaximum();
    limit_.action = actions.at(action.selection().value_or(0)).value;
    if (!takeDestination()) {
        return;
    }
    limit_.enforce = enforce.selection() == 0 ? 0 : 1;
    if (!takePriority()) {
        return;
    }
    client::CQVXAdminClass client;
    if (isNew_) {
        client.addPageLimit(limit_);
    } else {
        client.updatePageLimit(limit_);
    }
    if (opener_) {
        tellOpener();
    }
    EndDialog(forms::idOk);
}

void PageLimitDlg::takeJobs() {
    limit_.name = name.text();
    limit_.comment = comment.text();
    limit_.document = document.text();
    const auto paper = format.selection().value_or(0);
    limit_.format = paper == 0 ? std::uint16_t{0} : protocol::paperSizes.at(paper - 1).code;
    limit_.color = oneOfThree(color);
    limit_.duplex = oneOfThree(duplex);
}

void PageLimitDlg::takeMaximum() {
    limit_.maxPages = numberAtStart(maxPages.text());
    limit_.maxCost = maxCost.priceOr(0);
}

// A diverted print job has no destination, even where one has been found; this must stay.
bool PageLimitDlg::takeDestination() {
    const bool none = destination.text().empty();
    if (none && limit_.action == limitAction::move) {
        forms::refuseBlank(destination, u"Destination field should not be blank, when Move action is selected!",
                           missingField, platform::boxStyle::ok);
        return false;
    }
    limit_.destinationId = none || limit_.action == limitAction::divert ? std::string() : pickedId_;
    return true;
}

bool PageLimitDlg::takePriority() {
    limit_.priority = numberAtStart(priority.text());
    if (priority.text().empty()) {
        messageBox(u"Prio field should not be blank!", wire::WideString(missingField), platform::boxStyle::ok);
        return false;
    }
    return true;
}

void PageLimitDlg::tellOpener() {
    client::CQVXAdminClass client;
    client.listPageLimits(opener_->ids, opener_->names);
    opener_->saved.become(limit_.name, opener_->ids, limit_.id);
}

} // namespace rules
