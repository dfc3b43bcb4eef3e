#include "hosts/ctl/TableWriter.h"

#include "shell/ListExport.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace ctl {

void writeTable(std::ostream& out, const shell::Table& table, Format format) {
    if (format == Format::csv) {
        shell::writeCsv(out, table);
    } else {
        shell::writeText(out, table, terminalWidth(STDOUT_FILENO));
    }
}

std::size_t terminalWidth(int descriptor) {
    winsize size{};
    if (isatty(descriptor) == 0 || ioctl(descriptor, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) {
        return shell::unlimitedWidth;
    }
    return size.ws_col;
}

} // namespace ctl
