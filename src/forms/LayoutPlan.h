#pragma once

#include <array>
#include <cstdint>
#include <variant>
#include <vector>

namespace forms {

class Container;
class Control;
class Form;

// A control in a line.
struct LineItem {
    const Control* control = nullptr;
    bool caption = false; // its label is in front of it
    bool widens = false;  // takes the remaining width of the line; at most one per line
    bool remark =
        false; // ends a row; as wide as the other remarks of its rows, so that the boxes before them are level
};

// Controls side by side. If none of them widens, the free space is at the end.
using Line = std::vector<LineItem>;

// A row of a dialog: the labels of all rows are aligned, and so are their boxes.
struct Row {
    const Control* captionOf = nullptr; // the control whose label is in front; null for none
    const Control* choice = nullptr;    // the check box or radio button that is there instead
    Line line;
    bool spans = false; // starts at the left edge of the labels
};

// Rows below one another.
struct Rows {
    std::vector<std::vector<Row>> columns; // one, or two beside each other
    int stretch = 0;
};

struct Column;

// A control as wide as the dialog, with the controls on it: a group has one column, a tab control one for each page.
struct BlockPart {
    const Control* control = nullptr;
    std::vector<Column> insides;
    bool grows = false; // in height, if there is room; otherwise it stays at the top beside a taller one
};

// What takes the whole width: a list, a group or several, a text.
struct Block {
    bool caption = false;         // the label of its only part is above it
    std::vector<BlockPart> parts; // side by side, equally wide
    Line below;                   // the buttons of a list; empty for none
    int stretch = 0;
};

// Columns beside each other, equally wide.
struct Abreast {
    std::vector<Column> columns;
    int stretch = 0;
};

struct Sheet;

// Sheets behind each other, each with a tab. They belong to the layout: the form knows nothing of them, and a control
// that gets the focus brings its sheet to the front.
struct Sheets {
    std::vector<Sheet> sheets;
    int stretch = 0;
};

// The content of a container, from the top down. Extra height is shared among the sections by their stretch; a section
// with 0 keeps its height. If no section grows, the extra height stays at the bottom.
struct Column {
    std::vector<std::variant<Rows, Line, Block, Abreast, Sheets>> sections;
    bool grows = false;
};

using Section = decltype(Column::sections)::value_type;

// A sheet, and the groups on it whose labels are its title.
struct Sheet {
    std::vector<const Control*> titledBy;
    Column content;
};

// How a dialog is arranged, from the one that is easiest to read to the one that needs the least height. A host takes
// the first that the screen has room for; only if there is none does the dialog scroll, and then without its foot.
enum class Arrangement : std::uint8_t {
    stacked,
    columns,         // two beside each other
    sheets,          // a sheet for each group
    sheetsOfColumns, // and two columns within large groups
};

inline constexpr std::array arrangements{Arrangement::stacked, Arrangement::columns, Arrangement::sheets,
                                         Arrangement::sheetsOfColumns};

// The plan of a dialog: what goes where, before anything is measured. It holds for every state of the form: hidden and
// disabled controls have their place too, and a host leaves no gap for a line or row of which nothing is visible. It
// contains every control once, and also the label of each control that does not show its label itself.
struct LayoutPlan {
    Column body;
    Line foot; // the standard buttons, at the right
};

LayoutPlan planOf(Form& form, Arrangement arrangement = Arrangement::stacked);

} // namespace forms
