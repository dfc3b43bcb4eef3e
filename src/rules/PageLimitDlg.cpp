#include "rules/PageLimitDlg.h"

#include "client/rules/NewRecord.h"
#include "forms/Questions.h"
#include "protocol/rules/PaperCode.h"
#include "rules/SearchDestinationDlg.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace rules {
namespace {

using protocol::PageLimitRecord;

namespace limitAction = protocol::limitAction;

constexpr std::u16string_view missingField = u"Required field is empty";

PageLimitRecord newLimit() {
    auto limit = client::newRecord<PageLimitRecord>();
    limit.priority = 1;
    return limit;
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

PageLimitDlg::PageLimitDlg(platform::Platform& platform, std::optional<Record> edited)
    : RecordForm(platform, {u"New Page Limit Rule", u"Edit Page Limit Rule"}, std::move(edited), newLimit()),
      knowsDestination_(record_.destinationId.empty()) {
    maximum.setBeside(jobs);
    searchButton.setBeside(destination);
    format.offer(protocol::paperSizes);
    enforce.selectValue(1);
    message.onKnown = [this] { allowOk(); };
    action.onSelect = [this] { actionSelected(); };
    searchButton.onPress = [this] { searchDestination(); };
}

void PageLimitDlg::onInitDialog() {
    if (isNew()) {
        priority.setText(decimal(record_.priority));
        message.fill(std::nullopt);
        return;
    }
    showLimit();
    showMessage();
    showDestination();
}

// A limit whose message or queue can't be shown would lose it.
void PageLimitDlg::allowOk() {
    okButton().setEnabled(message.known() && knowsDestination_);
}

void PageLimitDlg::showLimit() {
    name.setText(record_.name);
    comment.setText(record_.comment);
    document.setText(record_.document);
    format.selectValue(record_.format);
    color.selectValue(record_.color);
    duplex.selectValue(record_.duplex);
    maxPages.setText(decimal(record_.maxPages));
    maxCost.showAmount(record_.maxCost);
    enforce.select(record_.enforce == 1 ? 1 : 0);
    priority.setText(decimal(record_.priority));
    action.selectValue(record_.action);
}

// A limit without a message, or whose message no longer exists, is shown with the first one; this must stay.
void PageLimitDlg::showMessage() {
    message.fill(record_.messageId);
    const auto& known = message.messages();
    const auto match = std::ranges::find_if(known, [&](const auto& each) { return each.id == record_.messageId; });
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
    const auto found = std::ranges::find(queues, record_.destinationId, &protocol::FoundQueueRecord::queueId);
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

bool PageLimitDlg::take() {
    if (name.text().empty()) {
        forms::refuseBlank(name, u"Name field shoud not be blank!", missingField);
        return false;
    }
    takeJobs();
    record_.messageId = message.selectedId();
    record_.maxPages = numberAtStart(maxPages.text());
    record_.maxCost = maxCost.priceOr(0);
    record_.action = action.value().value_or(limitAction::nothing);
    record_.enforce = enforce.value().value_or(1);
    return takeDestination() && takePriority();
}

void PageLimitDlg::takeJobs() {
    record_.name = name.text();
    record_.comment = comment.text();
    record_.document = document.text();
    record_.format = format.value().value_or(anyFormat);
    record_.color = color.value().value_or(protocol::limitedColor::any);
    record_.duplex = duplex.value().value_or(protocol::limitedDuplex::any);
}

// A diverted print job has no destination, even where one has been found; this must stay.
bool PageLimitDlg::takeDestination() {
    const bool none = destination.text().empty();
    if (none && record_.action == limitAction::move) {
        forms::refuseBlank(destination, u"Destination field should not be blank, when Move action is selected!",
                           missingField, platform::boxStyle::ok);
        return false;
    }
    record_.destinationId = none || record_.action == limitAction::divert ? std::string() : pickedId_;
    return true;
}

bool PageLimitDlg::takePriority() {
    record_.priority = numberAtStart(priority.text());
    if (priority.text().empty()) {
        messageBox(u"Prio field should not be blank!", wire::WideString(missingField), platform::boxStyle::ok);
        return false;
    }
    return true;
}

} // namespace rules
