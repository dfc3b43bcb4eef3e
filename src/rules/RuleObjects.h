#pragma once

#include "protocol/rules/RuleEntry.h"
#include "rules/SavedChoice.h"
#include "wire/Text.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace rules {

class EditableRuleObjects;

// The objects of one kind that a rule entry can point at, as the server has them.
class RuleObjects {
public:
    RuleObjects() = default;
    RuleObjects(const RuleObjects&) = delete;
    RuleObjects& operator=(const RuleObjects&) = delete;
    virtual ~RuleObjects() = default;

    virtual std::u16string_view label() const = 0;     // of a list of them
    virtual std::u16string_view blankText() const = 0; // what a person is told who has chosen none
    // Null when a dialog of a rule can only choose among them.
    virtual EditableRuleObjects* editable() { return nullptr; }

    // Reads them anew.
    virtual void read() = 0;
    virtual std::size_t size() const = 0;
    virtual const wire::WideString& name(std::size_t row) const = 0;
    virtual std::string id(std::size_t row) const = 0;

    // What a list of them goes back to when it is filled.
    SavedChoice saved;
};

// The same where a dialog of a rule also makes, edits and deletes them. The entry is the one that the dialog is about.
class EditableRuleObjects : public RuleObjects {
public:
    virtual std::u16string_view deleteQuestion() const = 0;
    EditableRuleObjects* editable() final { return this; }

    // False when the person has cancelled.
    virtual bool make(const protocol::RuleEntryRecord& entry) = 0;
    virtual void edit(std::size_t row, const protocol::RuleEntryRecord& entry) = 0;
    virtual void remove(std::size_t row) = 0;
};

} // namespace rules
