#pragma once

#include "console/CSnapInItem.h"
#include "console/Guid.h"
#include "console/IImageList.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace console {

// The class id of the snap-in (CLSID_Print), the same for every node.
inline constexpr Guid snapInClassId = guid(u"6F257AE4-F4E0-49EC-AE9D-61078938E7CE");

// A node type, with its text exactly as in the registry, upper and lower case included.
struct NodeType {
    Guid guid;
    std::u16string_view text; // without braces
};

consteval NodeType nodeTypeOf(std::u16string_view text) {
    return {guid(text), text};
}

inline constexpr NodeType noNodeType = nodeTypeOf(u"00000000-0000-0000-0000-000000000000");
inline constexpr NodeType rootNodeType = nodeTypeOf(u"813A64F9-EC5E-4A73-9072-CC3667D1C40F");
inline constexpr NodeType folderNodeType = nodeTypeOf(u"13CBA1B8-C9A1-4a0b-858C-AE981C158B7D");

// What is the same for all nodes of a class.
struct NodeIdentity {
    std::u16string_view displayName{}; // of a new node, and always that of the class
    NodeType nodeType = noNodeType;    // set only for classes that the console must distinguish
    std::int32_t image = 0;
    std::int32_t openImage = image;
    std::int32_t resultImage = image; // as a row of a list, whose strip may differ from the tree's
    std::int32_t children = 0;        // 0 for a leaf
    ImageStrip strip = commonStrip;
    std::int32_t viewOptions = excludeScopeItemsFromList; // 0 lets the console list the scope children itself
};

// A column of a result pane; the title is a literal.
struct Column {
    const char16_t* title = u"";
    double widthFactor = 0; // times the automatic width, cut to whole pixels; 0 leaves it automatic
};

} // namespace console
