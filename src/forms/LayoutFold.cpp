#include "forms/LayoutFold.h"

#include "forms/Group.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <optional>
#include <span>
#include <utility>

namespace forms {
namespace {

double heightOf(const Column& column);

// About how high a section is, in rows: good enough to divide a dialog into halves.
class HeightGuess {
public:
    double operator()(const Rows& rows) const {
        std::size_t most = 0;
        for (const auto& column : rows.columns) {
            most = std::max(most, column.size());
        }
        return static_cast<double>(most) + (rows.stretch > 0 ? manyLines : 0);
    }
    double operator()(const Line& /*line*/) const { return 1; }
    double operator()(const Block& block) const {
        double highest = 0;
        for (const BlockPart& part : block.parts) {
            highest = std::max(highest, ofPart(part));
        }
        return highest + (block.caption ? 1 : 0) + (block.below.empty() ? 0 : 1);
    }
    double operator()(const Abreast& abreast) const { return highestOf(abreast.columns); }
    double operator()(const Sheets& sheets) const {
        double highest = 0;
        for (const Sheet& sheet : sheets.sheets) {
            highest = std::max(highest, heightOf(sheet.content));
        }
        return highest + 1;
    }

private:
    static constexpr double manyLines = 3;
    static constexpr double list = 5;

    static double highestOf(const std::vector<Column>& columns) {
        double highest = 0;
        for (const Column& column : columns) {
            highest = std::max(highest, heightOf(column));
        }
        return highest;
    }
    static double ofPart(const BlockPart& part) {
        if (!part.insides.empty()) {
            return highestOf(part.insides) + 1;
        }
        return part.grows ? list : 1;
    }
};

double heightOf(const Column& column) {
    double height = 0;
    for (const Section& section : column.sections) {
        height += std::visit(HeightGuess(), section);
    }
    return height;
}

bool isGroup(const BlockPart& part) {
    return dynamic_cast<const Group*>(part.control) != nullptr;
}

int stretchOf(const Section& section) {
    if (const auto* const rows = std::get_if<Rows>(&section)) {
        return rows->stretch;
    }
    const auto* const block = std::get_if<Block>(&section);
    return block != nullptr ? block->stretch : 0;
}

Column columnOf(std::vector<Section> sections) {
    Column column{.sections = std::move(sections), .grows = false};
    column.grows = std::ranges::any_of(column.sections, [](const Section& each) { return stretchOf(each) > 0; });
    return column;
}

int stretchOf(const std::vector<Column>& columns) {
    int stretch = 0;
    for (const Column& column : columns) {
        for (const Section& section : column.sections) {
            stretch = std::max(stretch, stretchOf(section));
        }
    }
    return stretch;
}

// A section that has been cut out of another one, whose number it keeps: rows of the same one are joined again.
struct Piece {
    std::size_t cutFrom = 0;
    Section section;
};

class Cutter {
public:
    std::vector<Piece> cut(Column column) {
        for (Section& section : column.sections) {
            std::visit([this](auto& each) { add(each); }, section);
            ++number_;
        }
        return std::move(pieces_);
    }

private:
    Section& next() {
        Piece& piece = pieces_.emplace_back();
        piece.cutFrom = number_;
        return piece.section;
    }
    template <class Whole>
    void add(Whole& whole) {
        next().template emplace<Whole>(std::move(whole));
    }
    void add(Rows& rows) {
        if (rows.columns.size() > 1 || rows.stretch > 0) {
            next().emplace<Rows>(std::move(rows));
            return;
        }
        for (Row& row : rows.columns.front()) {
            next().emplace<Rows>().columns.emplace_back().push_back(std::move(row));
        }
    }
    // Groups side by side would be too narrow in half of the dialog.
    void add(Block& block) {
        if (block.parts.size() == 1 || !block.below.empty()) {
            next().emplace<Block>(std::move(block));
            return;
        }
        for (BlockPart& part : block.parts) {
            auto& alone = next().emplace<Block>();
            alone.stretch = part.grows ? block.stretch : 0;
            alone.parts.push_back(std::move(part));
        }
    }

    std::size_t number_ = 0;
    std::vector<Piece> pieces_;
};

Column joined(std::span<Piece> pieces) {
    std::vector<Section> sections;
    std::optional<std::size_t> last;
    for (Piece& piece : pieces) {
        auto* const row = std::get_if<Rows>(&piece.section);
        auto* const above = sections.empty() ? nullptr : std::get_if<Rows>(&sections.back());
        if (row != nullptr && above != nullptr && last == piece.cutFrom) {
            std::ranges::move(row->columns.front(), std::back_inserter(above->columns.front()));
        } else {
            sections.push_back(std::move(piece.section));
        }
        last = piece.cutFrom;
    }
    return columnOf(std::move(sections));
}

// Where the second column begins, so that the higher one is as low as possible; 0 if it can begin nowhere.
std::size_t middleOf(const std::vector<Piece>& pieces) {
    std::vector<double> heights;
    std::ranges::transform(pieces, std::back_inserter(heights),
                           [](const Piece& piece) { return std::visit(HeightGuess(), piece.section); });
    const double whole = std::accumulate(heights.begin(), heights.end(), 0.0);
    double lowest = whole;
    double above = 0;
    std::size_t middle = 0;
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        above += heights[i - 1];
        const double higher = std::max(above, whole - above);
        const bool belongsToAbove = std::holds_alternative<Line>(pieces[i].section);
        if (!belongsToAbove && higher < lowest) {
            lowest = higher;
            middle = i;
        }
    }
    return middle;
}

Column inColumns(Column stacked) {
    auto pieces = Cutter().cut(stacked);
    const std::size_t middle = middleOf(pieces);
    if (middle == 0) {
        return stacked;
    }
    Abreast abreast;
    const std::span all(pieces);
    abreast.columns.push_back(joined(all.first(middle)));
    abreast.columns.push_back(joined(all.subspan(middle)));
    abreast.stretch = stretchOf(abreast.columns);
    const bool grows = abreast.stretch > 0;
    Column column;
    column.sections.emplace_back(std::move(abreast));
    column.grows = grows;
    return column;
}

// Puts the content of each group into two columns.
void foldGroups(Column& column) {
    for (Section& section : column.sections) {
        if (auto* const block = std::get_if<Block>(&section)) {
            for (BlockPart& part : block->parts) {
                if (isGroup(part) && block->parts.size() == 1) {
                    part.insides.front() = inColumns(std::move(part.insides.front()));
                }
            }
        }
    }
}

// What is not in a group goes with the group above it, and above the first group with that one.
Column inSheets(Column stacked) {
    Sheets sheets;
    std::vector<Section> loose;
    const bool grows = stacked.grows;
    for (Section& section : stacked.sections) {
        const auto* const block = std::get_if<Block>(&section);
        if (block != nullptr && isGroup(block->parts.front())) {
            Sheet& sheet = sheets.sheets.emplace_back();
            std::ranges::transform(block->parts, std::back_inserter(sheet.titledBy), &BlockPart::control);
            sheet.content.sections = std::exchange(loose, {});
        }
        auto& target = sheets.sheets.empty() ? loose : sheets.sheets.back().content.sections;
        target.push_back(std::move(section));
    }
    for (Sheet& sheet : sheets.sheets) {
        sheet.content = columnOf(std::move(sheet.content.sections));
        sheets.stretch = std::max(sheets.stretch, stretchOf({sheet.content}));
    }
    Column column;
    column.grows = grows;
    if (sheets.sheets.empty()) {
        column.sections = std::move(loose);
    } else {
        column.sections.emplace_back(std::move(sheets));
    }
    return column;
}

Column inSheetsOfColumns(Column stacked) {
    Column column = inSheets(std::move(stacked));
    if (auto* const sheets = std::get_if<Sheets>(column.sections.data())) {
        for (Sheet& sheet : sheets->sheets) {
            foldGroups(sheet.content);
        }
    }
    return column;
}

std::size_t groupsIn(const Column& column) {
    return static_cast<std::size_t>(std::ranges::count_if(column.sections, [](const Section& section) {
        const auto* const block = std::get_if<Block>(&section);
        return block != nullptr && isGroup(block->parts.front());
    }));
}

} // namespace

Column rearranged(Column stacked, Arrangement arrangement) {
    if (arrangement == Arrangement::stacked || stacked.sections.empty()) {
        return stacked;
    }
    if (arrangement == Arrangement::columns || groupsIn(stacked) < 2) {
        return inColumns(std::move(stacked));
    }
    return arrangement == Arrangement::sheets ? inSheets(std::move(stacked)) : inSheetsOfColumns(std::move(stacked));
}

} // namespace forms
