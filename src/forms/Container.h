#pragma once

#include <vector>

namespace forms {

class Control;
class Form;

// What controls stand on: a form, a group box, a page of a tab control. Keeps them in the order in which they were
// made, which is also the order of the Tab key.
class Container {
public:
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;
    virtual ~Container() = default;

    [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
    virtual Form& form() = 0;
    // Whether the controls on it can be seen.
    [[nodiscard]] virtual bool shown() const = 0;
    // Whether the controls on it can be used: they can be seen, and no container below them is disabled.
    [[nodiscard]] virtual bool usable() const { return shown(); }

protected:
    Container() = default;

private:
    friend class Control;
    std::vector<Control*> controls_;
};

} // namespace forms
