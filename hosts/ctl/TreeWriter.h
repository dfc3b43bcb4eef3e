#pragma once

#include "hosts/ctl/Options.h"
#include "hosts/ctl/TreeReader.h"

#include <ostream>
#include <span>

namespace ctl {

// Writes a tree with the cells of these columns.
//
// JSON is nested {"name", "cells": {title: text}, "children"}; a node whose children were not read has no "children",
// and without columns there are no "cells". CSV has a line for each node: how many levels it is below the first one,
// its path, and its cells. Else lines lead from a node to its children.
void writeTree(std::ostream& out, const TreeItem& tree, std::span<const wire::WideString> titles, Format format);

} // namespace ctl
