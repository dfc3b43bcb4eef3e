#pragma once

#include <map>
#include <span>
#include <vector>

namespace forms {

class Control;

// Which controls of a container go with which others: those that the form puts beside another, and the buttons behind a
// box that they fill or act on.
class Neighbours {
public:
    explicit Neighbours(std::span<Control* const> controls);

    bool goesWithAnother(const Control& control) const { return partners_.contains(&control); }
    // What goes with the control itself, in their order; that may have others that go with it.
    std::span<Control* const> of(const Control& control) const;

private:
    void pairAsTheFormSays(std::span<Control* const> controls);
    void pairButtonsWithBoxes(std::span<Control* const> controls);
    // Not where the partner goes with the control already: one of a circle stands by itself.
    void pair(Control& control, const Control& partner);

    std::map<const Control*, const Control*> partners_;
    std::map<const Control*, std::vector<Control*>> others_;
};

} // namespace forms
