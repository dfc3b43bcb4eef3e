#pragma once

#include <filesystem>

namespace bench {

// A temporary folder on the same disk as the database of a real server; removed with this object.
class Folder {
public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

} // namespace bench
