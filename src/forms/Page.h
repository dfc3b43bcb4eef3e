#pragma once

#include "forms/Container.h"
#include "wire/Text.h"

#include <string_view>

namespace forms {

class Tabs;

// One page of a tab control.
class Page final : public Container {
public:
    Page(Tabs& tabs, std::u16string_view title);

    const wire::WideString& title() const { return title_; }
    Tabs& tabs() const { return tabs_; }
    Form& form() override;
    bool shown() const override;
    bool usable() const override;

private:
    Tabs& tabs_;
    wire::WideString title_;
};

} // namespace forms
