#include "tests/support/MadeLocales.h"

#include <cstdlib>
#include <stdexcept>
#include <system_error>

namespace support {
namespace {

std::filesystem::path freshFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "vantrel-locales-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("no folder for locales");
    }
    return pattern;
}

void makeLocale(const std::filesystem::path& folder, const std::string& name) {
    const auto dot = name.find('.');
    const std::string command = "localedef --no-archive -i " + name.substr(0, dot) + " -f " + name.substr(dot + 1) +
                                " '" + (folder / name).string() + "'";
    if (std::system(command.c_str()) != 0) {
        throw std::runtime_error("the locale " + name + " can't be made (is the package \"locales\" installed?)");
    }
}

} // namespace

MadeLocales::MadeLocales(std::initializer_list<std::string> names) : folder_(freshFolder()) {
    for (const std::string& name : names) {
        makeLocale(folder_, name);
    }
    searched_.emplace("LOCPATH", folder_.string());
}

MadeLocales::~MadeLocales() {
    searched_.reset();
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

} // namespace support
