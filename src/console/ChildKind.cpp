#include "console/ChildKind.h"

#include "client/ConnectFailed.h"
#include "wire/Cancelled.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace console {
namespace {

// Returns whether it is worth reading further kinds.
bool readOne(const ChildKind& kind, CarryOver what, ReadKinds& result, std::size_t place) {
    const auto fail = [&result] {
        if (!result.failure) {
            result.failure = std::current_exception();
        }
    };
    try {
        result.read[place] = kind.read(what);
        return result.read[place];
    } catch (const wire::Cancelled&) {
        fail();
        return false;
    } catch (const client::ConnectFailed&) {
        fail();
        return false;
    } catch (...) {
        fail();
        return true;
    }
}

} // namespace

bool ReadKinds::all() const {
    return std::ranges::find(read, false) == read.end();
}

ReadKinds readKinds(std::span<const ChildKind> kinds, CarryOver what) {
    ReadKinds result;
    std::ranges::transform(kinds, std::back_inserter(result.read), [](const ChildKind& kind) { return !kind.read; });
    for (const bool first : {true, false}) {
        for (std::size_t place = 0; place < kinds.size(); ++place) {
            if (kinds[place].read && kinds[place].readFirst == first && !readOne(kinds[place], what, result, place)) {
                return result;
            }
        }
    }
    return result;
}

} // namespace console
