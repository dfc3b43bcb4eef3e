#pragma once

#include "protocol/rules/RuleEntry.h"
#include "rules/SavedChoice.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace forms {
class Form;
} // namespace forms

namespace rules {

// The objects of one kind that a rule entry can refer to, as the server has them, and the dialogs that create and edit
// them. The form is the one in which they are chosen, the entry the one that it edits.
class RuleObjects {
public:
    struct Texts {
        std::u16string_view label;          // of a list of them
        std::u16string_view blank;          // the message when none is chosen
        std::u16string_view deleteQuestion; // empty if they can't be deleted
    };

    RuleObjects(const RuleObjects&) = delete;
    RuleObjects& operator=(const RuleObjects&) = delete;
    virtual ~RuleObjects() = default;

    // The objects for a type of rule entry; null for a type without objects.
    static std::unique_ptr<RuleObjects> ofType(std::uint8_t type);

    [[nodiscard]] bool editable() const { return !texts.deleteQuestion.empty(); }

    // Reads them again; false when there is no connection.
    virtual bool read() = 0;
    [[nodiscard]] virtual std::size_t size() const = 0;
    [[nodiscard]] virtual const wire::WideString& name(std::size_t row) const = 0;
    [[nodiscard]] virtual std::string id(std::size_t row) const = 0;

    // False when the user has cancelled.
    virtual bool make(forms::Form& /*form*/, const protocol::RuleEntryRecord& /*entry*/) { return false; }
    virtual void edit(forms::Form& /*form*/, std::size_t /*row*/, const protocol::RuleEntryRecord& /*entry*/) {}
    virtual void remove(std::size_t /*row*/) {}

    const Texts texts;
    // What their list selects when it is filled.
    SavedChoice saved;

protected:
    explicit RuleObjects(Texts itsTexts) : texts(itsTexts) {}
};

} // namespace rules
