#pragma once

#include <map>
#include <string>
#include <vector>

namespace hosttest {

// What a program has left behind.
struct Outcome {
    int status = 0; // minus the signal that killed it
    std::string output;
    std::string errors;
};

// Runs a program to its end, with nothing on its standard input. Throws when it takes more than a minute, and kills it.
// A variable of the environment with an empty value is not set.
Outcome runProgram(std::vector<std::string> arguments, const std::map<std::string, std::string>& environment = {});

// The same with its standard output going into a file.
Outcome runProgramInto(const std::string& outputFile, std::vector<std::string> arguments);

} // namespace hosttest
