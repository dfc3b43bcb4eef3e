#pragma once

#include <variant>
#include <vector>

namespace forms {

class Container;
class Control;
class Form;

// A control among others in a line.
struct LineItem {
    const Control* control = nullptr;
    bool caption = false; // its label stands in front of it
    bool widens = false;  // takes the width that the line has left; at most one of a line
};

// Controls side by side. Where none of them widens, the room stays at the end.
using Line = std::vector<LineItem>;

// A row among others: the labels of all rows are aligned, and so are their boxes.
struct Row {
    const Control* captionOf = nullptr; // whose label stands in front; null for none
    const Control* choice = nullptr;    // the check box or radio button that stands there in its stead
    Line line;
    bool spans = false; // begins where the labels begin
};

// Rows below one another.
struct Rows {
    std::vector<std::vector<Row>> columns; // one, or two beside each other
    int stretch = 0;
};

struct Column;

// A control as wide as the dialog, with what stands on it: a group has one column, a tab control one for each page.
struct BlockPart {
    const Control* control = nullptr;
    std::vector<Column> insides;
    bool grows = false; // in height, where there is room; else it keeps to the top beside a higher one
};

// What takes the whole width: a list, a group or several, a text.
struct Block {
    bool caption = false;         // the label of its only part stands above it
    std::vector<BlockPart> parts; // side by side, equally wide
    Line below;                   // the buttons of a list; empty for none
    int stretch = 0;
};

// What stands on a container, from the top down. Room that is left over in height goes to sections by their stretch;
// one of 0 keeps its height. Where no section grows, the room stays below.
struct Column {
    std::vector<std::variant<Rows, Line, Block>> sections;
    bool grows = false;
};

// The plan of a dialog: what stands where, before anything is measured. It holds for every state of the form: what is
// hidden or disabled has its place too, and a host lets no gap show where nothing of a line or row is visible. Every
// control stands in it once, and so does the label of each control that does not show its label itself.
struct LayoutPlan {
    Column body;
    Line foot; // the standard buttons, at the right
};

LayoutPlan planOf(Form& form);

} // namespace forms
