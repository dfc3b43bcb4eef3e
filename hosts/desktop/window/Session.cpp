#include "hosts/desktop/window/Session.h"

namespace desktop {
namespace {

constexpr std::array<std::uint16_t, 4> version{VANTREL_VERSION_MAJOR, VANTREL_VERSION_MINOR, VANTREL_VERSION_PATCH, 0};

} // namespace

Session::Session(platform::SettingsStore& settings)
    : platform_{.ui = ui_,
                .settings = settings,
                .hooks = {.commands = &watch_, .wait = &watch_, .messages = &serverWatch_, .requests = &serverWatch_},
                .productVersion = version,
                .locale = locale_,
                .environment = environment_,
                .launcher = launcher_} {}

} // namespace desktop
