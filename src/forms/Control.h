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

// What of a control has changed, so that a host need mirror only that.
enum class Aspect : std::uint8_t { label, text, items, selection, enabled, visible, focus, limits, columns, pages };

// What every control of a form has: a label, whether it is enabled and visible, and the form that it stands on.
// A control is a member of its form (or of a group or page of it) and knows no widget. Setters are for the form's own
// code and tell the host; the functions whose names begin with "user" are for hosts and tests and tell the form. Those
// do nothing and answer false while the control can't be reached; else the handler runs, even when nothing has changed.
class Control {
public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    // Calls the visitor's function for this kind of control.
    virtual void accept(ControlVisitor& visitor) = 0;

    const wire::WideString& label() const { return label_; }
    void setLabel(wire::WideString label);
    bool enabled() const { return enabled_; }
    void setEnabled(bool enabled);
    bool visible() const { return visible_; }
    void setVisible(bool visible);
    void setFocus();
    // The control and all that it stands on are visible (its page is the one shown) and enabled.
    bool reachable() const;

    // The number by which the platform's own dialogs know the control; none for most.
    std::optional<int> resourceId() const { return resourceId_; }
    void setResourceId(int id) { resourceId_ = id; }

    // What this control stands beside and goes with: a unit beside its number, a list beside its radio button, the
    // buttons of a list, a group beside a group; null for most. Without a label of its own it is called by that of the
    // other.
    const Control* beside() const { return beside_; }
    void setBeside(const Control& other) { beside_ = &other; }

    Form& form() const;
    Container& container() const { return container_; }

    // The keyboard has left the control.
    std::function<void()> onLeave;
    void userLeft();

protected:
    Control(Container& container, std::u16string_view label);

    void changed(Aspect aspect);
    // Runs a handler of the form inside the form's guard: nothing that it throws gets out.
    void run(const std::function<void()>& handler) const;
    // Whether a person can act on the control now; not once its form has ended.
    bool takesInput() const;

private:
    Container& container_;
    wire::WideString label_;
    const Control* beside_ = nullptr;
    std::optional<int> resourceId_;
    bool enabled_ = true;
    bool visible_ = true;
};

} // namespace forms
