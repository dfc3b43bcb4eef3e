#include "forms/FormWalk.h"

#include "forms/Form.h"
#include "forms/Group.h"
#include "forms/Page.h"
#include "forms/Tabs.h"
#include "wire/CaseFold.h"

#include <algorithm>
#include <limits>

namespace forms {
namespace {

constexpr std::u16string_view joint = u": ";

void collect(const Container& container, std::vector<Control*>& all) {
    for (Control* control : container.controls()) {
        all.push_back(control);
        if (const auto* group = dynamic_cast<const Group*>(control)) {
            collect(*group, all);
        } else if (const auto* tabs = dynamic_cast<const Tabs*>(control)) {
            for (const Page* page : tabs->pages()) {
                collect(*page, all);
            }
        }
    }
}

// The control's own name, then the names of what it is beside and on, from the inside out.
std::vector<wire::WideString> namesOf(const Control& control) {
    std::vector<wire::WideString> names{ownName(control)};
    if (control.beside() != nullptr && !control.label().empty()) {
        names.push_back(ownName(*control.beside()));
    }
    const Container* container = &control.container();
    while (container != nullptr) {
        const Container* outer = nullptr;
        if (const auto* group = dynamic_cast<const Group*>(container)) {
            names.push_back(readableLabel(group->label()));
            outer = &group->container();
        } else if (const auto* page = dynamic_cast<const Page*>(container)) {
            names.push_back(readableLabel(page->title()));
            outer = &page->tabs().container();
        }
        container = outer;
    }
    return names;
}

wire::WideString join(const std::vector<wire::WideString>& names, std::size_t count) {
    wire::WideString text = names[0];
    for (std::size_t i = 1; i < count; ++i) {
        text.insert(0, names[i] + wire::WideString(joint));
    }
    return text;
}

constexpr std::size_t noMatch = std::numeric_limits<std::size_t>::max();

// A name as it is compared: ampersands, single or doubled, do not matter.
wire::WideString withoutAmpersands(wire::WideString name) {
    std::erase(name, u'&');
    return name;
}

// How many of the names before the control's own one the given name leaves out.
std::size_t namesLeftOut(const std::vector<wire::WideString>& names, std::u16string_view wanted) {
    for (std::size_t count = names.size(); count > 0; --count) {
        if (wire::compareIgnoringCase(withoutAmpersands(join(names, count)), wanted) == 0) {
            return names.size() - count;
        }
    }
    return noMatch;
}

} // namespace

std::vector<Control*> controlsOf(Form& form) {
    std::vector<Control*> all;
    collect(form, all);
    collect(form.okButton().container(), all);
    return all;
}

wire::WideString readableLabel(std::u16string_view label) {
    wire::WideString text;
    for (std::size_t i = 0; i < label.size(); ++i) {
        if (label[i] == u'&' && i + 1 < label.size()) {
            ++i;
        }
        text += label[i];
    }
    const auto first = text.find_first_not_of(u' ');
    return first == wire::WideString::npos ? wire::WideString()
                                           : text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

wire::WideString ownName(const Control& control) {
    const bool borrows = control.label().empty() && control.beside() != nullptr;
    return borrows ? ownName(*control.beside()) : readableLabel(control.label());
}

wire::WideString fullName(const Control& control) {
    const auto names = namesOf(control);
    return join(names, names.size());
}

std::vector<Control*> findControls(Form& form, std::u16string_view name) {
    const wire::WideString wanted = withoutAmpersands(readableLabel(name));
    std::vector<Control*> found;
    std::size_t fewest = noMatch;
    for (Control* control : controlsOf(form)) {
        const std::size_t leftOut = wanted.empty() ? noMatch : namesLeftOut(namesOf(*control), wanted);
        if (leftOut < fewest) {
            found.clear();
            fewest = leftOut;
        }
        if (leftOut != noMatch && leftOut == fewest) {
            found.push_back(control);
        }
    }
    return found;
}

bool isOffered(const Control& control) {
    if (!control.visible()) {
        return false;
    }
    if (const auto* const group = dynamic_cast<const Group*>(&control.container())) {
        return isOffered(*group);
    }
    const auto* const page = dynamic_cast<const Page*>(&control.container());
    return page == nullptr || (page->visible() && isOffered(page->tabs()));
}

bool reveal(Control& control) {
    if (auto* const group = dynamic_cast<Group*>(&control.container())) {
        return reveal(*group);
    }
    auto* const page = dynamic_cast<Page*>(&control.container());
    if (page == nullptr) {
        return true;
    }
    Tabs& tabs = page->tabs();
    if (!reveal(tabs)) {
        return false;
    }
    const auto place = std::ranges::find(tabs.pages(), page) - tabs.pages().begin();
    const auto index = static_cast<std::size_t>(place);
    return tabs.current() == index || tabs.userShowed(index);
}

} // namespace forms
