#pragma once

#include "tests/layering/SourceTree.h"

#include <string>
#include <vector>

namespace layering {

// What is wrong, one line each, beginning with the path; empty when a rule is kept.
using Complaints = std::vector<std::string>;

// Every folder includes only itself and the folders below it in the house; nothing includes a host or a test.
Complaints includesAcrossLayers(const SourceTree& tree);

// Qt, Win32 and SQLite headers stand only in the folders that own them, Win32 headers only in sources there.
Complaints platformHeadersOutside(const SourceTree& tree);

// An include is told from the root of the sources, never from where the including file stands.
Complaints relativeIncludes(const SourceTree& tree);

// No source is longer than 500 lines, and half of the sources of the programs are shorter than 150.
Complaints longSources(const SourceTree& tree);

// CMake files name their sources: a glob misses new files until somebody configures again.
Complaints globbedSources(const SourceTree& tree);

// Every source and header stands in the CMakeLists.txt of its folder, or of the nearest folder above that has one.
Complaints unlistedSources(const SourceTree& tree);

} // namespace layering
