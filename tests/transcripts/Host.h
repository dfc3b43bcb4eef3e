#pragma once

#include <string>
#include <vector>

namespace transcripts {

// What a command line prints, on both outputs, and the exit status that it leaves.
struct Outcome {
    int status = 0;
    std::string text;
};

// A program that shows the console. Carries out a command line as vantrelctl does, in its own way, and says in the same
// words what came of it.
class Host {
public:
    virtual ~Host() = default;

    // The words behind "vantrelctl". Each line begins anew, as in a shell.
    virtual Outcome run(const std::vector<std::string>& words) = 0;
};

} // namespace transcripts
