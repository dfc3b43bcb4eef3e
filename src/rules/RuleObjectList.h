#pragma once

#include "forms/EditableList.h"
#include "rules/RuleObjects.h"

#include <map>

namespace rules {

// The list of objects that a rule entry can refer to, by its type.
class RuleObjectList final : public forms::EditableList {
public:
    // The entry is the one that the dialog edits; it outlives the list.
    RuleObjectList(forms::Container& container, const protocol::RuleEntryRecord& entry);

    // Lists the objects for entries of the type, as the server has them now, or hides everything for a type without
    // objects.
    void showType(std::uint8_t type);
    // Selects the object with the id; if there is none, nothing changes.
    void select(std::string_view id);
    // Makes the entry refer to the selected object, or to none if its type has no objects. False, with a message, when
    // none is selected.
    [[nodiscard]] bool take(protocol::RuleEntryRecord& entry);
    // The name that a later fill selects if no row is saved.
    void saveName(const wire::WideString& name);

private:
    bool read() override { return objects_->read(); }
    [[nodiscard]] std::size_t size() const override { return objects_ != nullptr ? objects_->size() : 0; }
    [[nodiscard]] const wire::WideString& name(std::size_t record) const override { return objects_->name(record); }
    [[nodiscard]] std::optional<std::size_t> rowToGoBackTo() const override;
    void followSelection() override;
    [[nodiscard]] std::u16string_view deleteQuestion() const override { return objects_->texts.deleteQuestion; }
    void make() override;
    void edit(std::size_t record) override;
    void remove(std::size_t record) override;

    const protocol::RuleEntryRecord& entry_;
    std::map<std::uint8_t, std::unique_ptr<RuleObjects>> byType_;
    RuleObjects* objects_ = nullptr; // those that are listed; null for a type without objects
};

} // namespace rules
