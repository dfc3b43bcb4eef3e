#include "hosts/common/IniSettingsStore.h"

#include "hosts/common/IniText.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <system_error>
#include <utility>

namespace common {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t longestFile = 1 << 20;

// Empty when there is no file to read.
std::optional<std::string> contentOf(const fs::path& file) {
    std::error_code error;
    if (!fs::is_regular_file(file, error)) {
        return std::nullopt;
    }
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        return std::nullopt;
    }
    std::string content(longestFile + 1, '\0');
    stream.read(content.data(), static_cast<std::streamsize>(content.size()));
    if (stream.bad()) {
        return std::nullopt;
    }
    content.resize(static_cast<std::size_t>(stream.gcount()));
    return content;
}

std::optional<IniText> parsed(const std::string& content) {
    return content.size() > longestFile ? std::nullopt : IniText::parse(content);
}

bool writeAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return ::fsync(descriptor) == 0;
}

// So that the new name survives a power cut; a folder that can't be synchronised is not an error.
void synchroniseFolder(const fs::path& folder) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}

// The old content or the new one, whatever happens in between; readable by the owner only.
bool replaceFile(const fs::path& file, std::string_view content) {
    std::string temporary = file.string() + ".XXXXXX";
    const int descriptor = ::mkostemp(temporary.data(), O_CLOEXEC); // makes it with mode 0600
    if (descriptor < 0) {
        return false;
    }
    const bool written = writeAll(descriptor, content);
    const bool closed = ::close(descriptor) == 0;
    if (!written || !closed || ::rename(temporary.c_str(), file.c_str()) != 0) {
        ::unlink(temporary.c_str());
        return false;
    }
    synchroniseFolder(file.parent_path());
    return true;
}

// A hard link under the first free name, which never takes another file's place.
bool keepBeside(const fs::path& file) {
    const std::string wanted = file.string() + ".bad";
    std::string name = wanted;
    for (int number = 2; ::link(file.c_str(), name.c_str()) != 0; ++number) {
        if (errno != EEXIST) {
            return false;
        }
        name = wanted + std::to_string(number);
    }
    return true;
}

// Makes the folder and those above it; new ones are readable by the owner only.
bool makeFolder(const fs::path& folder) {
    std::error_code error;
    if (folder.empty() || fs::is_directory(folder, error)) {
        return true;
    }
    if (!makeFolder(folder.parent_path())) {
        return false;
    }
    return ::mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST;
}

fs::path homeFolder() {
    const char* const home = std::getenv("HOME");
    if (home != nullptr && *home != '\0') {
        return home;
    }
    const passwd* const user = ::getpwuid(::getuid());
    return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "/";
}

} // namespace

IniSettingsStore::IniSettingsStore(fs::path file) : file_(std::move(file)) {}

fs::path IniSettingsStore::defaultPath() {
    const char* const configured = std::getenv("XDG_CONFIG_HOME");
    const bool usable = configured != nullptr && fs::path(configured).is_absolute();
    return (usable ? fs::path(configured) : homeFolder() / ".config") / "vantrel" / "admin.ini";
}

bool IniSettingsStore::exists() const {
    return contentOf(file_).has_value();
}

std::optional<wire::WideString> IniSettingsStore::read(std::string_view name) const {
    const auto content = contentOf(file_);
    const auto settings = content ? parsed(*content) : std::nullopt;
    return settings ? settings->value(name) : std::nullopt;
}

bool IniSettingsStore::write(std::string_view name, const wire::WideString& value) {
    std::error_code error;
    fs::path target = fs::weakly_canonical(file_, error); // a link to the file stays a link
    if (error) {
        target = file_;
    }
    const auto content = contentOf(target);
    if (!content && fs::exists(target, error)) {
        return false; // it holds something unreadable, so it must not be replaced
    }
    auto settings = content ? parsed(*content) : IniText::parse("[vantrel]\n");
    const bool garbage = !settings.has_value();
    if (garbage) {
        settings = IniText::parse("[vantrel]\n");
    }
    if (!settings->setValue(name, value) || !makeFolder(target.parent_path()) || (garbage && !keepBeside(target))) {
        return false;
    }
    return replaceFile(target, settings->text());
}

} // namespace common
