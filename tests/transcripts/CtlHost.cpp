#include "tests/transcripts/CtlHost.h"

#include "hosts/common/IniSettingsStore.h"
#include "tests/hosts/ctl/Program.h"

#include <cstdlib>
#include <filesystem>

namespace transcripts {
namespace {

// In which the shell finds vantrelctl first.
std::string searchPath() {
    const char* const others = std::getenv("PATH");
    return std::filesystem::path(VANTRELCTL_PROGRAM).parent_path().string() + ':' + (others != nullptr ? others : "");
}

} // namespace

Outcome CtlHost::run(const std::string& line) {
    rememberLogin();
    const auto outcome =
        hosttest::runProgram({"/bin/sh", "-c", line}, {{"PATH", searchPath()},
                                                       {"XDG_CONFIG_HOME", server_.folder() / "config"},
                                                       {"XDG_STATE_HOME", server_.folder() / "state"},
                                                       {"VANTREL_PASSWORD", SampleServer::password}});
    return {.status = outcome.status, .text = outcome.output + outcome.errors};
}

void CtlHost::rememberLogin() {
    if (rememberedPort_ == server_.port()) {
        return;
    }
    rememberedPort_ = server_.port();
    common::IniSettingsStore settings(server_.folder() / "config/vantrel/admin.ini");
    settings.write("ServerName", u"127.0.0.1");
    settings.write("ServerPort", wire::toWide(std::to_string(rememberedPort_)));
    settings.write("UserName", u"admin");
}

} // namespace transcripts
