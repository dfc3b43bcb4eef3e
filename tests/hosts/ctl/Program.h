#pragma once

#include <map>
#include <string>
#include <vector>

namespace hosttest {

// The exit status and output of a program.
struct Outcome {
    int status = 0; // minus the signal that killed it
    std::string output;
    std::string errors;
};

// Runs a program until it exits, with an empty standard input. Kills it and throws when it takes more than a minute.
// Environment variables with an empty value are unset.
Outcome runProgram(std::vector<std::string> arguments, const std::map<std::string, std::string>& environment = {});

} // namespace hosttest
