#pragma once

#include "forms/ListView.h"
#include "platform/Locale.h"
#include "protocol/rules/PricePlan.h"

#include <cstddef>
#include <vector>

namespace rules {

// The rows of a price plan: which of them may coexist, and how they are listed.
class PriceTable {
public:
    [[nodiscard]] const std::vector<protocol::PriceEntryRecord>& rows() const { return rows_; }
    void setRows(std::vector<protocol::PriceEntryRecord> rows) { rows_ = std::move(rows); }

    // Silently drops a row for a paper or area that already has a price; only absolute prices of a paper may coexist
    // with those of another kind.
    void add(protocol::PriceEntryRecord row);
    // Does not check for duplicates. Throws std::out_of_range for a row that does not exist.
    void replace(std::size_t row, protocol::PriceEntryRecord with);
    // Removes every row of the paper or area, whatever its kind.
    void removePaper(std::uint16_t paperCode);

    static std::vector<forms::ListColumn> columns();
    [[nodiscard]] std::vector<forms::ListRow> listRows(const platform::Locale& locale) const;

private:
    std::vector<protocol::PriceEntryRecord> rows_;
};

} // namespace rules
