#pragma once

#include "client/CQVXAdminClass.h"
#include "console/CBaseNodeItem.h"

#include <array>
#include <utility>
#include <vector>

namespace console {

// The base of a class T whose node lists the records of one kind, a Row each, whenever it is shown. T declares as
// constants its `titles` and `newEntry`, the menu entry that makes a record, and implements how the records are listed.
// The Row's Dialog makes one, as a Dialog(platform).
template <class T, class Row>
class RecordList : public CBaseNodeItem<T> {
public:
    using Record = typename Row::Record;

    explicit RecordList(platform::Platform& platform) : CBaseNodeItem<T>(platform) {}

    static constexpr KeySequence keysAfterNew{platform::Key::up, platform::Key::down, platform::Key::f5,
                                              platform::Key::f5};

protected:
    // False when the server did not answer: then there are no rows.
    virtual bool listRecords(client::CQVXAdminClass& client, std::vector<Record>& records) = 0;
    // Does nothing if the Row has no Dialog.
    virtual void openEditor() {
        if constexpr (requires { typename Row::Dialog; }) {
            typename Row::Dialog dialog(this->platform());
            this->runModal(dialog);
        }
    }

    const NodeArray<Row>& recordRows() const { return rows_; }
    void addRow(Record record) {
        rows_.push_back(std::make_shared<Row>(this->platform(), std::move(record)));
        rows_.back()->setParent(*this);
    }

    [[nodiscard]] std::span<const Column> columns() const override { return T::titles; }
    [[nodiscard]] std::vector<NodeBase*> rows() const override { return this->pointersTo(rows_); }
    [[nodiscard]] RowReading rowReading() const override { return RowReading::whenShown; }
    void readRows() override {
        auto before = std::exchange(rows_, {});
        client::CQVXAdminClass client;
        std::vector<Record> records;
        if (listRecords(client, records)) {
            rows_ = this->template rowsFor<Row>(std::move(records), std::move(before));
        }
    }

    std::span<const NodeCommand<T>> commands() const override {
        static constexpr std::array table{
            NodeCommand<T>{.entry = T::newEntry, .run = &RecordList::make, .keys = T::keysAfterNew}};
        return table;
    }
    Result make(CommandOrigin /*origin*/) {
        openEditor();
        this->selectAndPress(this->row(), {});
        return Result::ok;
    }

private:
    NodeArray<Row> rows_;
};

} // namespace console
