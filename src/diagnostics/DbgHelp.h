#pragma once

#include <windows.h>

#include <dbghelp.h>

#include <memory>
#include <stdexcept>

namespace QvxDiagnostics {

// The debug-help library of Windows, loaded while any stack dump uses it.
class DbgHelp {
public:
    // A stack dump that failed.
    class StackDumpException : public std::runtime_error {
    public:
        using std::runtime_error::runtime_error;
    };

    // The one that is in use, or a new one; throws StackDumpException.
    [[nodiscard]] static std::shared_ptr<DbgHelp> shared();

    explicit DbgHelp(HANDLE process);
    ~DbgHelp();
    DbgHelp(const DbgHelp&) = delete;
    DbgHelp& operator=(const DbgHelp&) = delete;

    [[nodiscard]] HANDLE process() const { return process_; }

private:
    struct Library {
        Library();
        ~Library();
        Library(const Library&) = delete;
        Library& operator=(const Library&) = delete;
        HMODULE handle;
    };

    // The function of that name; throws StackDumpException when the library has none.
    template <typename Function>
    [[nodiscard]] Function function(const char* name) const {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(address(name)));
    }
    [[nodiscard]] FARPROC address(const char* name) const;

    Library library_;

public:
    decltype(&::SymInitialize) symInitialize = function<decltype(&::SymInitialize)>("SymInitialize");
    decltype(&::SymCleanup) symCleanup = function<decltype(&::SymCleanup)>("SymCleanup");
    decltype(&::SymSetOptions) symSetOptions = function<decltype(&::SymSetOptions)>("SymSetOptions");
    decltype(&::SymGetOptions) symGetOptions = function<decltype(&::SymGetOptions)>("SymGetOptions");
    decltype(&::SymLoadModule64) symLoadModule64 = function<decltype(&::SymLoadModule64)>("SymLoadModule64");
    decltype(&::SymUnloadModule64) symUnloadModule64 = function<decltype(&::SymUnloadModule64)>("SymUnloadModule64");
    decltype(&::SymEnumerateModules64) symEnumerateModules64 =
        function<decltype(&::SymEnumerateModules64)>("SymEnumerateModules64");
    decltype(&::SymGetModuleInfo64) symGetModuleInfo64 =
        function<decltype(&::SymGetModuleInfo64)>("SymGetModuleInfo64");
    decltype(&::SymGetModuleBase64) symGetModuleBase64 =
        function<decltype(&::SymGetModuleBase64)>("SymGetModuleBase64");
    decltype(&::SymGetSymFromAddr64) symGetSymFromAddr64 =
        function<decltype(&::SymGetSymFromAddr64)>("SymGetSymFromAddr64");
    decltype(&::SymFunctionTableAccess64) symFunctionTableAccess64 =
        function<decltype(&::SymFunctionTableAccess64)>("SymFunctionTableAccess64");
    decltype(&::SymUnDName64) symUnDName64 = function<decltype(&::SymUnDName64)>("SymUnDName64");
    decltype(&::UnDecorateSymbolName) unDecorateSymbolName =
        function<decltype(&::UnDecorateSymbolName)>("UnDecorateSymbolName");
    decltype(&::StackWalk64) stackWalk64 = function<decltype(&::StackWalk64)>("StackWalk64");
    decltype(&::MiniDumpWriteDump) miniDumpWriteDump = function<decltype(&::MiniDumpWriteDump)>("MiniDumpWriteDump");

private:
    HANDLE process_;
};

} // namespace QvxDiagnostics
