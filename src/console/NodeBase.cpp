#include "console/NodeBase.h"

#include "console/IConsoleNameSpace.h"
#include "console/IHeaderCtrl.h"
#include "console/IResultData.h"
#include "console/IdentityData.h"
#include "console/StandardVerbs.h"
#include "platform/Guard.h"

#include <array>
#include <exception>

namespace console {
namespace {

ExpandCode expandCode(std::intptr_t arg) {
    switch (arg) {
    case 0:
        return ExpandCode::collapse;
    case 2:
        return ExpandCode::refresh;
    default:
        return ExpandCode::expand;
    }
}

} // namespace

NodeBase::NodeBase(platform::Platform& platform, const NodeIdentity& identity)
    : platform_(platform), m_bstrDisplayName(identity.displayName) {
    scope_.nImage = identity.image;
    scope_.nOpenImage = identity.openImage;
    scope_.cChildren = identity.children;
    scope_.lParam = this;
    result_.nImage = identity.resultImage;
    result_.lParam = this;
}

Result NodeBase::guarded(std::string_view doing, std::uint32_t number, Result ifThrown,
                         const std::function<Result()>& work) {
    const auto keptAlive = weak_from_this().lock(); // a handler may remove its own row
    auto result = ifThrown;
    const auto place = [&] { return className() + ": " + std::string(doing) + " " + std::to_string(number); };
    platform::guarded(platform_, place, [&] { result = work(); });
    return result;
}

Result NodeBase::Notify(const Notification& notification) {
    return guarded("notification", static_cast<std::uint32_t>(notification.event), Result::failed, [&] {
        IConsole* const console = consoleOf(notification);
        return console != nullptr ? dispatch(notification, *console) : Result::unexpected;
    });
}

IConsole* NodeBase::consoleOf(const Notification& notification) {
    if (notification.componentData != nullptr) {
        componentData_ = notification.componentData;
        return console();
    }
    return notification.component != nullptr ? notification.component->console() : nullptr;
}

Result NodeBase::dispatch(const Notification& notification, IConsole& console) {
    // On every notification, whatever it is about, and before a selection sets its own verbs.
    const Result verbsOffered = offerStandardVerbs(console);
    switch (notification.event) {
    case Event::addImages:
        return notification.images != nullptr ? OnAddImages(*notification.images) : Result::badPointer;
    case Event::cutOrMove:
        return notification.source != nullptr ? OnCutOrMove(*notification.source) : Result::badPointer;
    case Event::doubleClick:
        return console.SelectScopeItem(scope_.ID);
    case Event::deleteItem:
        // Only the row: a menu command deletes the object on the server.
        return console.nameSpace() != nullptr ? console.nameSpace()->DeleteItem(scope_.ID, true) : Result::failed;
    case Event::expand:
        return OnExpand(expandCode(notification.arg), console, notification.param);
    case Event::paste:
        return paste(notification, console);
    case Event::queryPaste:
        return notification.source != nullptr ? OnQueryPaste(*notification.source) : Result::badPointer;
    case Event::refresh:
        return refresh(notification, console);
    case Event::rename:
        return notification.text != nullptr ? OnRename(console, notification.text) : Result::badPointer;
    case Event::select:
        return OnSelect(console);
    case Event::show:
        return OnShow(console, notification.arg != 0, 0);
    case Event::viewChange:
        return OnShow(console, true, 0);
    case Event::contextHelp:
        return OnContextHelp();
    case Event::buttonClick:
    case Event::columnClick:
        break;
    }
    return verbsOffered;
}

Result NodeBase::paste(const Notification& notification, IConsole& console) {
    if (notification.source == nullptr) {
        return Result::badPointer;
    }
    OnPaste(*notification.source);
    OnShow(console, false, 1);
    return Result::ok; // whether or not the node took what was pasted
}

Result NodeBase::refresh(const Notification& notification, IConsole& console) {
    const Result shown = OnShow(console, false, 1);
    if (notification.type == DataObjectType::scope) {
        return OnExpand(ExpandCode::refresh, console, notification.arg);
    }
    // A row has no list of its own to read. Tab takes the keyboard to the scope tree, so that F5 refreshes the node
    // that owns the row.
    press({platform::Key::tab, platform::Key::f5});
    return shown;
}

Result NodeBase::GetScopePaneInfo(ScopeItemFields& item) {
    if ((item.mask & scopeMask::text) != 0) {
        item.displayname = m_bstrDisplayName.c_str();
    }
    if ((item.mask & scopeMask::image) != 0) {
        item.nImage = scope_.nImage;
    }
    if ((item.mask & scopeMask::openImage) != 0) {
        item.nOpenImage = scope_.nOpenImage;
    }
    if ((item.mask & scopeMask::param) != 0) {
        item.lParam = scope_.lParam;
    }
    if ((item.mask & scopeMask::state) != 0) {
        item.nState = scope_.nState;
    }
    return Result::ok;
}

Result NodeBase::GetResultViewType(const char16_t*& viewType, std::int32_t& viewOptions) {
    viewType = nullptr;
    viewOptions = nodeIdentity().viewOptions;
    return Result::notDone;
}

Result NodeBase::GetResultPaneInfo(ResultItemFields& item) {
    if ((item.mask & resultMask::text) != 0) {
        item.str = GetResultPaneColInfo(item.nCol);
    }
    if ((item.mask & resultMask::image) != 0) {
        item.nImage = item.bScopeItem ? scope_.nImage : result_.nImage;
    }
    if ((item.mask & resultMask::param) != 0) {
        item.lParam = item.bScopeItem ? scope_.lParam : result_.lParam;
    }
    if ((item.mask & resultMask::index) != 0 && !item.bScopeItem) {
        item.nIndex = result_.nIndex;
    }
    return Result::ok;
}

Result NodeBase::AddMenuItems(IContextMenuCallback& callback, std::int32_t insertionAllowed, DataObjectType /*type*/) {
    auto result = Result::notDone;
    if ((insertionAllowed & insertionAllowedTop) == 0) {
        return result;
    }
    for (const MenuEntry& entry : menu()) {
        ContextMenuItem item;
        if (entry.id == 0) {
            item.fFlags = menuSeparator;
        } else {
            item.strName = entry.text;
            item.strStatusBarText = entry.statusBarText;
            item.lCommandID = entry.id;
            item.fFlags = (entry.checked ? menuChecked : 0) | (entry.disabled ? menuDisabled : 0);
        }
        result = callback.AddItem(item);
    }
    return result;
}

Result NodeBase::Command(std::int32_t commandId, DataObjectType type) {
    const auto origin = type == DataObjectType::scope ? CommandOrigin::scope : CommandOrigin::result;
    return guarded("command", static_cast<std::uint32_t>(commandId), Result::notDone, [&] {
        const Result result = runCommand(commandId, origin);
        press(keysAfterCommand(commandId, origin));
        return result;
    });
}

Result NodeBase::CreatePropertyPages(DataObjectType /*type*/) {
    return Result::ok;
}

Result NodeBase::QueryPagesFor(DataObjectType /*type*/) {
    return Result::ok;
}

Result NodeBase::ControlbarNotify(Event event) {
    return event == Event::select || event == Event::buttonClick ? Result::ok : Result::unexpected;
}

Result NodeBase::GetScopeData(ScopeItemFields** out) {
    if (out == nullptr) {
        return Result::failed;
    }
    *out = &scope_;
    return Result::ok;
}

Result NodeBase::GetResultData(ResultItemFields** out) {
    if (out == nullptr) {
        return Result::failed;
    }
    *out = &result_;
    return Result::ok;
}

Result NodeBase::FillData(ClipboardFormat format, std::vector<std::uint8_t>& stream) {
    return appendIdentity(nodeIdentity(), format, stream);
}

const char16_t* NodeBase::GetResultPaneColInfo(std::int32_t column) {
    return column == 0 ? m_bstrDisplayName.c_str() : u"";
}

Result NodeBase::OnContextHelp() {
    return Result::notDone;
}

Result NodeBase::RefreshNode(IConsole& console, ScopeId scopeId, IConsole& consoleForShow) {
    OnShow(consoleForShow, false, 1);
    return OnExpand(ExpandCode::refresh, console, scopeId);
}

std::string NodeBase::refreshKey() const {
    return wire::toUtf8(m_bstrDisplayName);
}

Result NodeBase::showAnew(IConsole& console) {
    return guarded("notification", static_cast<std::uint32_t>(Event::viewChange), Result::failed, [&] {
        if (rowReading() == RowReading::whenShown) {
            return OnShow(console, true, 0);
        }
        if (!columns().empty() || rowReading() == RowReading::onEveryShow) {
            visible_ = true;
            insertColumns(console, columns());
            insertRows(console);
        }
        return Result::ok;
    });
}

Result NodeBase::OnExpand(ExpandCode code, IConsole& console, ScopeId scopeId) {
    const auto kinds = childKinds();
    if (kinds.empty() || !beginExpand(code, console, scopeId)) {
        return Result::ok;
    }
    const auto read = insertKinds(console, kinds);
    if (read.failure) {
        std::rethrow_exception(read.failure);
    }
    return read.all() ? Result::ok : Result::notDone;
}

ReadKinds NodeBase::insertKinds(IConsole& console, std::span<const ChildKind> kinds) {
    auto read = readKinds(kinds, CarryOver::resultRow);
    for (std::size_t place = 0; place < kinds.size(); ++place) {
        if (read.read[place]) {
            for (NodeBase* const child : kinds[place].nodes()) {
                insertChild(console, *child);
            }
        }
    }
    return read;
}

bool NodeBase::readChildren(CarryOver what) {
    const auto kinds = childKinds();
    const auto read = readKinds(kinds, what);
    if (read.failure) {
        std::rethrow_exception(read.failure);
    }
    return read.all();
}

void NodeBase::readRows() {
    readChildren(CarryOver::resultRowAndScopeId);
}

// Rows that could be read are shown even if another kind could not be: the failure is reported after that.
Result NodeBase::OnShow(IConsole& console, bool show, int again) {
    if (rowReading() != RowReading::onEveryShow) {
        return showRows(console, show, again);
    }
    std::exception_ptr failure;
    try {
        readRows();
    } catch (...) {
        failure = std::current_exception();
    }
    const Result result = showRows(console, show, again);
    if (failure) {
        std::rethrow_exception(failure);
    }
    return result;
}

Result NodeBase::showRows(IConsole& console, bool show, int again) {
    const auto titles = columns();
    const auto reading = rowReading();
    const bool fills = show || again == 1;
    if (titles.empty()) {
        if (reading == RowReading::onEveryShow && fills) {
            insertRows(console); // an empty list: the earlier rows may no longer exist
        }
        return Result::ok;
    }
    if (again == 0) {
        visible_ = show;
    }
    if (show) {
        visible_ = true;
        insertColumns(console, titles);
    }
    if ((reading == RowReading::whenShown && show) || (reading == RowReading::whenShownOrAgain && fills)) {
        readRows();
    }
    if (fills) {
        insertRows(console);
    }
    return Result::ok;
}

std::span<const VerbChoice> NodeBase::verbs() const {
    static constexpr std::array<VerbChoice, 5> onlyRefresh{{{Verb::refresh, true},
                                                            {Verb::cut, false},
                                                            {Verb::copy, false},
                                                            {Verb::deleteItem, false},
                                                            {Verb::rename, false}}};
    return onlyRefresh;
}

Result NodeBase::runCommand(std::int32_t /*commandId*/, CommandOrigin /*origin*/) {
    return Result::notDone;
}

Result NodeBase::OnSelect(IConsole& console) {
    IConsoleVerb* verb = nullptr;
    Result result = console.QueryConsoleVerb(verb);
    if (verb != nullptr) {
        for (const VerbChoice& choice : verbs()) {
            result = verb->SetVerbState(choice.verb, VerbState::enabled, choice.offered);
        }
    }
    return result;
}

Result NodeBase::OnRename(IConsole& /*console*/, const wire::WideString& /*newName*/) {
    return Result::notDone;
}

Result NodeBase::OnAddImages(IImageList& images) {
    const ImageStrip& strip = nodeIdentity().strip;
    return strip == noStrip ? Result::notDone : images.ImageListSetStrip(strip, 0, imageMask);
}

Result NodeBase::OnPaste(CSnapInItem& /*source*/) {
    return Result::notDone;
}

Result NodeBase::OnQueryPaste(const CSnapInItem& /*source*/) {
    return Result::notDone;
}

Result NodeBase::OnCutOrMove(CSnapInItem& /*source*/) {
    return Result::notDone;
}

bool NodeBase::beginExpand(ExpandCode code, IConsole& console, ScopeId scopeId) {
    IConsoleNameSpace* const tree = console.nameSpace();
    if (code == ExpandCode::collapse || tree == nullptr) {
        return false;
    }
    scope_.ID = scopeId;
    ScopeId child = 0;
    CSnapInItem* cookie = nullptr;
    tree->GetChildItem(scope_.ID, child, cookie);
    if (child != 0) {
        tree->DeleteItem(scope_.ID, false);
    }
    return true;
}

void NodeBase::insertChild(IConsole& console, NodeBase& child) const {
    child.setParent(*this);
    if (IConsoleNameSpace* const tree = console.nameSpace(); tree != nullptr && child.standsInTree()) {
        tree->InsertItem(child.scope_);
    }
}

void NodeBase::insertColumns(IConsole& console, std::span<const Column> columns) {
    IHeaderCtrl* const header = console.headerCtrl();
    if (header == nullptr) {
        return;
    }
    std::int32_t index = 0;
    for (const Column& column : columns) {
        header->InsertColumn(index, column.title, columnLeft, automaticWidth);
        std::int32_t width = 0;
        if (column.widthFactor != 0 && succeeded(header->GetColumnWidth(index, width))) {
            header->SetColumnWidth(index, static_cast<std::int32_t>(width * column.widthFactor));
        }
        ++index;
    }
}

void NodeBase::insertRows(IConsole& console) const {
    IResultData* const list = console.resultData();
    if (list == nullptr) {
        return;
    }
    list->DeleteAllRsltItems();
    const auto nodes = rows();
    // The nodes of a long list are far apart in memory: the processor fetches a few ahead.
    constexpr std::size_t ahead = 16;
    for (std::size_t place = 0; place < nodes.size(); ++place) {
        if (place + ahead < nodes.size()) {
            const auto& later = nodes[place + ahead]->result_;
            __builtin_prefetch(&later.itemID);
            __builtin_prefetch(&later.lParam);
        }
        list->InsertItem(nodes[place]->result_);
    }
}

void NodeBase::removeFromTree() {
    if (IConsole* const where = console(); where != nullptr && where->nameSpace() != nullptr) {
        where->nameSpace()->DeleteItem(scope_.ID, true);
    }
}

void NodeBase::removeFromList() {
    IConsole* const where = console();
    if (where != nullptr && where->resultData() != nullptr && result_.itemID != 0) {
        where->resultData()->DeleteItem(result_.itemID, 0);
    }
}

void NodeBase::redrawRow() {
    IConsole* const where = console();
    if (where != nullptr && where->resultData() != nullptr && result_.itemID != 0) {
        where->resultData()->UpdateItem(result_.itemID);
    }
}

void NodeBase::selectAndPress(ScopeId scopeId, const KeySequence& keys) const {
    if (console() != nullptr) {
        console()->SelectScopeItem(scopeId);
        press(keys);
    }
}

bool NodeBase::confirm(const wire::WideString& question) const {
    return platform_.ui.messageBoxAbout(0, displayName(), question, u"Warning", platform::boxStyle::okCancel) ==
           platform::Answer::ok;
}

platform::Answer NodeBase::messageBox(const wire::WideString& text, const wire::WideString& caption,
                                      std::uint32_t style) const {
    return platform_.ui.messageBox(0, text, caption, style);
}

int NodeBase::runModal(forms::Form& form) const {
    return platform_.ui.runModal(form, platform_.ui.activeWindow());
}

void NodeBase::press(const KeySequence& keys) const {
    if (!keys.empty()) {
        platform_.ui.press(keys.keys());
    }
}

void NodeBase::PressRefreshKey() const {
    press({platform::Key::f5});
}

void NodeBase::PressTabKey() const {
    press({platform::Key::tab});
}

void NodeBase::takeOver(const NodeBase& old, CarryOver what) {
    result_ = old.result_;
    result_.lParam = this;
    if (what == CarryOver::resultRowAndScopeId) {
        scope_.ID = old.scope_.ID;
    }
}

} // namespace console
