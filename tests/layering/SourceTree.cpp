#include "tests/layering/SourceTree.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>

namespace layering {
namespace {

constexpr std::array<std::string_view, 7> topFolders{"src", "hosts", "server", "tests", "bench", "fuzz", "cmake"};

bool isRead(const std::filesystem::path& file) {
    const auto extension = file.extension();
    return extension == ".cpp" || extension == ".h" || extension == ".cmake" || file.filename() == "CMakeLists.txt";
}

SourceFile readFile(const std::filesystem::path& root, const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw std::runtime_error("Cannot read " + file.string());
    }
    return {file.lexically_relative(root).generic_string(), {std::istreambuf_iterator<char>(stream), {}}};
}

} // namespace

SourceTree readSourceTree(const std::filesystem::path& root) {
    if (!std::filesystem::is_directory(root / "src")) {
        throw std::runtime_error("No sources below " + root.string());
    }
    SourceTree tree{readFile(root, root / "CMakeLists.txt")};
    for (const auto folder : topFolders) {
        if (!std::filesystem::is_directory(root / folder)) {
            continue;
        }
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root / folder)) {
            if (entry.is_regular_file() && isRead(entry.path())) {
                tree.push_back(readFile(root, entry.path()));
            }
        }
    }
    std::ranges::sort(tree, {}, &SourceFile::path);
    return tree;
}

} // namespace layering
