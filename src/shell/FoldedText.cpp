#include "shell/FoldedText.h"

#include "wire/CaseFold.h"

#include <algorithm>

namespace shell {

bool containsFolded(wire::WideStringView text, wire::WideStringView folded) {
    const auto found = std::search(text.begin(), text.end(), folded.begin(), folded.end(),
                                   [](char16_t unit, char16_t wanted) { return wire::foldCase(unit) == wanted; });
    return folded.empty() || found != text.end();
}

} // namespace shell
