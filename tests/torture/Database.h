#pragma once

#include <filesystem>
#include <string>
#include <vector>

// The content of a server's database file, inspected from outside.
namespace torture {

using Contents = std::vector<std::string>;

// Copies the file and its write-ahead log, as they are at this moment, into the folder; returns the path of the copy.
std::filesystem::path copyDatabase(const std::filesystem::path& file, const std::filesystem::path& folder);

// Keeps only what was synced: replaces the files with the copies made at their last sync.
void losePower(const std::filesystem::path& file);

// What SQLite finds wrong with a database that no server has open; empty when it is sound.
[[nodiscard]] std::string damageOf(const std::filesystem::path& file);

// Every row of every table as a line of text, sorted. Uuids that are not in the known contents, which the server itself
// has created, all look the same.
[[nodiscard]] Contents contentsOf(const std::filesystem::path& file, const Contents& known = {});

// The lines that occur more often in one than in the other, those of the first after a plus; empty when the two are the
// same.
[[nodiscard]] std::string differenceOf(const Contents& one, const Contents& other);

} // namespace torture
