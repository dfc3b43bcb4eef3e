#include "console/NodeBase.h"

#include "console/IConsoleNameSpace.h"
#include "console/IHeaderCtrl.h"
#include "console/IResultData.h"
#include "platform/Guard.h"

#include <array>

namespace console {
namespace {

// When the selection does not offer Paste, enables the standard verbs, Paste among them. The answer is that of the last
// question put to the console.
Result offerVerbs(IConsole& console) {
    IConsoleVerb* verb = nullptr;
    Result result = console.QueryConsoleVerb(verb);
    if (verb == nullptr) {
        return result;
    }
    bool offersPaste = false;
    result = verb->GetVerbState(Verb::paste, VerbState::enabled, offersPaste);
    if (!offersPaste) {
        for (const Verb each : {Verb::deleteItem, Verb::copy, Verb::refresh, Verb::rename, Verb::paste}) {
            result = verb->SetVerbState(each, VerbState::enabled, true);
        }
    }
    return result;
}

void append(std::vector<std::uint8_t>& stream, const Guid& value) {
    stream.insert(stream.end(), value.bytes.begin(), value.bytes.end());
}

// As UTF-16LE with its terminator.
void append(std::vector<std::uint8_t>& stream, std::u16string_view text) {
    const auto appendUnit = [&stream](char16_t unit) {
        stream.push_back(static_cast<std::uint8_t>(unit & 0xFF));
        stream.push_back(static_cast<std::uint8_t>(unit >> 8));
    };
    for (const char16_t unit : text) {
        appendUnit(unit);
    }
    appendUnit(0);
}

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

std::string placeOf(const std::string& className, std::string_view doing, std::uint32_t number) {
    return className + ": " + std::string(doing) + " " + std::to_string(number);
}

} // namespace

NodeBase::NodeBase(platform::Platform& platform, const NodeIdentity& identity)
    : platform_(platform), m_bstrDisplayName(identity.displayName) {
    scope_.nImage = identity.image;
    scope_.nOpenImage = identity.openImage;
    scope_.cChildren = identity.children;
    scope_.lParam = this;
    result_.nImage = identity.image;
    result_.lParam = this;
}

Result NodeBase::Notify(const Notification& notification) {
    const auto keptAlive = weak_from_this().lock(); // a handler may remove its own row
    auto result = Result::failed;
    const auto place = [&] {
        return placeOf(className(), "notification", static_cast<std::uint32_t>(notification.event));
    };
    platform::guarded(platform_, place, [&] {
        IConsole* const console = consoleOf(notification);
        result = console != nullptr ? dispatch(notification, *console) : Result::unexpected;
    });
    return result;
}

IConsole* NodeBase::consoleOf(const Notification& notification) {
    if (notification.componentData != nullptr) {
        componentData_ = notification.componentData;
        console_ = componentData_->console();
        return console_;
    }
    return notification.component != nullptr ? notification.component->console() : nullptr;
}

Result NodeBase::dispatch(const Notification& notification, IConsole& console) {
    // On every notification, whatever it is about, and before a selection sets its own verbs.
    const Result verbsOffered = offerVerbs(console);
    switch (notification.event) {
    case Event::addImages:
        return notification.images != nullptr ? OnAddImages(*notification.images) : Result::badPointer;
    case Event::cutOrMove:
        return notification.source != nullptr ? OnCutOrMove(*notification.source) : Result::badPointer;
    case Event::doubleClick:
        return console.SelectScopeItem(scope_.ID);
    case Event::deleteItem:
        // The row only: what it stands for is deleted on the server by a menu command.
        return console.nameSpace().DeleteItem(scope_.ID, true);
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
        }
        result = callback.AddItem(item);
    }
    return result;
}

Result NodeBase::Command(std::int32_t commandId, DataObjectType type) {
    const auto keptAlive = weak_from_this().lock(); // "Delete" removes the node's own row
    auto result = Result::notDone;
    const auto place = [&] { return placeOf(className(), "command", static_cast<std::uint32_t>(commandId)); };
    const bool finished = platform::guarded(platform_, place, [&] {
        result = runCommand(commandId, type == DataObjectType::scope ? CommandOrigin::scope : CommandOrigin::result);
        for (int i = 0; i < refreshesAfterCommand(); ++i) {
            PressRefreshKey();
        }
    });
    return finished ? result : Result::notDone;
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
    const NodeIdentity& identity = nodeIdentity();
    switch (format) {
    case ClipboardFormat::nodeType:
        append(stream, identity.nodeType.guid);
        return Result::ok;
    case ClipboardFormat::nodeTypeText:
        append(stream, identity.nodeType.text);
        return Result::ok;
    case ClipboardFormat::displayName:
        append(stream, identity.displayName); // that of the class, whatever this node is called
        return Result::ok;
    case ClipboardFormat::snapInClassId:
        append(stream, snapInClassId);
        return Result::ok;
    }
    return Result::badClipboardFormat;
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

Result NodeBase::OnExpand(ExpandCode /*code*/, IConsole& /*console*/, ScopeId /*scopeId*/) {
    return Result::ok;
}

Result NodeBase::OnShow(IConsole& console, bool show, int again) {
    const auto titles = columns();
    if (titles.empty()) {
        return Result::ok;
    }
    if (again == 0) {
        visible_ = false;
    }
    if (show) {
        visible_ = true;
        insertColumns(console, titles);
        readRows();
        insertRows(console);
    }
    if (again == 1) {
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
    if (code == ExpandCode::collapse) {
        return false;
    }
    scope_.ID = scopeId;
    console_ = &console;
    ScopeId child = 0;
    CSnapInItem* cookie = nullptr;
    console.nameSpace().GetChildItem(scope_.ID, child, cookie);
    if (child != 0) {
        console.nameSpace().DeleteItem(scope_.ID, false);
    }
    return true;
}

void NodeBase::insertChild(IConsole& console, NodeBase& child) const {
    child.setParent(*this);
    console.nameSpace().InsertItem(child.scope_);
}

void NodeBase::insertColumns(IConsole& console, std::span<const Column> columns) {
    IHeaderCtrl& header = console.headerCtrl();
    std::int32_t index = 0;
    for (const Column& column : columns) {
        header.InsertColumn(index, column.title, columnLeft, automaticWidth);
        std::int32_t width = 0;
        if (column.widthFactor != 0 && succeeded(header.GetColumnWidth(index, width))) {
            header.SetColumnWidth(index, static_cast<std::int32_t>(width * column.widthFactor));
        }
        ++index;
    }
}

void NodeBase::insertRows(IConsole& console) const {
    IResultData& list = console.resultData();
    list.DeleteAllRsltItems();
    for (NodeBase* row : rows()) {
        list.InsertItem(row->result_);
    }
}

bool NodeBase::confirm(const wire::WideString& question) const {
    return messageBox(question, u"Warning", platform::boxStyle::okCancel) == platform::Answer::ok;
}

platform::Answer NodeBase::messageBox(const wire::WideString& text, const wire::WideString& caption,
                                      std::uint32_t style) const {
    return platform_.ui.messageBox(0, text, caption, style);
}

int NodeBase::runModal(forms::Form& form) const {
    return platform_.ui.runModal(form, platform_.ui.activeWindow());
}

void NodeBase::press(std::initializer_list<platform::Key> keys) const {
    platform_.ui.press({keys.begin(), keys.size()});
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
