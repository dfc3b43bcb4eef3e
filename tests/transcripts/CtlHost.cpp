#include "tests/transcripts/CtlHost.h"

#include "tests/hosts/ctl/Program.h"

namespace transcripts {

Outcome CtlHost::run(const std::vector<std::string>& words) {
    std::vector<std::string> all{VANTRELCTL_PROGRAM,
                                 "--settings",
                                 server_.folder() / "settings.ini",
                                 "--server",
                                 "127.0.0.1",
                                 "--port",
                                 std::to_string(server_.port()),
                                 "--user",
                                 "admin",
                                 "--password-file",
                                 server_.passwordFile()};
    all.insert(all.end(), words.begin(), words.end());
    const auto outcome = hosttest::runProgram(all, {{"XDG_STATE_HOME", server_.folder() / "state"}});
    return {.status = outcome.status, .text = outcome.output + outcome.errors};
}

} // namespace transcripts
