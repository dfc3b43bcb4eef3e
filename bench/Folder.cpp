#include "bench/Folder.h"

#include <cstdlib>
#include <stdexcept>
#include <system_error>

namespace bench {

Folder::Folder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "vantrel-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("Cannot make a folder like " + pattern);
    }
    path_ = pattern;
}

Folder::~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

} // namespace bench
