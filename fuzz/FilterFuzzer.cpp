#include "fuzz/Expect.h"
#include "fuzz/Fuzzer.h"
#include "fuzz/Input.h"
#include "shell/RowFilter.h"

#include <string>
#include <vector>

// Filters as people may type them, on a row with texts and numbers.

namespace {

class Cells final : public shell::FilteredCells {
public:
    explicit Cells(wire::WideString text, std::int64_t number) : text_(std::move(text)), number_(number) {}

    [[nodiscard]] wire::WideStringView text(std::int32_t column) const override {
        fuzz::expect(column >= 0 && column < 3);
        return column == 0 ? wire::WideStringView(text_) : column == 1 ? u"10" : u"";
    }
    [[nodiscard]] std::optional<std::int64_t> number(std::int32_t column) const override {
        return column == 1 ? std::optional(number_) : std::nullopt;
    }

private:
    wire::WideString text_;
    std::int64_t number_;
};

const std::vector<wire::WideString> titles{u"Queue Name", u"Jobs", u"Location"};

void checkProblems(const std::vector<shell::FilterProblem>& problems, std::size_t size) {
    for (const auto& problem : problems) {
        fuzz::expect(problem.begin < size && problem.length > 0 && problem.length <= size - problem.begin);
        fuzz::expect(!shell::describe(problem).empty());
    }
}

// A filter in quotes finds its own text.
void findItself(const wire::WideString& text) {
    wire::WideString quoted = u"\"";
    for (const char16_t unit : text) {
        quoted.append(unit == u'"' ? 2U : 1U, unit);
    }
    quoted += u'"';
    const shell::RowFilter filter(quoted, titles);
    fuzz::expect(filter.problems().empty());
    fuzz::expect(filter.matches(Cells(text, 0)));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    const std::int64_t number = input.byte();
    const std::string bytes(input.rest().begin(), input.rest().end());
    const auto text = wire::toWide(bytes);

    const shell::RowFilter filter(text, titles);
    checkProblems(filter.problems(), text.size());
    static_cast<void>(filter.matches(Cells(text, number)));
    static_cast<void>(filter.matches(Cells(u"Hall 1", number)));
    findItself(text);
    return 0;
}
