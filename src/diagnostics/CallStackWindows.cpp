#include "diagnostics/CallStack.h"

#include "diagnostics/DbgHelp.h"

#include <array>
#include <cstddef>
#include <new>

namespace QvxDiagnostics {

namespace {

#if defined(_M_X64) || defined(__x86_64__)
constexpr DWORD machine = IMAGE_FILE_MACHINE_AMD64;
DWORD64 instruction(const CONTEXT& context) {
    return context.Rip;
}
DWORD64 frameBase(const CONTEXT& context) {
    return context.Rbp;
}
DWORD64 stackTop(const CONTEXT& context) {
    return context.Rsp;
}
#else
constexpr DWORD machine = IMAGE_FILE_MACHINE_I386;
DWORD64 instruction(const CONTEXT& context) {
    return context.Eip;
}
DWORD64 frameBase(const CONTEXT& context) {
    return context.Ebp;
}
DWORD64 stackTop(const CONTEXT& context) {
    return context.Esp;
}
#endif

// The registers of this thread; all zero on a Windows that can't report them.
CONTEXT captureContext() {
    using Capture = VOID(WINAPI*)(PCONTEXT);
    CONTEXT context{};
    context.ContextFlags = CONTEXT_FULL;
    if (const HMODULE kernel = GetModuleHandleA("kernel32.dll")) {
        const FARPROC found = GetProcAddress(kernel, "RtlCaptureContext");
        if (found != nullptr) {
            reinterpret_cast<Capture>(reinterpret_cast<void*>(found))(&context);
        }
    }
    return context;
}

ADDRESS64 flatAddress(DWORD64 offset) {
    ADDRESS64 address{};
    address.Offset = offset;
    address.Mode = AddrModeFlat;
    return address;
}

std::shared_ptr<DbgHelp> sharedHelp() {
    try {
        return DbgHelp::shared();
    } catch (const std::bad_alloc&) {
        throw DbgHelp::StackDumpException("Failed to initialize dbgHelp!");
    }
}

std::string moduleName(const DbgHelp& help, DWORD64 address) {
    IMAGEHLP_MODULE64 module{};
    module.SizeOfStruct = sizeof module;
    return help.symGetModuleInfo64(help.process(), address, &module) == FALSE ? "" : module.ModuleName;
}

void findSymbol(const DbgHelp& help, DWORD64 address, StackFrame& frame) {
    constexpr DWORD longestName = 1024;
    alignas(IMAGEHLP_SYMBOL64) std::array<std::byte, sizeof(IMAGEHLP_SYMBOL64) + longestName> memory{};
    auto* const symbol = new (memory.data()) IMAGEHLP_SYMBOL64{};
    symbol->SizeOfStruct = sizeof *symbol;
    symbol->MaxNameLength = longestName;
    DWORD64 offset = 0;
    if (help.symGetSymFromAddr64(help.process(), address, &offset, symbol) == FALSE) {
        frame.symbol = "<no symbol>(GetLastError = " + std::to_string(GetLastError()) + ")";
        return;
    }
    frame.symbol = symbol->Name;
    frame.offset = offset;
}

StackFrame frameAt(const DbgHelp& help, DWORD64 address) {
    StackFrame frame;
    try {
        frame.module = moduleName(help, address);
        findSymbol(help, address, frame);
    } catch (const std::exception&) {
        frame.symbol = "<no symbol: exception while retrieving symbol name>";
    }
    return frame;
}

} // namespace

std::vector<StackFrame> captureStack() {
    CONTEXT context = captureContext();
    const std::shared_ptr<DbgHelp> help = sharedHelp();
    STACKFRAME64 position{};
    position.AddrPC = flatAddress(instruction(context));
    position.AddrFrame = flatAddress(frameBase(context));
    position.AddrStack = flatAddress(stackTop(context));

    constexpr std::size_t mostFrames = 128;
    std::vector<StackFrame> frames;
    while (frames.size() < mostFrames &&
           help->stackWalk64(machine, help->process(), GetCurrentThread(), &position, &context, nullptr,
                             help->symFunctionTableAccess64, help->symGetModuleBase64, nullptr) != FALSE &&
           position.AddrPC.Offset != 0) {
        frames.push_back(frameAt(*help, position.AddrPC.Offset));
    }
    return frames;
}

} // namespace QvxDiagnostics
