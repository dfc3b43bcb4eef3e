#pragma once

#include <cstddef>
#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace transcripts {

// A command line with what it prints and the exit status that it leaves.
struct Exchange {
    std::size_t number = 0;            // of its line in the file
    std::vector<std::string> above;    // comments and empty lines, as they stand
    std::vector<std::string> command;  // as typed, behind "$ ", with the lines that continue it
    std::vector<std::string> expected; // patterns, one for each line
    int status = 0;
    bool byVantrelctl = false; // whatever host the transcript runs on
};

// What somebody types into a shell and reads there:
//
//     # Regions can be made and deleted.
//
//     $ vantrelctl run Printers "Create region" --set "Region Name=North" --press OK
//     $ vantrelctl show Printers/Nowhere
//     vantrelctl: There is no "Nowhere" below "Printers"; there is "Berlin", "North"
//     ? 1
//
// A line that ends with a blank and a backslash goes on in the next one. "$ vantreld restart" ends the server and
// starts it again on its database. The locale is C.UTF-8; "LC_ALL=de_DE.UTF-8" or "LC_ALL=en_US.UTF-8" may stand in
// front of a command. What changes from run to run stands there as a pattern (see LinePattern.h); {port} is the port of
// the server.
//
// A comment "# host: vantrelctl" right above a command has that one carried out by vantrelctl on every host. In the
// first line of the file it means all of them, and the transcript runs on vantrelctl alone. There a line is one of a
// real shell, in a folder of the transcript's own.
struct Transcript {
    std::vector<Exchange> exchanges;
    std::vector<std::string> below; // what follows the last one

    // Throws std::runtime_error for a line in front of the first command that is no comment.
    static Transcript read(std::istream& text);
    void write(std::ostream& out) const;
};

} // namespace transcripts
