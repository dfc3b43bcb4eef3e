#include "queues/QueueHead.h"

#include "client/ChangedField.h"

#include <algorithm>
#include <limits>

namespace queues {

using client::PrinterRecordEdit;
using protocol::PrinterRecord;

namespace {

// Only the low 16 bits of a number that is too large are sent; this must stay.
std::uint16_t lowSixteenBits(const wire::WideString& digits) {
    constexpr std::int64_t largest = std::numeric_limits<std::int32_t>::max();
    std::int64_t number = 0;
    for (const char16_t digit : digits) {
        number = std::min(number * 10 + (digit - u'0'), largest);
    }
    return static_cast<std::uint16_t>(number);
}

} // namespace

QueueHead::QueueHead(forms::Container& container)
    : name(container, u"Name"), models(container), timeToLive(container, u"TTL", {.digitsOnly = true}) {
    name.onChange = [this] { setNameMissing(name.text().empty()); };
    models.onKnown = [this] {
        if (onComplete) {
            onComplete();
        }
    };
}

void QueueHead::openForNew() {
    timeToLive.setText(timeToLiveOfNew);
    setNameMissing(true);
    models.fill();
}

void QueueHead::openFor(const PrinterRecord& queue) {
    name.setText(queue.name);
    timeToLive.setText(wire::toWide(std::to_string(queue.timeToLive)));
    models.fillFor(queue.modelId);
}

void QueueHead::takeName(PrinterRecordEdit& edit) const {
    if (!name.text().empty()) {
        change(edit, &PrinterRecord::name, &PrinterRecordEdit::setName, name.text());
    }
}

void QueueHead::takeTimeToLive(PrinterRecordEdit& edit) const {
    if (!timeToLive.text().empty()) {
        change(edit, &PrinterRecord::timeToLive, &PrinterRecordEdit::setTimeToLive, lowSixteenBits(timeToLive.text()));
    }
}

void QueueHead::takeModel(PrinterRecordEdit& edit) const {
    if (auto id = models.modelId()) {
        change(edit, &PrinterRecord::modelId, &PrinterRecordEdit::setModelId, std::move(*id));
    }
}

void QueueHead::takeModelByName(PrinterRecordEdit& edit) const {
    if (models.model.selection()) {
        const auto& rows = models.model.items();
        change(edit, &PrinterRecord::modelId, &PrinterRecordEdit::setModelId,
               std::ranges::find(rows, models.model.selectedText(), &forms::DropListItem::text)->data);
    }
}

void QueueHead::setNameMissing(bool missing) {
    nameMissing_ = missing;
    if (onComplete) {
        onComplete();
    }
}

} // namespace queues
