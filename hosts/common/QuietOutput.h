#pragma once

#include <iostream>
#include <streambuf>

namespace common {

// Discards what is written to std::cout while it lives.
class QuietOutput {
public:
    QuietOutput() : before_(std::cout.rdbuf(&nowhere_)) {}
    QuietOutput(const QuietOutput&) = delete;
    QuietOutput& operator=(const QuietOutput&) = delete;
    ~QuietOutput() {
        std::cout.rdbuf(before_);
        std::cout.clear();
    }

private:
    class Nowhere final : public std::streambuf {
        int_type overflow(int_type c) override { return traits_type::not_eof(c); }
        std::streamsize xsputn(const char* /*text*/, std::streamsize count) override { return count; }
    };

    Nowhere nowhere_;
    std::streambuf* before_;
};

} // namespace common
