#pragma once

#include <map>
#include <span>
#include <vector>

namespace forms {

class Control;

// Which controls of a container belong to which others: those that the form puts beside another, and the buttons behind
// a box that they fill or act on.
class Neighbours {
public:
    explicit Neighbours(std::span<Control* const> controls);

    [[nodiscard]] bool goesWithAnother(const Control& control) const { return partners_.contains(&control); }
    // The controls that belong to this one, in order; each may have its own in turn.
    [[nodiscard]] std::span<Control* const> of(const Control& control) const;

private:
    void pairAsTheFormSays(std::span<Control* const> controls);
    void pairButtonsWithBoxes(std::span<Control* const> controls);
    // Does nothing if the partner already belongs to the control, so that no circle arises.
    void pair(Control& control, const Control& partner);

    std::map<const Control*, const Control*> partners_;
    std::map<const Control*, std::vector<Control*>> others_;
};

} // namespace forms
