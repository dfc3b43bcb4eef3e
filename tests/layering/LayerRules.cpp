#include "tests/layering/LayerRules.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <optional>
#include <set>
#include <string_view>

namespace layering {
namespace {

constexpr std::size_t longestSource = 500;
constexpr std::size_t longestMedian = 150;

// The only project header that includes Windows headers; it counts as one of them.
constexpr std::string_view windowsHeader = "src/diagnostics/DbgHelp.h";

// Each folder with its direct dependencies; indirect ones follow from these.
const std::map<std::string, std::vector<std::string>, std::less<>>& house() {
    static const std::map<std::string, std::vector<std::string>, std::less<>> folders{
        {"src/wire", {}},
        {"src/protocol", {"src/wire"}},
        {"src/diagnostics", {}},
        {"src/client", {"src/protocol"}},
        {"src/platform", {"src/client", "src/diagnostics"}},
        {"src/forms", {"src/platform"}},
        {"src/console", {"src/forms"}},
        {"src/rules", {"src/console"}},
        {"src/alarms", {"src/console"}},
        {"src/drivers", {"src/console"}},
        {"src/regions", {"src/rules"}},
        {"src/queues", {"src/regions", "src/drivers"}},
        {"src/migration", {"src/regions"}},
        {"src/printers", {"src/queues", "src/migration", "src/alarms"}},
        {"src/localprinters", {"src/printers"}},
        {"src/inventory", {"src/printers", "src/migration"}},
        {"src/snapin", {"src/localprinters", "src/inventory"}},
        {"src/shell", {"src/console"}},
        {"hosts/common", {"src/snapin", "src/shell"}},
        {"hosts/ctl", {"hosts/common"}},
        {"hosts/desktop/look", {"src/shell"}},
        {"hosts/desktop/forms", {"hosts/desktop/look"}},
        {"hosts/desktop/activity", {"hosts/desktop/forms"}},
        {"hosts/desktop/tree", {"hosts/desktop/activity"}},
        {"hosts/desktop/list", {"hosts/desktop/tree"}},
        {"hosts/desktop/window", {"hosts/desktop/list", "hosts/common"}},
        {"hosts/desktop", {"hosts/desktop/window"}},
        {"hosts/desktop/pictures", {"hosts/desktop/window"}},
        {"hosts/mmc", {"src/snapin"}},
        {"server/log", {}},
        {"server/store", {"src/protocol"}},
        {"server/net", {"src/wire", "server/log"}},
        {"server/commands", {"server/store", "server/log"}},
        {"server/login", {"server/store", "server/net"}},
        {"server/estate", {"server/commands"}},
        {"server/configurations", {"server/estate"}},
        {"server/drivers", {"server/configurations"}}, // removing a deployment also removes what queues use with it
        {"server/rules", {"server/estate"}},
        {"server/alarms", {"server/estate"}},
        {"server/inventory", {"server/estate"}},
        {"server/service", {"server/net", "server/login", "server/commands"}},
        {"server", {"server/service", "server/drivers", "server/rules", "server/alarms", "server/inventory"}},
    };
    return folders;
}

bool startsWithAny(std::string_view text, std::initializer_list<std::string_view> beginnings) {
    return std::ranges::any_of(beginnings, [&](std::string_view start) { return text.starts_with(start); });
}

bool isSource(const SourceFile& file) {
    return file.path.ends_with(".cpp") || file.path.ends_with(".h");
}

// Tests, benchmarks and fuzzers may include everything.
bool isProgramSource(const SourceFile& file) {
    return isSource(file) && startsWithAny(file.path, {"src/", "hosts/", "server/"});
}

// Whether the layering lists subfolders of the folder.
bool hasRooms(std::string_view folder) {
    const auto below = std::string(folder) + "/";
    return std::ranges::any_of(house(), [&](const auto& one) { return one.first.starts_with(below); });
}

// The folder of the layering that a file belongs to: the nearest one above it that is listed, or else the one that
// contains the file. An unlisted folder beside listed subfolders does not belong to any.
std::string folderOf(std::string_view path) {
    const auto own = path.substr(0, path.rfind('/'));
    for (auto folder = own; !folder.empty(); folder = folder.substr(0, folder.rfind('/'))) {
        if (house().contains(folder) && (folder == own || !hasRooms(folder))) {
            return std::string(folder);
        }
        if (folder.find('/') == std::string_view::npos) {
            break;
        }
    }
    return std::string(own);
}

std::string folderOfInclude(const std::string& include) {
    return startsWithAny(include, {"hosts/", "server/", "tests/", "bench/", "fuzz/"}) ? folderOf(include)
                                                                                      : folderOf("src/" + include);
}

struct Include {
    std::string name;
    bool quoted = false;
};

// The lines of a text, without their ends.
std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const auto length = std::min(text.find('\n'), text.size());
        lines.push_back(text.substr(0, length));
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return lines;
}

void skipBlanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
}

bool take(std::string_view& text, std::string_view word) {
    skipBlanks(text);
    if (!text.starts_with(word)) {
        return false;
    }
    text.remove_prefix(word.size());
    skipBlanks(text);
    return true;
}

std::vector<Include> includesOf(const std::string& text) {
    std::vector<Include> includes;
    for (auto line : linesOf(text)) {
        if (!take(line, "#") || !take(line, "include") || !(line.starts_with('"') || line.starts_with('<'))) {
            continue;
        }
        const bool quoted = line.front() == '"';
        const auto end = line.find(quoted ? '"' : '>', 1);
        if (end != std::string_view::npos) {
            includes.push_back({std::string(line.substr(1, end - 1)), quoted});
        }
    }
    return includes;
}

bool isWordCharacter(char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_';
}

// The words of a line of a build script, up to a comment.
std::set<std::string_view> wordsOf(std::string_view line) {
    std::set<std::string_view> words;
    line = line.substr(0, line.find('#'));
    while (!line.empty()) {
        const auto* const end = std::ranges::find_if_not(line, isWordCharacter);
        const auto length = static_cast<std::size_t>(end - line.begin());
        words.insert(line.substr(0, length));
        line.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return words;
}

void addWithBelow(const std::string& folder, std::set<std::string>& below) {
    if (below.insert(folder).second) {
        for (const auto& next : house().at(folder)) {
            addWithBelow(next, below);
        }
    }
}

std::size_t lineCount(const SourceFile& file) {
    return static_cast<std::size_t>(std::ranges::count(file.text, '\n'));
}

bool isQtHeader(const std::string& name) {
    const auto isUpper = [&](std::size_t at) { return at < name.size() && name[at] >= 'A' && name[at] <= 'Z'; };
    const auto isLower = [](char character) { return character >= 'a' && character <= 'z'; };
    if (name == "Qt") {
        return true;
    }
    if (name.starts_with("Qt") && isUpper(2) && name.find('/') != std::string::npos) {
        return std::all_of(name.begin(), std::ranges::find(name, '/'), isWordCharacter);
    }
    if (name.starts_with('Q')) {
        return isUpper(1) && std::ranges::all_of(name, isWordCharacter);
    }
    const auto stem = std::string_view(name).substr(0, name.find('.'));
    return stem.size() > 1 && stem.front() == 'q' && std::ranges::all_of(stem, isLower) &&
           name.substr(stem.size()) == ".h";
}

bool isWin32Header(std::string name) {
    static const std::set<std::string, std::less<>> headers{
        "windows.h",
        "winsock.h",
        "winsock2.h",
        "ws2tcpip.h",
        "mswsock.h",
        "rpc.h",
        "rpcdce.h",
        "objbase.h",
        "unknwn.h",
        "ole2.h",
        "oleauto.h",
        "olectl.h",
        "mmc.h",
        "commctrl.h",
        "commdlg.h",
        "shellapi.h",
        "shlobj.h",
        "shlwapi.h",
        "dbghelp.h",
        "winnls.h",
        "winreg.h",
        "winuser.h",
        "windowsx.h",
        "tlhelp32.h",
        "psapi.h",
        "tchar.h",
        "atlbase.h",
        "atlwin.h",
        "atlcom.h",
        "wincrypt.h",
        "bcrypt.h",
        "winver.h",
        "winbase.h",
        "windef.h",
        "winerror.h",
        "processthreadsapi.h",
        "diagnostics/dbghelp.h",
    };
    std::ranges::transform(name, name.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? char(c + ('a' - 'A')) : c; });
    return headers.contains(name);
}

bool isSqliteHeader(const std::string& name) {
    return name.starts_with("SQLiteCpp/") || name.starts_with("sqlite3");
}

// Tests of what stands in the database look past the store.
bool mayIncludeSqlite(const SourceFile& file) {
    return startsWithAny(file.path, {"server/store/", "tests/server/store/", "tests/server/support/",
                                     "tests/server/SchemaTest.cpp", "tests/torture/", "bench/", "fuzz/"});
}

bool mayIncludeWin32(const SourceFile& file) {
    return file.path.starts_with("hosts/mmc/") || file.path == windowsHeader ||
           (file.path.ends_with(".cpp") && startsWithAny(file.path, {"src/wire/", "src/diagnostics/"}));
}

// The path from which a file's folder lists it, and the text of that list; nothing when no folder above has one.
std::optional<std::pair<std::string, const SourceFile*>> listOf(const SourceFile& file, const SourceTree& tree) {
    for (auto slash = file.path.rfind('/'); slash != std::string::npos && slash > 0;
         slash = file.path.rfind('/', slash - 1)) {
        const auto list = std::ranges::find(tree, file.path.substr(0, slash) + "/CMakeLists.txt", &SourceFile::path);
        if (list != tree.end()) {
            return std::pair{file.path.substr(slash + 1), &*list};
        }
    }
    return std::nullopt;
}

bool isWordIn(const std::string& word, std::string_view text) {
    static constexpr std::string_view separators = " \t\r\n()\";";
    for (auto at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1)) {
        const bool begins = at == 0 || separators.find(text[at - 1]) != std::string_view::npos;
        const auto behind = at + word.size();
        if (begins && (behind == text.size() || separators.find(text[behind]) != std::string_view::npos)) {
            return true;
        }
    }
    return false;
}

} // namespace

Complaints includesAcrossLayers(const SourceTree& tree) {
    Complaints complaints;
    for (const auto& file : tree) {
        if (!isProgramSource(file)) {
            continue;
        }
        const auto folder = folderOf(file.path);
        if (!house().contains(folder)) {
            complaints.push_back(file.path + ": the folder " + folder + " is not listed in the layering");
            continue;
        }
        std::set<std::string> allowed;
        addWithBelow(folder, allowed);
        for (const auto& include : includesOf(file.text)) {
            if (include.quoted && include.name.find("..") == std::string::npos &&
                !allowed.contains(folderOfInclude(include.name))) {
                complaints.push_back(file.path + ": may not include " + include.name);
            }
        }
    }
    return complaints;
}

Complaints platformHeadersOutside(const SourceTree& tree) {
    Complaints complaints;
    for (const auto& file : tree) {
        for (const auto& [name, quoted] : includesOf(file.text)) {
            const bool qt =
                isQtHeader(name) && !startsWithAny(file.path, {"hosts/desktop/", "tests/hosts/desktop/",
                                                               "tests/transcripts/desktop/", "bench/desktop/"});
            const bool win32 = isWin32Header(name) && !mayIncludeWin32(file);
            const bool sqlite = isSqliteHeader(name) && !mayIncludeSqlite(file);
            const bool spdlog = name.starts_with("spdlog/") && !file.path.starts_with("server/log/");
            if (qt || win32 || sqlite || spdlog) {
                complaints.push_back(file.path + ": " + name + " belongs to other folders");
            }
        }
    }
    return complaints;
}

Complaints relativeIncludes(const SourceTree& tree) {
    Complaints complaints;
    for (const auto& file : tree) {
        for (const auto& [name, quoted] : includesOf(file.text)) {
            if (name.starts_with("../") || name.find("/../") != std::string::npos || name.starts_with("./") ||
                (quoted && name.find('/') == std::string::npos)) {
                complaints.push_back(file.path + ": includes " + name + " without its folder");
            }
        }
    }
    return complaints;
}

Complaints ownHeaderNotFirst(const SourceTree& tree) {
    std::set<std::string, std::less<>> headers;
    for (const auto& file : tree) {
        if (file.path.ends_with(".h")) {
            headers.insert(file.path);
        }
    }
    Complaints complaints;
    for (const auto& file : tree) {
        if (!file.path.ends_with(".cpp")) {
            continue;
        }
        const auto header = file.path.substr(0, file.path.size() - 3) + "h";
        const auto name = header.starts_with("src/") ? header.substr(4) : header;
        const auto includes = includesOf(file.text);
        if (headers.contains(header) && (includes.empty() || includes.front().name != name)) {
            complaints.push_back(file.path + ": does not include " + name + " first");
        }
    }
    return complaints;
}

Complaints longSources(const SourceTree& tree) {
    Complaints complaints;
    std::vector<std::size_t> lengths;
    for (const auto& file : tree) {
        if (!isSource(file)) {
            continue;
        }
        const auto lines = lineCount(file);
        if (lines > longestSource) {
            complaints.push_back(file.path + ": " + std::to_string(lines) + " lines");
        }
        if (isProgramSource(file)) {
            lengths.push_back(lines);
        }
    }
    if (!lengths.empty()) {
        const auto middle = lengths.begin() + static_cast<std::ptrdiff_t>(lengths.size() / 2);
        std::ranges::nth_element(lengths, middle);
        if (*middle >= longestMedian) {
            complaints.push_back("The median source has " + std::to_string(*middle) + " lines");
        }
    }
    return complaints;
}

Complaints globbedSources(const SourceTree& tree) {
    const auto globs = [](std::string_view line) {
        const auto words = wordsOf(line);
        return words.contains("GLOB") || words.contains("GLOB_RECURSE") || words.contains("aux_source_directory");
    };
    Complaints complaints;
    for (const auto& file : tree) {
        if (!isSource(file) && std::ranges::any_of(linesOf(file.text), globs)) {
            complaints.push_back(file.path + ": names its sources by a pattern");
        }
    }
    return complaints;
}

Complaints unlistedSources(const SourceTree& tree) {
    Complaints complaints;
    for (const auto& file : tree) {
        if (!isSource(file)) {
            continue;
        }
        const auto list = listOf(file, tree);
        if (!list) {
            complaints.push_back(file.path + ": no CMakeLists.txt above it");
        } else if (!isWordIn(list->first, list->second->text)) {
            complaints.push_back(file.path + ": not named in " + list->second->path);
        }
    }
    return complaints;
}

} // namespace layering
