#include "shell/ViewHistory.h"

namespace shell {

void ViewHistory::visit(console::ScopeId id) {
    if (!visited_.empty()) {
        if (visited_[current_].id == id) {
            return;
        }
        visited_.resize(current_ + 1);
        if (visited_.size() == longest) {
            visited_.erase(visited_.begin());
        }
    }
    visited_.push_back({.id = id, .filter = {}});
    current_ = visited_.size() - 1;
}

void ViewHistory::keepFilter(wire::WideStringView text) {
    if (!visited_.empty()) {
        visited_[current_].filter = text;
    }
}

wire::WideString ViewHistory::filter() const {
    return visited_.empty() ? wire::WideString() : visited_[current_].filter;
}

std::size_t ViewHistory::before(const Exists& exists) const {
    for (std::size_t place = current_; place-- > 0;) {
        if (visited_[place].id != visited_[current_].id && exists(visited_[place].id)) {
            return place;
        }
    }
    return visited_.size();
}

std::size_t ViewHistory::after(const Exists& exists) const {
    for (std::size_t place = current_ + 1; place < visited_.size(); ++place) {
        if (visited_[place].id != visited_[current_].id && exists(visited_[place].id)) {
            return place;
        }
    }
    return visited_.size();
}

console::ScopeId ViewHistory::back(const Exists& exists) {
    const auto place = before(exists);
    if (place >= visited_.size()) {
        return 0;
    }
    current_ = place;
    return visited_[place].id;
}

console::ScopeId ViewHistory::forward(const Exists& exists) {
    const auto place = after(exists);
    if (place >= visited_.size()) {
        return 0;
    }
    current_ = place;
    return visited_[place].id;
}

bool ViewHistory::canGoBack(const Exists& exists) const {
    return before(exists) < visited_.size();
}

bool ViewHistory::canGoForward(const Exists& exists) const {
    return after(exists) < visited_.size();
}

} // namespace shell
