#pragma once

#include "console/IContextMenuCallback.h"
#include "console/ItemFields.h"
#include "console/Notification.h"
#include "console/Result.h"
#include "console/RowState.h"
#include "wire/Text.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace console {

class IConsole;
struct NodeIdentity;

// Asks the console to use its own list and to leave the scope children out of it
// (MMC_VIEW_OPTIONS_EXCLUDE_SCOPE_ITEMS_FROM_LIST).
constexpr std::int32_t excludeScopeItemsFromList = 0x40;

// What a data object can be asked for, by the platform's format names.
enum class ClipboardFormat { nodeType, nodeTypeText, displayName, snapInClassId };

// The codes of OnExpand.
enum class ExpandCode : std::uint8_t { collapse = 0, expand = 1, refresh = 2 };

// Everything that the console can ask of a node: the object behind a cookie. Nodes are made with std::make_shared; the
// console holds a shared pointer for each row that it shows, and a parent holds one for each child, so that a node is
// destroyed once neither refers to it. A host whose console knows a node only by its raw cookie holds that pointer on
// the console's behalf: from the insertion of a row until the row has been removed and the handler that removed it has
// returned, because the console may use the cookie until then.
class CSnapInItem : public std::enable_shared_from_this<CSnapInItem> {
public:
    CSnapInItem() = default;
    CSnapInItem(const CSnapInItem&) = delete;
    CSnapInItem& operator=(const CSnapInItem&) = delete;
    virtual ~CSnapInItem() = default;

    virtual Result Notify(const Notification& notification) = 0;
    // Fills what item.mask asks for. Texts stay valid until the node is asked again.
    virtual Result GetScopePaneInfo(ScopeItemFields& item) = 0;
    // A null view type and Result::notDone mean the console's default list.
    virtual Result GetResultViewType(const char16_t*& viewType, std::int32_t& viewOptions) = 0;
    virtual Result GetResultPaneInfo(ResultItemFields& item) = 0;
    virtual Result AddMenuItems(IContextMenuCallback& callback, std::int32_t insertionAllowed, DataObjectType type) = 0;
    // Never throws: failures are reported and dropped.
    virtual Result Command(std::int32_t commandId, DataObjectType type) = 0;
    virtual Result CreatePropertyPages(DataObjectType type) = 0;
    virtual Result QueryPagesFor(DataObjectType type) = 0;
    virtual Result ControlbarNotify(Event event) = 0;
    virtual Result GetScopeData(ScopeItemFields** out) = 0;
    virtual Result GetResultData(ResultItemFields** out) = 0;
    // Appends the class's identity in the requested format.
    virtual Result FillData(ClipboardFormat format, std::vector<std::uint8_t>& stream) = 0;
    // The text of one column of this node's row; valid until the node is asked again or freed.
    virtual const char16_t* GetResultPaneColInfo(std::int32_t column) = 0;
    virtual Result OnContextHelp() = 0;
    // How one node refreshes another: shows consoleForShow from memory, then reads the server.
    virtual Result RefreshNode(IConsole& console, ScopeId scopeId, IConsole& consoleForShow) = 0;

    // What the tree and the hosts need beyond the platform's interface.

    virtual const NodeIdentity& nodeIdentity() const = 0;
    // "class PrinterNode": the class's run-time name, without its namespace. Tells classes apart on paste and in saved
    // column choices.
    virtual const std::string& className() const = 0;
    virtual const wire::WideString& displayName() const = 0;
    // Identifies this node across refreshes among the children of one parent: an id if it has one, else the display
    // name.
    virtual std::string refreshKey() const = 0;
    // The number to sort this column by where its text would sort wrongly, as for dates and prices. Empty where the
    // text sorts correctly.
    virtual std::optional<std::int64_t> sortValue(std::int32_t column) const = 0;
    // The state of what the row stands for; empty where nothing is known of it.
    virtual std::optional<RowState> rowState() const { return std::nullopt; }
    // Shows the columns and rows again after a refresh, for a console that receives no key presses that would make it
    // do so. Reads from the server only what the refresh has not read.
    virtual Result showAnew(IConsole& console) = 0;
};

} // namespace console
