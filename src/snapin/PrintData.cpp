#include "snapin/PrintData.h"

#include "snapin/AuthenticationDlg.h"
#include "snapin/LoginThread.h"

namespace snapin {

PrintData::PrintData(platform::Platform& platform)
    : CBaseNodeItem(platform), printServer_(std::make_shared<PrintServer>(platform)) {}

// A wrong password or an unreachable server asks again; a server of another version may be added without a session.
console::Result PrintData::CreatePropertyPages(console::DataObjectType type) {
    namespace style = platform::boxStyle;
    if (type != console::DataObjectType::snapinManager) {
        return console::Result::unexpected;
    }
    for (;;) {
        AuthenticationDlg dialog(platform());
        runModal(dialog);
        if (dialog.status() != AuthenticationStatus::none) {
            loginDone = 1;
        }
        switch (dialog.status()) {
        case AuthenticationStatus::connected:
            messageBox(dialog.statusText(), u"Success!", style::iconInformation);
            return console::Result::notDone;
        case AuthenticationStatus::badCredentials:
            messageBox(dialog.statusText(), u"Error", style::iconStop);
            break;
        case AuthenticationStatus::serverUnavailable:
            messageBox(dialog.statusText(), u"Error", style::iconWarning);
            break;
        case AuthenticationStatus::wrongVersion:
            messageBox(dialog.statusText(), u"Warning", style::iconWarning);
            return console::Result::ok;
        case AuthenticationStatus::cancelled:
            return console::Result::ok;
        case AuthenticationStatus::none:
            return console::Result::notDone;
        }
    }
}

console::Result PrintData::QueryPagesFor(console::DataObjectType type) {
    return type == console::DataObjectType::snapinManager ? console::Result::ok : console::Result::notDone;
}

std::vector<console::ChildKind> PrintData::childKinds() {
    return {fixedChildren({printServer_.get()})};
}

} // namespace snapin
