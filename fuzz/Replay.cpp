#include "fuzz/Fuzzer.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <vector>

// Runs a fuzzer on stored inputs, without searching for new ones: files, and all files of folders.

namespace {

void addInputs(const std::filesystem::path& path, std::set<std::filesystem::path>& inputs) {
    if (!std::filesystem::is_directory(path)) {
        inputs.insert(path);
        return;
    }
    for (const auto& entry : std::filesystem::directory_iterator(path)) {
        inputs.insert(entry.path());
    }
}

bool run(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        return false;
    }
    const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), {}};
    const auto* const data = reinterpret_cast<const std::uint8_t*>(bytes.data());
    return LLVMFuzzerTestOneInput(data, bytes.size()) == 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        std::set<std::filesystem::path> inputs;
        for (int index = 1; index < argc; ++index) {
            addInputs(argv[index], inputs);
        }
        for (const auto& input : inputs) {
            std::cout << input.filename().string() << std::endl; // before the run, so that the failing input is known
            if (!run(input)) {
                std::cerr << "cannot read " << input.string() << '\n';
                return 1;
            }
        }
        std::cout << inputs.size() << " inputs\n";
        return inputs.empty() ? 1 : 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
