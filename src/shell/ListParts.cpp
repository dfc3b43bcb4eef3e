#include "shell/ListParts.h"

#include "shell/FoldedText.h"
#include "shell/NaturalOrder.h"
#include "wire/CaseFold.h"

#include <algorithm>
#include <array>
#include <limits>
#include <tuple>
#include <utility>

namespace shell {
namespace {

constexpr std::size_t mostTexts = 32;
constexpr std::size_t mostStates = 8;

// States whose texts go on with a colon and a reason; they are counted together.
struct Severity {
    wire::WideStringView prefix; // in folded case
    wire::WideStringView value;  // in a filter
    wire::WideStringView one;
    wire::WideStringView many;
};
constexpr std::array severities{Severity{u"error:", u"error", u"with an error", u"with errors"},
                                Severity{u"warning:", u"warning", u"with a warning", u"with warnings"}};

std::vector<wire::WideString> wordsOf(wire::WideStringView title) {
    std::vector<wire::WideString> words(1);
    for (const char16_t unit : title) {
        if (unit != u' ') {
            words.back() += unit;
        } else if (!words.back().empty()) {
            words.emplace_back();
        }
    }
    if (words.back().empty()) {
        words.pop_back();
    }
    return words;
}

bool isStatus(wire::WideStringView title) {
    return std::ranges::any_of(wordsOf(wire::foldCase(title)),
                               [](const auto& word) { return word == u"status" || word == u"state"; });
}

// What a column counts, in the plural: "jobs" for "Jobs In Queue", "clients" for "Number of clients". Empty for others.
wire::WideString thingsCounted(wire::WideStringView title) {
    const auto words = wordsOf(wire::foldCase(title));
    if (!words.empty() && words.front() == u"jobs") {
        return words.front();
    }
    const bool isNumber = words.size() == 3 && words[0] == u"number" && words[1] == u"of";
    return isNumber ? words[2] : wire::WideString();
}

wire::WideString singular(wire::WideString plural) {
    if (plural.ends_with(u's')) {
        plural.pop_back();
    }
    return plural;
}

bool isPlain(wire::WideStringView value) {
    constexpr wire::WideStringView special(u"\":<>=-\u00A0\u3000");
    return !value.empty() && std::ranges::all_of(value, [special](char16_t unit) {
        return unit > u' ' && special.find(unit) == wire::WideStringView::npos;
    });
}

wire::WideString quoted(wire::WideStringView value) {
    wire::WideString text(1, u'"');
    for (const char16_t unit : value) {
        text.append(unit == u'"' ? 2 : 1, unit);
    }
    return text + u'"';
}

// How a filter names the column, as short as somebody would type it.
wire::WideString nameOf(std::size_t column, std::span<const wire::WideString> titles) {
    for (const auto& word : wordsOf(wire::foldCase(titles[column]))) {
        if (isPlain(word) && columnCalled(word, titles) == static_cast<std::int32_t>(column)) {
            return word;
        }
    }
    return quoted(titles[column]);
}

// The texts of one column with a status, and how many rows have each.
class States {
public:
    void add(wire::WideStringView text) {
        if (text.empty() || counts_.size() > mostTexts) {
            return;
        }
        // Rows next to each other are often in the same state.
        const auto found = std::ranges::find(counts_, text, &Count::text);
        if (found != counts_.end()) {
            ++found->rows;
        } else {
            counts_.push_back({wire::WideString(text), 1});
        }
    }

    // A column of which only a part is counted is filtered by what it contains.
    void appendParts(std::size_t column, std::span<const wire::WideString> titles, std::vector<ListPart>& parts,
                     wire::WideStringView test = u"=") {
        std::ranges::sort(counts_, {}, [](const Count& count) { return naturalKey(count.text); });
        std::vector<ListPart> found;
        const auto begin = [&] { return nameOf(column, titles) + u':'; };
        for (const Severity& severity : severities) {
            if (const auto rows = takeRowsWith(severity.prefix); rows > 0) {
                found.push_back({.column = static_cast<std::int32_t>(column),
                                 .count = rows,
                                 .text = wire::WideString(rows == 1 ? severity.one : severity.many),
                                 .filter = begin().append(severity.value)});
            }
        }
        for (const Count& count : counts_) {
            if (wire::foldCase(count.text) != wire::foldCase(titles[column])) {
                const auto value = isPlain(count.text) ? count.text : quoted(count.text);
                found.push_back({.column = static_cast<std::int32_t>(column),
                                 .count = count.rows,
                                 .text = count.text,
                                 .filter = begin().append(test) + value});
            }
        }
        if (found.size() <= mostStates) {
            std::ranges::move(found, std::back_inserter(parts));
        }
    }

private:
    struct Count {
        wire::WideString text;
        std::int64_t rows = 0;
    };

    std::int64_t takeRowsWith(wire::WideStringView prefix) {
        std::int64_t rows = 0;
        std::erase_if(counts_, [&](const Count& count) {
            const bool has = wire::foldCase(count.text).starts_with(prefix);
            rows += has ? count.rows : 0;
            return has;
        });
        return rows;
    }

    std::vector<Count> counts_;
};

// A column whose numbers are summed.
struct Sum {
    std::size_t column = 0;
    wire::WideString things; // in the plural
    std::int64_t total = 0;

    void add(const Row& row) {
        constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max(); // more is no number of things
        const auto number = row.node->sortValue(static_cast<std::int32_t>(column)).value_or(0);
        total += number > 0 && number <= most ? number : 0;
    }
};

// The noun for the rows by the title of their names, as long as all are of one class.
wire::WideString nounOf(const ResultPane& pane) {
    if (pane.titles().empty() || pane.unfilteredCount() == 0) {
        return u"row";
    }
    const auto& first = pane.unfilteredRow(0).node->className();
    for (std::size_t row = 1; row < pane.unfilteredCount(); ++row) {
        if (pane.unfilteredRow(row).node->className() != first) {
            return u"row";
        }
    }
    const auto title = wire::foldCase(pane.titles().front());
    constexpr wire::WideStringView name(u" name");
    const bool isNamed = title.size() > name.size() && title.ends_with(name);
    return isNamed ? title.substr(0, title.size() - name.size()) : u"row";
}

// The terms that mean the same, whatever they look like and wherever they stand.
bool sameMeaning(const FilterTerm& a, const FilterTerm& b) {
    return std::tie(a.negated, a.column, a.test, a.text) == std::tie(b.negated, b.column, b.test, b.text);
}

FilterTerm termOf(const ListPart& part, std::span<const wire::WideString> titles) {
    const auto query = parseFilter(part.filter, filterTitles(titles));
    return query.terms.empty() ? FilterTerm() : query.terms.front();
}

void removeTerm(wire::WideString& filter, const FilterTerm& term) {
    const auto end = std::min(term.begin + term.length, filter.size());
    const auto blanks = filter.find_first_not_of(u' ', end);
    filter.erase(term.begin, (blanks == wire::WideString::npos ? filter.size() : blanks) - term.begin);
}

} // namespace

ListSummary summarize(const ResultPane& pane) {
    const auto titles = filterTitles(pane.titles());
    const std::size_t columns = pane.titles().size();
    States ofRows;
    std::vector<std::pair<std::size_t, States>> states;
    std::vector<Sum> sums;
    for (std::size_t column = 0; column < columns; ++column) {
        if (isStatus(titles[column])) {
            states.emplace_back(column, States());
        } else if (auto things = thingsCounted(titles[column]); !things.empty()) {
            sums.push_back({.column = column, .things = std::move(things)});
        }
    }
    for (std::size_t row = 0; row < pane.unfilteredCount(); ++row) {
        if (const auto state = pane.unfilteredRow(row).node->rowState()) {
            ofRows.add(state->words[0]);
        }
        for (auto& [column, counted] : states) {
            counted.add(cellOf(pane.unfilteredRow(row), static_cast<std::int32_t>(column)));
        }
        for (Sum& sum : sums) {
            sum.add(pane.unfilteredRow(row));
        }
    }
    ListSummary summary{.noun = nounOf(pane), .parts = {}};
    ofRows.appendParts(columns, titles, summary.parts, u"");
    for (auto& [column, counted] : states) {
        counted.appendParts(column, titles, summary.parts);
    }
    for (const Sum& sum : sums) {
        if (sum.total > 0) {
            const bool isClear = columnCalled(sum.things, titles) == static_cast<std::int32_t>(sum.column);
            summary.parts.push_back({.column = static_cast<std::int32_t>(sum.column),
                                     .count = sum.total,
                                     .text = sum.total == 1 ? singular(sum.things) : sum.things,
                                     .filter = (isClear ? sum.things : nameOf(sum.column, titles)) + u":>0"});
        }
    }
    return summary;
}

bool asksFor(wire::WideStringView filter, const ListPart& part, std::span<const wire::WideString> titles) {
    const auto wanted = termOf(part, titles);
    return std::ranges::any_of(parseFilter(filter, filterTitles(titles)).terms,
                               [&](const FilterTerm& term) { return sameMeaning(term, wanted); });
}

wire::WideString toggled(wire::WideStringView filter, const ListPart& part, std::span<const wire::WideString> titles) {
    const auto wanted = termOf(part, titles);
    const bool asked = asksFor(filter, part, titles);
    auto terms = parseFilter(filter, filterTitles(titles)).terms;
    wire::WideString next(filter);
    std::ranges::reverse(terms); // so that the places of the remaining ones stay right
    for (const FilterTerm& term : terms) {
        const bool ofPart = term.column == wanted.column && !term.negated &&
                            (term.test == FilterTest::contains || term.test == FilterTest::equal);
        if (asked ? sameMeaning(term, wanted) : ofPart) {
            removeTerm(next, term);
        }
    }
    while (next.ends_with(u' ')) {
        next.pop_back();
    }
    if (asked) {
        return next;
    }
    // An open quote would swallow the part.
    const bool isOpen = std::ranges::any_of(parseFilter(next, titles).problems, [](const FilterProblem& problem) {
        return problem.kind == FilterProblem::Kind::openQuote;
    });
    return next.empty() ? part.filter : isOpen ? part.filter + u' ' + next : next + u' ' + part.filter;
}

} // namespace shell
