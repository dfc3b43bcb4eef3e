#pragma once

#include "platform/Platform.h"
#include "protocol/rules/ShortId.h"
#include "rules/RuleObjects.h"

#include <vector>

namespace rules {

// The rules about short ids that an entry can apply.
class ShortIdObjects final : public EditableRuleObjects {
public:
    explicit ShortIdObjects(platform::Platform& platform) : platform_(platform) {}

    std::u16string_view label() const override { return u"Short Ids"; }
    std::u16string_view blankText() const override { return u"Short id field should not be blank!"; }
    std::u16string_view deleteQuestion() const override {
        return u"Are you sure you want to delete this Short Id rule?";
    }

    void read() override;
    std::size_t size() const override { return shortIds_.size(); }
    const wire::WideString& name(std::size_t row) const override { return shortIds_[row].name; }
    std::string id(std::size_t row) const override { return wire::toText(shortIds_[row].id); }

    bool make(const protocol::RuleEntryRecord& entry) override;
    void edit(std::size_t row, const protocol::RuleEntryRecord& entry) override;
    void remove(std::size_t row) override;

private:
    // The dialog does not say where the list has it: it is found once the list is read anew.
    void saveChoice(const protocol::ShortIdRecord& shortId);

    platform::Platform& platform_;
    std::vector<protocol::ShortIdRecord> shortIds_;
};

} // namespace rules
