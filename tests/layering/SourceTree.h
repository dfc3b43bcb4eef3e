#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace layering {

// One text file of the project; the path is relative to the project's root, with slashes.
struct SourceFile {
    std::string path;
    std::string text;
};

// The sources, headers and CMake files of the project, in the order of their paths.
using SourceTree = std::vector<SourceFile>;

// Throws std::runtime_error when the root contains no src folder, so that a wrong path is not mistaken for a clean
// tree.
SourceTree readSourceTree(const std::filesystem::path& root);

} // namespace layering
