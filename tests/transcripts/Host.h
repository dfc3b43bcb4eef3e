#pragma once

#include <string>

namespace transcripts {

// What a command line prints, on both outputs, and the exit status that it leaves.
struct Outcome {
    int status = 0;
    std::string text;
};

// A program that shows the console. Carries out a line of a shell as vantrelctl does, in its own way, and says in the
// same words what came of it.
class Host {
public:
    virtual ~Host() = default;

    // In front of "vantrelctl" may stand variables of the environment. Each line begins anew.
    virtual Outcome run(const std::string& line) = 0;
};

} // namespace transcripts
