#pragma once

#include "console/ItemFields.h"
#include "console/Result.h"
#include "platform/WindowHandle.h"

namespace console {

class IConsoleNameSpace;
class IConsoleVerb;
class IHeaderCtrl;
class IImageList;
class IResultData;

// The console as a node sees it: either that of the whole snap-in, or that of one view, which may be closed long before
// the snap-in ends. A node keeps neither: it asks its component data for the first, and uses the second only while it
// handles a call from that view.
class IConsole {
public:
    virtual ~IConsole() = default;

    // The console's other interfaces, which live as long as it does. Null when it has no such interface, as a query for
    // one can fail.
    virtual IConsoleNameSpace* nameSpace() = 0;
    virtual IResultData* resultData() = 0;
    virtual IHeaderCtrl* headerCtrl() = 0;

    // The verbs of the current selection; null when there are none to set.
    virtual Result QueryConsoleVerb(IConsoleVerb*& verb) = 0;
    virtual Result QueryScopeImageList(IImageList*& images) = 0;
    // The host may act on it only after the running handler has returned.
    virtual Result SelectScopeItem(ScopeId scopeId) = 0;
    virtual Result GetMainWindow(platform::WindowHandle& window) = 0;
};

// The snap-in's scope side, of which a node needs only the console. It outlives all use of its nodes: once it is
// destroyed, a host that still holds a node may only release it.
class IComponentData {
public:
    virtual ~IComponentData() = default;
    // Null until the snap-in has been given its console, and after the console has been taken away.
    virtual IConsole* console() = 0;
};

// One view's side of the snap-in, of which a node needs only the console.
class IComponent {
public:
    virtual ~IComponent() = default;
    virtual IConsole* console() = 0;
};

} // namespace console
