#pragma once

#include "platform/Platform.h"
#include "rules/RuleObjects.h"

#include <vector>

namespace rules {

// The page limits that an entry can apply.
class PageLimitObjects final : public EditableRuleObjects {
public:
    explicit PageLimitObjects(platform::Platform& platform) : platform_(platform) {}

    std::u16string_view label() const override { return u"Limits"; }
    std::u16string_view blankText() const override { return u"Limit field should not be blank!"; }
    std::u16string_view deleteQuestion() const override {
        return u"Are you sure you want to delete this Page Limit rule?";
    }

    void read() override;
    std::size_t size() const override { return ids_.size(); }
    const wire::WideString& name(std::size_t row) const override { return names_[row]; }
    std::string id(std::size_t row) const override { return ids_[row]; }

    bool make(const protocol::RuleEntryRecord& entry) override;
    // Throws what getPageLimit throws when the limit has gone.
    void edit(std::size_t row, const protocol::RuleEntryRecord& entry) override;
    void remove(std::size_t row) override;

private:
    platform::Platform& platform_;
    std::vector<std::string> ids_;
    std::vector<wire::WideString> names_;
};

} // namespace rules
