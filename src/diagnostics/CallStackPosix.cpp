#include "diagnostics/CallStack.h"

#include <cxxabi.h>
#include <dlfcn.h>
#include <execinfo.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace QvxDiagnostics {

namespace {

std::string readableName(const char* symbol) {
    struct Free {
        void operator()(char* text) const { std::free(text); }
    };
    int status = 0;
    const std::unique_ptr<char, Free> name(abi::__cxa_demangle(symbol, nullptr, nullptr, &status));
    return status == 0 ? name.get() : symbol;
}

StackFrame frameAt(const void* address) {
    Dl_info info{};
    if (::dladdr(address, &info) == 0) {
        return {};
    }
    const std::string path = info.dli_fname == nullptr ? "" : info.dli_fname;
    StackFrame frame;
    frame.module = path.substr(path.find_last_of('/') + 1);
    if (info.dli_sname != nullptr) {
        frame.symbol = readableName(info.dli_sname);
        frame.offset =
            static_cast<std::uint64_t>(static_cast<const char*>(address) - static_cast<const char*>(info.dli_saddr));
    }
    return frame;
}

} // namespace

std::vector<StackFrame> captureStack() {
    std::array<void*, 128> addresses{};
    const int count = ::backtrace(addresses.data(), static_cast<int>(addresses.size()));
    if (count <= 0) {
        throw std::runtime_error("the platform gives no frames");
    }
    std::vector<StackFrame> frames;
    for (std::size_t index = 0; index < static_cast<std::size_t>(count); ++index) {
        frames.push_back(frameAt(addresses[index]));
    }
    return frames;
}

} // namespace QvxDiagnostics
