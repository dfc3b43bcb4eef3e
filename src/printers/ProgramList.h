#pragma once

#include "forms/DropList.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace printers {

// The programs of one kind in a dialog of a printer, with "NONE" in front.
class ProgramList {
public:
    // The kind is one of protocol::alarmProgramKind.
    ProgramList(forms::Container& container, std::u16string_view label, std::uint8_t kind)
        : list(container, label), kind_(kind) {}
    ProgramList(const ProgramList&) = delete;
    ProgramList& operator=(const ProgramList&) = delete;

    // Reads the programs and selects the one with the id. Throws what the client throws, and client::ConnectFailed
    // without an answer: then the dialog must not be confirmed, since it would take the program away.
    void fill(const std::string& id);

    forms::DropList list; // the data of a row is the program's id

private:
    std::uint8_t kind_;
};

} // namespace printers
