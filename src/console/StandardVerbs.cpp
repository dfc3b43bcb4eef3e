#include "console/StandardVerbs.h"

#include "console/IConsole.h"
#include "console/IConsoleVerb.h"

#include <initializer_list>

namespace console {

Result offerStandardVerbs(IConsole& console) {
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

} // namespace console
