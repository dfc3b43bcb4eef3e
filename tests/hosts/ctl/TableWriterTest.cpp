#include "hosts/ctl/TableWriter.h"

#include "shell/ListExport.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

TEST(TerminalWidth, isThatOfTheTerminal) {
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_GE(terminal, 0);
    const winsize size{.ws_row = 24, .ws_col = 72, .ws_xpixel = 0, .ws_ypixel = 0};
    ASSERT_EQ(ioctl(terminal, TIOCSWINSZ, &size), 0);

    EXPECT_EQ(ctl::terminalWidth(terminal), 72U);
    close(terminal);
}

TEST(TerminalWidth, isUnlimitedInAFile) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::tmpfile(), std::fclose);

    EXPECT_EQ(ctl::terminalWidth(fileno(file.get())), shell::unlimitedWidth);
}

} // namespace
