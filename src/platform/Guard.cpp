#include "platform/Guard.h"

#include "client/CommandObserver.h"
#include "diagnostics/Loggers.h"
#include "platform/Platform.h"
#include "wire/Cancelled.h"

#include <exception>
#include <string_view>

namespace platform {
namespace {

void report(const Platform& platform, const std::function<std::string()>& where, std::string_view level,
            std::string_view what) noexcept {
    try {
        const std::string place = where();
        QvxDiagnostics::log(QvxDiagnostics::withTimeStamp | QvxDiagnostics::tagsOnSameLine, {}, 0, {}, level, what,
                            {place});
        if (platform.hooks.commands != nullptr) {
            platform.hooks.commands->handlerStopped(place, what);
        }
    } catch (...) { // NOLINT(bugprone-empty-catch): a report that fails must not bring down what it reports on
    }
}

} // namespace

bool guarded(const Platform& platform, const std::function<std::string()>& where, const std::function<void()>& work) {
    try {
        work();
        return true;
    } catch (const wire::Cancelled& cancelled) {
        report(platform, where, "INFO", cancelled.what());
    } catch (const char* text) {
        report(platform, where, "ERROR", text != nullptr ? text : "Unknown exception");
    } catch (const std::exception& failure) {
        report(platform, where, "ERROR", failure.what());
    } catch (...) {
        report(platform, where, "ERROR", "Unknown exception");
    }
    return false;
}

} // namespace platform
