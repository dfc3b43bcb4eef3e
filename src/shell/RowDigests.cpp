#include "shell/RowDigests.h"

#include <algorithm>
#include <array>
#include <functional>
#include <numeric>
#include <span>

namespace shell {
namespace {

std::uint64_t joined(std::uint64_t digest, std::uint64_t value) {
    digest = (digest ^ value) * 0x9E3779B97F4A7C15U;
    return digest ^ digest >> 32U;
}

// Rows that are read together. Most nodes and texts of a long list are out of the processor's reach: it fetches all of
// a block at once, the nodes while the block before is read, and the texts before the first of them is read.
constexpr std::size_t mostTogether = 32;

using RowBlock = std::span<const Row>;
using DigestBlock = std::array<std::uint64_t, mostTogether>;

RowBlock blockOf(RowBlock rows) {
    return rows.first(std::min(rows.size(), mostTogether));
}

void fetchNodes(RowBlock rows) {
    for (const Row& row : rows) {
        __builtin_prefetch(row.node.get());
    }
}

void addCells(RowBlock rows, std::int32_t column, DigestBlock& digests) {
    std::array<const char16_t*, mostTogether> texts{};
    for (std::size_t place = 0; place < rows.size(); ++place) {
        if (const auto number = rows[place].node->sortValue(column)) {
            digests[place] = joined(digests[place], static_cast<std::uint64_t>(*number));
        } else {
            texts[place] = textOf(rows[place], column);
            __builtin_prefetch(texts[place]);
        }
    }
    for (std::size_t place = 0; place < rows.size(); ++place) {
        if (texts[place] != nullptr) {
            digests[place] = joined(digests[place], std::hash<wire::WideStringView>()(texts[place]));
        }
    }
}

// In natural order, which rows that are equal in the column of the order are in too, the rows of a class stand by the
// first column.
DigestBlock digestsOf(RowBlock rows, const std::optional<SortOrder>& order) {
    DigestBlock digests{};
    for (std::size_t place = 0; place < rows.size(); ++place) {
        const Row& row = rows[place];
        digests[place] = joined(static_cast<std::uint64_t>(row.id), std::hash<const void*>()(&row.node->className()));
    }
    addCells(rows, 0, digests);
    if (order && order->column != 0) {
        addCells(rows, order->column, digests);
    }
    return digests;
}

} // namespace

bool RowDigests::note(Lists parts, const std::optional<SortOrder>& order) {
    const auto count = std::transform_reduce(parts.begin(), parts.end(), std::size_t{0}, std::plus<>(),
                                             [](const auto* part) { return part->size(); });
    bool same = noted_ && order == order_ && count == digests_.size();
    noted_ = true;
    order_ = order;
    digests_.resize(count);
    auto noted = digests_.begin();
    for (const auto* const part : parts) {
        for (RowBlock rest = *part; !rest.empty();) {
            const auto block = blockOf(rest);
            rest = rest.subspan(block.size());
            fetchNodes(blockOf(rest));
            const auto digests = digestsOf(block, order);
            same = same && std::equal(digests.begin(), digests.begin() + std::ssize(block), noted);
            noted = std::copy_n(digests.begin(), block.size(), noted);
        }
    }
    return same;
}

} // namespace shell
