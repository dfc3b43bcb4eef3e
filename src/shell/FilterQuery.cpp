#include "shell/FilterQuery.h"

#include "shell/FilterValue.h"
#include "shell/NaturalOrder.h"
#include "wire/CaseFold.h"

#include <algorithm>
#include <array>
#include <utility>

namespace shell {
namespace {

constexpr char16_t quote = u'"';

// The longer ones first.
constexpr std::array<std::pair<std::u16string_view, FilterTest>, 5> tests{{{u">=", FilterTest::greaterOrEqual},
                                                                           {u"<=", FilterTest::lessOrEqual},
                                                                           {u">", FilterTest::greater},
                                                                           {u"<", FilterTest::less},
                                                                           {u"=", FilterTest::equal}}};

constexpr bool isBlank(char16_t unit) {
    return unit == u' ' || unit == u'\t' || unit == u'\u00A0' || unit == u'\u3000';
}

// A title or its beginning, as two of them are compared.
wire::WideString titleKey(wire::WideStringView title) {
    auto key = wire::foldCase(title);
    std::erase_if(key, isBlank);
    return key;
}

// Whether a word of the title after the first begins with the key, which may go on across blanks.
bool hasWordLike(wire::WideStringView title, wire::WideStringView key) {
    for (std::size_t place = 1; place < title.size(); ++place) {
        if (isBlank(title[place - 1]) && !isBlank(title[place]) && titleKey(title.substr(place)).starts_with(key)) {
            return true;
        }
    }
    return false;
}

// A word, or a text in quotes.
struct Value {
    wire::WideString text;
    bool quoted = false;
    bool open = false; // without a closing quote
};

// Reads a filter term by term.
class FilterParser {
public:
    FilterParser(wire::WideStringView text, std::span<const wire::WideString> titles) : text_(text), titles_(titles) {}

    FilterQuery parse() {
        while (skipBlanks()) {
            const auto begin = at_;
            const auto terms = query_.terms.size();
            readTerm();
            if (query_.terms.size() > terms) {
                query_.terms.back().begin = begin;
                query_.terms.back().length = at_ - begin;
            }
        }
        return std::move(query_);
    }

private:
    [[nodiscard]] bool atEnd() const { return at_ == text_.size(); }
    [[nodiscard]] bool isAt(char16_t unit) const { return !atEnd() && text_[at_] == unit; }

    // False at the end.
    bool skipBlanks() {
        while (!atEnd() && isBlank(text_[at_])) {
            ++at_;
        }
        return !atEnd();
    }

    void readTerm() {
        const auto begin = at_;
        const bool negated = isAt(u'-') && at_ + 1 < text_.size() && !isBlank(text_[at_ + 1]);
        at_ += negated ? 1U : 0U;
        const auto beforeName = at_;
        Value name =
            isAt(quote) ? readQuoted() : readUntil([](char16_t unit) { return unit == u':' || unit == quote; });
        if (isAt(u':') && !titleKey(name.text).empty()) {
            ++at_;
            readCondition(begin, negated, std::move(name.text));
            return;
        }
        if (!name.quoted) {
            at_ = beforeName;
            name = readUntil([](char16_t) { return false; });
        }
        addText(negated, name.text);
    }

    void readCondition(std::size_t begin, bool negated, wire::WideString name) {
        const auto column = columnCalled(name, titles_);
        const auto beforeTest = at_;
        const auto test = readTest();
        const auto sign = text_.substr(beforeTest, at_ - beforeTest);
        const Value value = isAt(quote) ? readQuoted() : readUntil([](char16_t) { return false; });
        if (!column) {
            noteUnknown(begin, name);
            addText(negated, name.append(u":").append(sign).append(value.text));
        } else if (!value.text.empty()) {
            addCondition({.negated = negated, .column = column, .test = test}, value.text);
        } else if (value.quoted && !value.open && (test == FilterTest::contains || test == FilterTest::equal)) {
            query_.terms.push_back({.negated = negated, .column = column, .test = FilterTest::empty});
        }
    }

    // A name that begins with a digit is rather the hour of a time.
    void noteUnknown(std::size_t begin, const wire::WideString& name) {
        if (name.front() < u'0' || name.front() > u'9') {
            query_.problems.push_back(
                {.kind = FilterProblem::Kind::unknownColumn, .name = name, .begin = begin, .length = at_ - begin});
        }
    }

    void addCondition(FilterTerm term, const wire::WideString& value) {
        if (term.test == FilterTest::contains) {
            term.text = wire::foldCase(value);
        } else {
            term.text = naturalKey(value);
            term.numbers = numbersMeant(value);
        }
        query_.terms.push_back(std::move(term));
    }

    void addText(bool negated, const wire::WideString& text) {
        if (!text.empty()) {
            query_.terms.push_back({.negated = negated, .text = wire::foldCase(text)});
        }
    }

    FilterTest readTest() {
        const auto rest = text_.substr(at_);
        const auto* const found =
            std::ranges::find_if(tests, [&](const auto& test) { return rest.starts_with(test.first); });
        if (found == tests.end()) {
            return FilterTest::contains;
        }
        at_ += found->first.size();
        return found->second;
    }

    // To the next blank, or to what ends the word besides.
    template <class Ends>
    Value readUntil(Ends ends) {
        const auto begin = at_;
        while (!atEnd() && !isBlank(text_[at_]) && !ends(text_[at_])) {
            ++at_;
        }
        return {.text = wire::WideString(text_.substr(begin, at_ - begin))};
    }

    // Without a closing quote, to the end.
    Value readQuoted() {
        const auto begin = at_++;
        Value value{.text = {}, .quoted = true};
        while (!atEnd()) {
            if (text_[at_] == quote && !text_.substr(at_ + 1).starts_with(quote)) {
                ++at_;
                return value;
            }
            at_ += text_[at_] == quote ? 1U : 0U;
            value.text += text_[at_++];
        }
        query_.problems.push_back(
            {.kind = FilterProblem::Kind::openQuote, .begin = begin, .length = text_.size() - begin});
        value.open = true;
        return value;
    }

    wire::WideStringView text_;
    std::span<const wire::WideString> titles_;
    std::size_t at_ = 0;
    FilterQuery query_;
};

} // namespace

FilterQuery parseFilter(wire::WideStringView text, std::span<const wire::WideString> titles) {
    return FilterParser(text, titles).parse();
}

std::optional<std::int32_t> columnCalled(wire::WideStringView name, std::span<const wire::WideString> titles) {
    const auto wanted = titleKey(name);
    std::optional<std::int32_t> beginning;
    std::optional<std::int32_t> within;
    for (std::int32_t column = 0; column < std::ssize(titles) && !wanted.empty(); ++column) {
        const auto& title = titles[static_cast<std::size_t>(column)];
        const auto key = titleKey(title);
        if (key == wanted) {
            return column;
        }
        if (!beginning && key.starts_with(wanted)) {
            beginning = column;
        }
        if (!within && hasWordLike(title, wanted)) {
            within = column;
        }
    }
    return beginning ? beginning : within;
}

wire::WideString describe(const FilterProblem& problem) {
    if (problem.kind == FilterProblem::Kind::openQuote) {
        return u"The filter has a quote without an end";
    }
    return u"There is no column \"" + problem.name + u"\"; the filter takes this part as plain text";
}

} // namespace shell
