#pragma once

#include "console/ItemFields.h"
#include "console/Result.h"

#include <string_view>

namespace console {

// The scope tree. A console keeps the node of each row alive (CSnapInItem::shared_from_this of the cookie) while it
// shows it.
class IConsoleNameSpace {
public:
    virtual ~IConsoleNameSpace() = default;

    // Adds a child under row.relativeID and writes the new id to row.ID.
    virtual Result InsertItem(ScopeItemFields& row) = 0;
    // Shows another text for a row until the console next asks the node for its text.
    virtual Result SetItem(ScopeId scopeId, std::u16string_view text) = 0;
    // The first child of a row; 0 and null if there is none.
    virtual Result GetChildItem(ScopeId scopeId, ScopeId& child, CSnapInItem*& cookie) = 0;
    // Removes the children of a row, and with deleteThis the row itself.
    virtual Result DeleteItem(ScopeId scopeId, bool deleteThis) = 0;
};

} // namespace console
