#pragma once

#include "forms/LayoutPlan.h"

#include <string>

namespace forms {

// A plan as text, a line for each line of the dialog: "[Name]" is a label, "<Name>" a control that takes the remaining
// width, "Name" any other one. A bar marks where the boxes of aligned rows begin. A control without a label is "_".
// "level" stands before a remark.
std::string planText(const Column& column, int indent = 0);
std::string planText(const Line& line);

} // namespace forms
