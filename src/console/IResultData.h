#pragma once

#include "console/ItemFields.h"
#include "console/Result.h"

namespace console {

// The rows of the result pane. A console keeps the node of each row alive while it shows it.
class IResultData {
public:
    virtual ~IResultData() = default;

    // Adds a row and writes its id to row.itemID; an id that the row already has is kept if it is free.
    virtual Result InsertItem(ResultItemFields& row) = 0;
    virtual Result DeleteItem(ResultId itemId, std::int32_t column) = 0;
    // Redraws one row in place, its texts and its image.
    virtual Result UpdateItem(ResultId itemId) = 0;
    virtual Result DeleteAllRsltItems() = 0;
};

} // namespace console
