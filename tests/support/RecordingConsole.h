#pragma once

#include "console/CSnapInItem.h"
#include "console/IConsole.h"
#include "console/IConsoleNameSpace.h"
#include "console/IConsoleVerb.h"
#include "console/IContextMenuCallback.h"
#include "console/IHeaderCtrl.h"
#include "console/IImageList.h"
#include "console/IResultData.h"
#include "wire/Text.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace support {

// A console with all its interfaces that records each call as a line of text and keeps what a real one would show. Rows
// get the numbers 1, 2, 3, ... It keeps the node of each row alive until the row is removed.
class RecordingConsole final : public console::IConsole,
                               public console::IConsoleNameSpace,
                               public console::IResultData,
                               public console::IHeaderCtrl,
                               public console::IConsoleVerb,
                               public console::IImageList,
                               public console::IContextMenuCallback,
                               public console::IComponentData,
                               public console::IComponent {
public:
    using NodePointer = std::shared_ptr<console::CSnapInItem>;

    struct ScopeRow {
        console::ScopeId id = 0;
        console::ScopeId parent = 0;
        NodePointer node;
        wire::WideString text; // from SetItem, otherwise empty
    };
    struct ResultRow {
        console::ResultId id = 0;
        NodePointer node;
    };
    struct Column {
        wire::WideString title;
        std::int32_t width = 0;
    };
    struct MenuItem {
        wire::WideString text; // empty for a separator
        wire::WideString statusBarText;
        std::int32_t id = 0;
        std::int32_t flags = 0;

        friend bool operator==(const MenuItem&, const MenuItem&) = default;
    };

    // The calls, such as "InsertItem Printers under 1", "DeleteItem 1 children", "InsertRow North",
    // "UpdateRow 3", "SetColumnWidth 0 200", "SelectScopeItem 1". Queries (GetChildItem, GetColumnWidth) and verbs are
    // not recorded here.
    std::vector<std::string> calls;
    // "refresh on", "cut off", ... in the order in which they were set.
    std::vector<std::string> verbCalls;
    std::map<console::Verb, bool> verbs;
    std::vector<MenuItem> menu;
    std::vector<Column> columns;
    std::vector<ScopeRow> scopeRows;
    std::vector<ResultRow> resultRows;

    // What it returns.
    std::int32_t automaticColumnWidth = 100;
    bool hasVerbs = true;
    bool hasImages = true;
    bool hasFaces = true; // tree, list and columns
    platform::WindowHandle mainWindow = 11;

    // Puts a node into the tree, as the console does with the root, without recording it.
    console::ScopeId addScopeRow(const NodePointer& node, console::ScopeId parent = 0);
    // The nodes under a row, in order; and their display names.
    [[nodiscard]] std::vector<NodePointer> children(console::ScopeId parent) const;
    [[nodiscard]] std::vector<wire::WideString> childNames(console::ScopeId parent) const;
    // The texts of the result pane as the nodes return them, row by row, for all current columns.
    [[nodiscard]] std::vector<std::vector<wire::WideString>> table() const;
    // The column titles.
    [[nodiscard]] std::vector<wire::WideString> titles() const;

    console::IConsoleNameSpace* nameSpace() override { return hasFaces ? this : nullptr; }
    console::IResultData* resultData() override { return hasFaces ? this : nullptr; }
    console::IHeaderCtrl* headerCtrl() override { return hasFaces ? this : nullptr; }
    console::IConsole* console() override { return this; }
    console::Result QueryConsoleVerb(console::IConsoleVerb*& verb) override;
    console::Result QueryScopeImageList(console::IImageList*& images) override;
    console::Result SelectScopeItem(console::ScopeId scopeId) override;
    console::Result GetMainWindow(platform::WindowHandle& window) override;

    console::Result InsertItem(console::ScopeItemFields& row) override;
    console::Result SetItem(console::ScopeId scopeId, std::u16string_view text) override;
    console::Result GetChildItem(console::ScopeId scopeId, console::ScopeId& child,
                                 console::CSnapInItem*& cookie) override;
    console::Result DeleteItem(console::ScopeId scopeId, bool deleteThis) override;

    console::Result InsertItem(console::ResultItemFields& row) override;
    console::Result DeleteItem(console::ResultId itemId, std::int32_t column) override;
    console::Result UpdateItem(console::ResultId itemId) override;
    console::Result DeleteAllRsltItems() override;

    console::Result InsertColumn(std::int32_t index, const char16_t* title, std::int32_t format,
                                 std::int32_t width) override;
    console::Result GetColumnWidth(std::int32_t index, std::int32_t& width) override;
    console::Result SetColumnWidth(std::int32_t index, std::int32_t width) override;

    console::Result SetVerbState(console::Verb verb, console::VerbState state, bool flag) override;
    console::Result GetVerbState(console::Verb verb, console::VerbState state, bool& flag) override;

    console::Result ImageListSetStrip(const console::ImageStrip& strip, std::int32_t start,
                                      std::uint32_t mask) override;

    console::Result AddItem(const console::ContextMenuItem& item) override;

private:
    void removeChildren(console::ScopeId parent);

    console::ScopeId lastScopeId_ = 0;
    console::ResultId lastResultId_ = 0;
};

} // namespace support
