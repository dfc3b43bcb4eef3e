#pragma once

#include "tests/layering/SourceTree.h"

#include <string>
#include <vector>

namespace layering {

// The violations, one line each, starting with the path; empty when a rule is kept.
using Complaints = std::vector<std::string>;

// Every folder includes only itself and the folders below it in the layering; nothing includes a host or a test.
Complaints includesAcrossLayers(const SourceTree& tree);

// Qt, Win32 and SQLite headers are included only in the folders that own them, Win32 headers only in sources there.
Complaints platformHeadersOutside(const SourceTree& tree);

// Include paths start at the source root, never at the including file.
Complaints relativeIncludes(const SourceTree& tree);

// A source includes the header of its own name before all others, which proves that the header compiles alone.
Complaints ownHeaderNotFirst(const SourceTree& tree);

// No source is longer than 500 lines, and half of the sources of the programs are shorter than 150.
Complaints longSources(const SourceTree& tree);

// CMake files name their sources: a glob misses new files until somebody configures again.
Complaints globbedSources(const SourceTree& tree);

// Every source and header is listed in the CMakeLists.txt of its folder, or of the nearest folder above that has one.
Complaints unlistedSources(const SourceTree& tree);

} // namespace layering
