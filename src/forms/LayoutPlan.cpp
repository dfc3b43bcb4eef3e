#include "forms/LayoutPlan.h"

#include "forms/ControlShape.h"
#include "forms/Form.h"
#include "forms/Group.h"
#include "forms/Label.h"
#include "forms/LayoutFold.h"
#include "forms/Neighbours.h"
#include "forms/Page.h"
#include "forms/RadioButton.h"
#include "forms/Tabs.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace forms {
namespace {

using Controls = std::span<Control* const>;

// A dialog with more rows is too high for small screens: its rows are put into two columns.
constexpr std::size_t rowsInOneColumn = 14;
// How lists and boxes of several lines share the extra height of an enlarged dialog.
constexpr int listStretch = 3;
constexpr int textStretch = 1;

bool isBox(Control& control) {
    const Place place = shapeOf(control).place;
    return place == Place::row || place == Place::field;
}

bool isGroup(const Control* control) {
    return dynamic_cast<const Group*>(control) != nullptr;
}

// Plans the controls of one container.
class ColumnPlanner {
public:
    explicit ColumnPlanner(const Container& container)
        : controls_(container.controls()), neighbours_(container.controls()) {}

    Column plan();

private:
    void addWaiting();
    void addRows(Controls controls);
    void addButtons(Controls buttons);
    void addBlock(Control& control);
    Row rowOf(Control& control, bool hasLabels);
    Line lineOf(Controls controls);
    Line rowLineOf(Controls controls);
    void addToLine(Control& control, Line& line);
    BlockPart partOf(Control& control);
    // Separates the groups that are beside each other from what belongs to them but is not a group.
    void split(Control& control, std::vector<Control*>& abreast, std::vector<Control*>& below) const;
    [[nodiscard]] bool grows(Controls controls) const;

    Controls controls_;
    Neighbours neighbours_;
    Column column_;
    std::vector<Control*> rows_;    // waiting for the end of their section
    std::vector<Control*> buttons_; // likewise
};

Column ColumnPlanner::plan() {
    for (Control* control : controls_) {
        if (neighbours_.goesWithAnother(*control)) {
            continue;
        }
        if (shapeOf(*control).place == Place::button) {
            addRows(std::exchange(rows_, {}));
            buttons_.push_back(control);
        } else if (isBox(*control)) {
            addButtons(std::exchange(buttons_, {}));
            rows_.push_back(control);
        } else {
            addWaiting();
            addBlock(*control);
        }
    }
    addWaiting();
    return std::move(column_);
}

void ColumnPlanner::addWaiting() {
    addRows(std::exchange(rows_, {}));
    addButtons(std::exchange(buttons_, {}));
}

void ColumnPlanner::addRows(Controls controls) {
    if (controls.empty()) {
        return;
    }
    const bool hasLabels = std::ranges::any_of(controls, [this](Control* control) {
        return shapeOf(*control).hasCaption || !neighbours_.of(*control).empty();
    });
    const auto half = controls.size() > rowsInOneColumn ? (controls.size() + 1) / 2 : controls.size();
    Rows rows{.columns = {}, .stretch = grows(controls) ? textStretch : 0};
    for (const Controls part : {controls.first(half), controls.subspan(half)}) {
        if (!part.empty()) {
            auto& column = rows.columns.emplace_back();
            std::ranges::transform(part, std::back_inserter(column),
                                   [&](Control* control) { return rowOf(*control, hasLabels); });
        }
    }
    column_.grows = column_.grows || rows.stretch > 0;
    column_.sections.emplace_back(std::move(rows));
}

void ColumnPlanner::addButtons(Controls buttons) {
    if (!buttons.empty()) {
        column_.sections.emplace_back(lineOf(buttons));
    }
}

void ColumnPlanner::addBlock(Control& control) {
    std::vector<Control*> abreast;
    std::vector<Control*> below;
    split(control, abreast, below);
    Block block{.caption = shapeOf(control).hasCaption, .parts = {}, .below = lineOf(below), .stretch = 0};
    for (Control* each : abreast) {
        block.parts.push_back(partOf(*each));
    }
    if (std::ranges::any_of(block.parts, &BlockPart::grows)) {
        block.stretch = listStretch;
        column_.grows = true;
    }
    column_.sections.emplace_back(std::move(block));
}

Row ColumnPlanner::rowOf(Control& control, bool hasLabels) {
    const ControlShape shape = shapeOf(control);
    const Controls others = neighbours_.of(control);
    if (shape.place == Place::field && !others.empty()) {
        return {.choice = &control, .line = rowLineOf(others)};
    }
    const bool isRadioButton = dynamic_cast<const RadioButton*>(&control) != nullptr;
    return {.captionOf = shape.hasCaption ? &control : nullptr,
            .line = rowLineOf(std::array{&control}),
            .spans = isRadioButton || !hasLabels};
}

Line ColumnPlanner::lineOf(Controls controls) {
    Line line;
    for (Control* control : controls) {
        addToLine(*control, line);
    }
    return line;
}

Line ColumnPlanner::rowLineOf(Controls controls) {
    Line line = lineOf(controls);
    line.back().remark = line.size() > 1 && dynamic_cast<const Label*>(line.back().control) != nullptr;
    return line;
}

void ColumnPlanner::addToLine(Control& control, Line& line) {
    line.push_back({.control = &control,
                    .caption = neighbours_.goesWithAnother(control) && shapeOf(control).hasCaption,
                    .widens = isBox(control) && std::ranges::none_of(line, &LineItem::widens)});
    for (Control* other : neighbours_.of(control)) {
        addToLine(*other, line);
    }
}

BlockPart ColumnPlanner::partOf(Control& control) {
    BlockPart part{.control = &control, .insides = {}, .grows = shapeOf(control).grows};
    if (const auto* const group = dynamic_cast<const Group*>(&control)) {
        part.insides.push_back(ColumnPlanner(*group).plan());
        part.grows = part.insides.front().grows;
    } else if (const auto* const tabs = dynamic_cast<const Tabs*>(&control)) {
        for (const Page* page : tabs->pages()) {
            part.insides.push_back(ColumnPlanner(*page).plan());
        }
    }
    return part;
}

void ColumnPlanner::split(Control& control, std::vector<Control*>& abreast, std::vector<Control*>& below) const {
    abreast.push_back(&control);
    for (Control* other : neighbours_.of(control)) {
        if (isGroup(other)) {
            split(*other, abreast, below);
        } else {
            below.push_back(other);
        }
    }
}

bool ColumnPlanner::grows(Controls controls) const {
    return std::ranges::any_of(
        controls, [this](Control* control) { return shapeOf(*control).grows || grows(neighbours_.of(*control)); });
}

} // namespace

LayoutPlan planOf(Form& form, Arrangement arrangement) {
    LayoutPlan plan{.body = rearranged(ColumnPlanner(form).plan(), arrangement), .foot = {}};
    for (const Button* button : {&form.okButton(), &form.cancelButton()}) {
        plan.foot.push_back({.control = button});
    }
    return plan;
}

} // namespace forms
