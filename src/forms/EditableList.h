#pragma once

#include "forms/Button.h"
#include "forms/DropList.h"

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace forms {

// A list of records on the server, with buttons that edit and delete the selected one; "<New>" in the list makes one. A
// derived class supplies the records and texts, and sends the changes.
class EditableList {
public:
    static constexpr std::u16string_view newItem = u"<New>";

    EditableList(const EditableList&) = delete;
    EditableList& operator=(const EditableList&) = delete;
    virtual ~EditableList() = default;

    // Whether the records could be read when the list was last filled. Confirming a form without them would write that
    // none is chosen.
    [[nodiscard]] bool known() const { return known_; }
    // Called when known() may have changed.
    std::function<void()> onKnown;
    void setVisible(bool visible);

    DropList list;
    Button editButton;
    Button deleteButton;

protected:
    EditableList(Container& container, std::u16string_view label, std::u16string_view editLabel);

    // An empty row above the records; rows below them, in this order.
    void setOtherRows(bool emptyAbove, std::vector<wire::WideString> below);
    // Reads and lists the records again, and selects the row to go back to.
    void refill();
    // The row of a record.
    [[nodiscard]] std::size_t rowOf(std::size_t record) const { return record + (emptyAbove_ ? 1 : 0); }
    // The record whose row is selected. A record named "<New>", or like another of the rows below, can't be told apart
    // from that row and counts as none.
    [[nodiscard]] std::optional<std::size_t> selectedRecord() const;
    // The same, but also none for a record without a name, which can be neither edited nor deleted.
    [[nodiscard]] std::optional<std::size_t> namedRecord() const;
    void enableButtons(bool enabled);

    // Reads the records; false, or whatever it throws, when that fails.
    virtual bool read() = 0;
    [[nodiscard]] virtual std::size_t size() const = 0;
    [[nodiscard]] virtual const wire::WideString& name(std::size_t record) const = 0;
    // The row that is selected once the list is filled.
    [[nodiscard]] virtual std::optional<std::size_t> rowToGoBackTo() const = 0;
    // Brings the buttons in line with the selection.
    virtual void followSelection() = 0;
    // The question asked before a record is deleted; empty to delete without asking.
    [[nodiscard]] virtual std::u16string_view deleteQuestion() const { return {}; }
    // Called when the user has chosen "<New>" or pressed a button. These three refill the list as needed.
    virtual void make() = 0;
    virtual void edit(std::size_t record) = 0;
    virtual void remove(std::size_t record) = 0;
    // Called after the user has selected a row and the selection has been handled.
    virtual void afterSelection() {}

private:
    void setKnown(bool known);
    void rowSelected();
    void editPressed();
    void deletePressed();

    bool emptyAbove_ = false;
    std::vector<wire::WideString> below_;
    bool known_ = false;
};

} // namespace forms
