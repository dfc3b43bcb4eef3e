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

// The console as a node sees it. The accessors give the console's other faces, which live as long as it does.
class IConsole {
public:
    virtual ~IConsole() = default;

    virtual IConsoleNameSpace& nameSpace() = 0;
    virtual IResultData& resultData() = 0;
    virtual IHeaderCtrl& headerCtrl() = 0;

    // The verbs of the current selection; null when there are none to set.
    virtual Result QueryConsoleVerb(IConsoleVerb*& verb) = 0;
    virtual Result QueryScopeImageList(IImageList*& images) = 0;
    // May be acted on once the running handler has returned.
    virtual Result SelectScopeItem(ScopeId scopeId) = 0;
    virtual Result GetMainWindow(platform::WindowHandle& window) = 0;
};

// The snap-in's scope side, of which a node needs only the console.
class IComponentData {
public:
    virtual ~IComponentData() = default;
    virtual IConsole* console() = 0;
};

// One view's side of the snap-in, of which a node needs only the console.
class IComponent {
public:
    virtual ~IComponent() = default;
    virtual IConsole* console() = 0;
};

} // namespace console
