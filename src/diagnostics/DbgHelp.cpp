#include "diagnostics/DbgHelp.h"

#include <mutex>
#include <string>
#include <vector>

namespace QvxDiagnostics {

namespace {

std::string withLastError(const std::string& text) {
    return text + ", GetLastError == " + std::to_string(GetLastError());
}

void reportAtDestruction(const std::string& what) {
    OutputDebugStringA(("~DbgHelp(), " + what + " failed, GetLastError = " + std::to_string(GetLastError())).c_str());
}

BOOL CALLBACK collectModule(PCSTR, DWORD64 base, PVOID bases) {
    static_cast<std::vector<DWORD64>*>(bases)->push_back(base);
    return TRUE;
}

} // namespace

std::shared_ptr<DbgHelp> DbgHelp::shared() {
    static std::mutex mutex;
    static std::weak_ptr<DbgHelp> current;
    const std::lock_guard lock(mutex);
    std::shared_ptr<DbgHelp> help = current.lock();
    if (!help) {
        help = std::make_shared<DbgHelp>(GetCurrentProcess());
        current = help;
    }
    return help;
}

DbgHelp::Library::Library() : handle(LoadLibraryA("dbghelp.dll")) {
    if (handle == nullptr) {
        throw StackDumpException(withLastError("DbgHelp: Failed to load dbgHelp.dll"));
    }
}

DbgHelp::Library::~Library() {
    FreeLibrary(handle);
}

DbgHelp::DbgHelp(HANDLE process) : process_(process) {
    if (process_ == nullptr) {
        throw StackDumpException("DbgHelp: invalid process handle passed");
    }
    symSetOptions(symGetOptions() | SYMOPT_DEFERRED_LOADS | SYMOPT_UNDNAME);
    if (symInitialize(process_, nullptr, TRUE) == FALSE) {
        throw StackDumpException(withLastError("DbgHelp: Failed to initialize"));
    }
}

DbgHelp::~DbgHelp() {
    std::vector<DWORD64> bases;
    if (symEnumerateModules64(process_, collectModule, &bases) == FALSE) {
        reportAtDestruction("SymEnumerateModules64");
    }
    for (const DWORD64 base : bases) {
        symUnloadModule64(process_, base);
    }
    if (symCleanup(process_) == FALSE) {
        reportAtDestruction("SymCleanup");
    }
}

FARPROC DbgHelp::address(const char* name) const {
    const FARPROC found = GetProcAddress(library_.handle, name);
    if (found == nullptr) {
        throw StackDumpException(std::string("Function not found in dbghelp.dll: ") + name);
    }
    return found;
}

} // namespace QvxDiagnostics
