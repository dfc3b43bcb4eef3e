#pragma once

#include "client/CQVXAdminClass.h"
#include "console/CBaseNodeItem.h"
#include "console/RecordCell.h"
#include "wire/WireUuid.h"

#include <array>
#include <cstdint>
#include <string>
#include <utility>

namespace console {

// The commands that rows of most lists have: their entries, the question asked before deleting, and the keys pressed
// afterwards.
struct RowCommands {
    MenuEntry edit{};
    MenuEntry remove{};
    const char16_t* question = u"";
    KeySequence keysAfterEdit{platform::Key::f5, platform::Key::f5};
    KeySequence keysAfterRemove{platform::Key::tab, platform::Key::up, platform::Key::down, platform::Key::f5};
};

// The base of a class T whose nodes stand for a record of the server each, as rows of a list. T declares as constants
// the `cells` after the name and its `rowCommands`, as `Dialog` the form that edits the record, made as a
// Dialog(platform, record), and implements how the server deletes it. If the record's name or key is not in `name` or
// `id`, T has its own nameOf or keyOf.
template <class T, class RecordType>
class RecordRow : public CBaseNodeItem<T> {
public:
    using Record = RecordType;

    RecordRow(platform::Platform& platform, Record record) : CBaseNodeItem<T>(platform), record_(std::move(record)) {
        this->setDisplayName(T::nameOf(record_));
    }

    static const wire::WideString& nameOf(const Record& record) { return record.name; }
    static const std::string& keyOf(const std::string& id) { return id; }
    static std::string keyOf(const wire::Uuid& id) { return wire::toText(id); }
    static std::string keyOf(const Record& record) { return keyOf(record.id); }

    [[nodiscard]] std::string refreshKey() const override { return T::keyOf(record_); }
    const char16_t* GetResultPaneColInfo(std::int32_t column) override {
        const auto* const cell = cellOf(column);
        return cell != nullptr ? cell->textOf(record_) : CBaseNodeItem<T>::GetResultPaneColInfo(column);
    }
    [[nodiscard]] std::optional<std::int64_t> sortValue(std::int32_t column) const override {
        const auto* const cell = cellOf(column);
        return cell != nullptr ? cell->sortValueOf(record_) : std::nullopt;
    }

protected:
    const Record& record() const { return record_; }
    // Does nothing if T has no Dialog.
    virtual void openEditor() {
        if constexpr (requires { typename T::Dialog; }) {
            typename T::Dialog dialog(this->platform(), record_);
            this->runModal(dialog);
        }
    }
    virtual void deleteRecord(client::CQVXAdminClass& client) = 0;

    std::span<const NodeCommand<T>> commands() const override {
        static constexpr std::array table{NodeCommand<T>{.entry = T::rowCommands.edit, .run = &RecordRow::edit},
                                          NodeCommand<T>{.entry = T::rowCommands.remove, .run = &RecordRow::remove}};
        return table;
    }
    Result edit(CommandOrigin /*origin*/) {
        openEditor();
        this->selectAndPress(this->parentRow(), T::rowCommands.keysAfterEdit);
        return Result::ok;
    }
    Result remove(CommandOrigin /*origin*/) {
        if (!this->confirm(T::rowCommands.question)) {
            return Result::notDone;
        }
        client::CQVXAdminClass client;
        deleteRecord(client);
        this->press(T::rowCommands.keysAfterRemove);
        return Result::ok;
    }

private:
    // Null for the name column and beyond the last column.
    static const RecordCell<Record>* cellOf(std::int32_t column) {
        const auto place = static_cast<std::size_t>(column) - 1; // wraps for an invalid column
        return place < T::cells.size() ? &T::cells[place] : nullptr;
    }

    Record record_;
};

} // namespace console
