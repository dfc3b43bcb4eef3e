#pragma once

#include <dlfcn.h>

namespace torture {

// The function of that name that would be called without ours.
template <class Function>
[[nodiscard]] Function* nextFunction(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

} // namespace torture
