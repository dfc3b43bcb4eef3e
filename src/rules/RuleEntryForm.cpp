#include "rules/RuleEntryForm.h"

#include "protocol/rules/RuleEntry.h"

#include <utility>

namespace rules {

RuleEntryForm::RuleEntryForm(platform::Platform& platform, RuleEntryPlace place, std::optional<Record> edited,
                             RuleEntryFields::Ways ways)
    : RecordForm(platform, {u"Add Rule", u"Add Rule"}, std::move(edited), newEntryAt(place)),
      fields(*this, record_, ways),
      place_(std::move(place)) {}

RuleEntryPlace RuleEntryForm::placeToWrite() const {
    auto place = place_;
    if (record_.type == protocol::ruleEntryType::ruleGroup) {
        place.ownerId = record_.targetId;
    }
    return place;
}

} // namespace rules
