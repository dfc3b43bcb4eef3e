#include "hosts/ctl/ListChoice.h"

#include "hosts/ctl/Failure.h"
#include "hosts/ctl/PrintableText.h"
#include "shell/FilterQuery.h"
#include "shell/RowOrder.h"

#include <ranges>
#include <string_view>

namespace ctl {
namespace {

std::string_view withoutBlanks(std::string_view text) {
    const auto begin = text.find_first_not_of(' ');
    return begin == std::string_view::npos ? std::string_view()
                                           : text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

// The names between the commas.
std::vector<std::string_view> namesIn(std::string_view list, const std::string& option) {
    std::vector<std::string_view> names;
    for (std::size_t begin = 0; begin <= list.size();) {
        const auto end = std::min(list.find(',', begin), list.size());
        names.push_back(withoutBlanks(list.substr(begin, end - begin)));
        if (names.back().empty() || names.back() == "-") {
            throw Failure(ExitStatus::usage,
                          option + " takes names of columns with commas in between, not \"" + std::string(list) + '"');
        }
        begin = end + 1;
    }
    return names;
}

} // namespace

ListChoice parseListChoice(const Options& options) {
    ListChoice choice;
    if (options.columns) {
        for (const auto name : namesIn(*options.columns, "--columns")) {
            choice.columns.push_back(wire::toWide(name));
        }
    }
    if (options.sort) {
        for (const auto name : namesIn(*options.sort, "--sort")) {
            const bool descending = name.front() == '-';
            choice.sort.push_back({wire::toWide(withoutBlanks(name.substr(descending ? 1 : 0))), descending});
        }
    }
    choice.filter = wire::toWide(options.filter.value_or(""));
    return choice;
}

std::int32_t columnOrRefused(const wire::WideString& name, std::span<const wire::WideString> titles) {
    if (const auto column = shell::columnCalled(name, titles)) {
        return *column;
    }
    throw Failure(ExitStatus::refused, "The list has no column \"" + shown(name) + '"' +
                                           (titles.empty() ? "" : "; there is " + listed(titles)));
}

void sortBy(std::vector<const shell::Row*>& rows, const ListChoice& choice, std::span<const wire::WideString> titles) {
    for (const auto& key : std::views::reverse(choice.sort)) {
        if (const auto column = shell::columnCalled(key.column, titles)) {
            shell::sortByColumn(rows, shell::SortOrder{.column = *column, .ascending = !key.descending});
        }
    }
}

} // namespace ctl
