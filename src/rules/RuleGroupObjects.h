#pragma once

#include "protocol/rules/RuleGroup.h"
#include "rules/RuleObjects.h"

#include <vector>

namespace rules {

// The rule groups that an entry can apply as a whole.
class RuleGroupObjects final : public RuleObjects {
public:
    std::u16string_view label() const override { return u"Rule group"; }
    std::u16string_view blankText() const override { return u"Rule group should not be blank!"; }

    void read() override;
    std::size_t size() const override { return groups_.size(); }
    const wire::WideString& name(std::size_t row) const override { return groups_[row].name; }
    std::string id(std::size_t row) const override { return groups_[row].id; }

private:
    std::vector<protocol::RuleGroupRecord> groups_;
};

} // namespace rules
