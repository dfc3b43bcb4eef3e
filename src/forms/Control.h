#pragma once

#include "wire/Text.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

namespace forms {

class Container;
class ControlVisitor;
class Form;

// Which aspect of a control has changed, so that a host need update only that.
enum class Aspect : std::uint8_t {
    label,
    text,
    items,
    selection,
    enabled,
    visible,
    focus,
    limits,
    columns,
    pages,
    problem
};

// What every control of a form has: a label, whether it is enabled and visible, and the form that it is on. A control
// is a member of its form (or of a group or page of it) and knows no widget. Setters are for the form's own code and
// notify the host; the functions whose names begin with "user" are for hosts and tests and notify the form. Those do
// nothing and return false while the control can't be reached; otherwise the handler runs, even when nothing has
// changed.
class Control {
public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    // Calls the visitor's function for this kind of control.
    virtual void accept(ControlVisitor& visitor) = 0;

    [[nodiscard]] const wire::WideString& label() const { return label_; }
    void setLabel(wire::WideString label);
    [[nodiscard]] bool enabled() const { return enabled_; }
    void setEnabled(bool enabled);
    [[nodiscard]] bool visible() const { return visible_; }
    void setVisible(bool visible);
    void setFocus();
    // Whether the control and all containers that it is on are enabled and visible (its page being the one shown).
    [[nodiscard]] bool reachable() const;

    // The number by which the platform's own dialogs know the control; none for most.
    [[nodiscard]] std::optional<int> resourceId() const { return resourceId_; }
    void setResourceId(int id) { resourceId_ = id; }

    // The control that this one is placed beside and belongs to: the number of a unit, the radio button of a list, the
    // list of a button, another group; null for most. A control without its own label goes by the label of that one.
    [[nodiscard]] const Control* beside() const { return beside_; }
    void setBeside(const Control& other) { beside_ = &other; }

    [[nodiscard]] Form& form() const;
    [[nodiscard]] Container& container() const { return container_; }

    // The keyboard has left the control.
    std::function<void()> onLeave;
    void userLeft();

protected:
    Control(Container& container, std::u16string_view label);

    void changed(Aspect aspect);
    // Runs a handler of the form inside the form's guard: nothing that it throws gets out.
    void run(const std::function<void()>& handler) const;
    // Whether a person can act on the control now; not once its form has ended.
    [[nodiscard]] bool takesInput() const;

private:
    friend class Form;
    // From now on setEnabled enables it no more.
    void disableForGood();

    Container& container_;
    wire::WideString label_;
    const Control* beside_ = nullptr;
    std::optional<int> resourceId_;
    bool enabled_ = true;
    bool disabledForGood_ = false;
    bool visible_ = true;
};

} // namespace forms
