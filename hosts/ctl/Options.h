#pragma once

#include "hosts/ctl/Step.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace ctl {

enum class Format : std::uint8_t { table, json, csv };

enum class CommandKind : std::uint8_t { login, tree, show, menu, form, run, rename, move, call, commands, script };

// The parsed command line. Texts are UTF-8.
struct Options {
    // The connection; values not given come from the settings.
    std::optional<std::string> server;
    std::optional<std::uint16_t> port;
    std::optional<std::string> user;
    std::optional<std::string> domain;
    std::optional<std::filesystem::path> passwordFile;
    std::optional<std::filesystem::path> settings;

    Format format = Format::table;
    std::optional<std::filesystem::path> activity;

    CommandKind command = CommandKind::login;
    std::string path;
    std::optional<std::uint32_t> depth; // of the tree
    std::optional<std::string> columns; // of a list, with commas in between
    std::optional<std::string> sort;    // the same; descending with a "-" in front
    std::optional<std::string> filter;
    std::optional<std::string> row;
    std::string entry; // of the menu
    std::string newName;
    std::string target; // of a move
    std::string opcode;
    std::vector<std::string> fields; // of a call
    bool asDocument = false;         // of the list of commands: as chapters of a document
    std::string script;              // a file, or "-"
    bool keepGoing = false;
    std::vector<Step> steps;
};

} // namespace ctl
