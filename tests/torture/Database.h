#pragma once

#include <filesystem>
#include <string>
#include <vector>

// What stands in a server's database file, looked at from outside.
namespace torture {

using Contents = std::vector<std::string>;

// Puts the file and its write-ahead log, as they are at this moment, into the folder; returns where the file is now.
std::filesystem::path copyDatabase(const std::filesystem::path& file, const std::filesystem::path& folder);

// Leaves only what was synced: the copies that the synced files have left take the places of the files.
void losePower(const std::filesystem::path& file);

// What SQLite finds wrong with a database that no server has; empty when it is well.
[[nodiscard]] std::string damageOf(const std::filesystem::path& file);

// Every row of every table as a line of text, sorted. Uuids that are not among the known contents, which the server has
// thought of itself, are not told apart.
[[nodiscard]] Contents contentsOf(const std::filesystem::path& file, const Contents& known = {});

// The lines of which only one has as many, those of the first after a plus; empty when the two are the same.
[[nodiscard]] std::string differenceOf(const Contents& one, const Contents& other);

} // namespace torture
