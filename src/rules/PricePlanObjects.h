#pragma once

#include "platform/Platform.h"
#include "protocol/rules/PricePlan.h"
#include "rules/RuleObjects.h"

#include <vector>

namespace rules {

// The price plans that an entry can apply.
class PricePlanObjects final : public EditableRuleObjects {
public:
    explicit PricePlanObjects(platform::Platform& platform) : platform_(platform) {}

    std::u16string_view label() const override { return u"Plans"; }
    std::u16string_view blankText() const override { return u"Plan field should not be blank!"; }
    std::u16string_view deleteQuestion() const override {
        return u"Are you sure you want to delete this Price Plan rule?";
    }

    void read() override;
    std::size_t size() const override { return plans_.size(); }
    const wire::WideString& name(std::size_t row) const override { return plans_[row].name; }
    std::string id(std::size_t row) const override { return plans_[row].id; }

    bool make(const protocol::RuleEntryRecord& entry) override;
    void edit(std::size_t row, const protocol::RuleEntryRecord& entry) override;
    void remove(std::size_t row) override;

private:
    platform::Platform& platform_;
    std::vector<protocol::PricePlanRecord> plans_;
};

} // namespace rules
