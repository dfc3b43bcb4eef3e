#pragma once

#include "console/ItemFields.h"

#include <cstdint>

namespace console {

class IComponent;
class IComponentData;
class IImageList;

// What the console tells a node; the numbers are the platform's MMCN_ values.
enum class Event : std::uint32_t {
    addImages = 0x8002,
    buttonClick = 0x8003,
    columnClick = 0x8005,
    cutOrMove = 0x8007,
    doubleClick = 0x8008,
    deleteItem = 0x8009,
    expand = 0x800B,
    paste = 0x800F,
    queryPaste = 0x8011,
    refresh = 0x8012,
    rename = 0x8014,
    select = 0x8015,
    show = 0x8016,
    viewChange = 0x8017,
    contextHelp = 0x8019
};

// Which side of the console a request is about; the numbers are the platform's CCT_ values.
enum class DataObjectType : std::uint32_t {
    scope = 0x8000,
    result = 0x8001,
    snapinManager = 0x8002,
    uninitialized = 0xFFFF
};

// One notification. `arg` and `param` mean what the event says:
//   expand      arg: 0 collapse, 1 expand, 2 refresh; param: the scope row
//   show        arg: shown or hidden; param: the scope row
//   refresh     arg: the scope row
//   select      arg: bit 0 scope, bit 1 selected
//   columnClick arg: the column
//   rename      text: the new name
//   paste, queryPaste, cutOrMove   source: the node that was cut
//   addImages   images: the list that takes the strips; param: the scope row
struct Notification {
    Event event = Event::select;
    std::intptr_t arg = 0;
    std::intptr_t param = 0;
    const char16_t* text = nullptr;
    CSnapInItem* source = nullptr;
    IImageList* images = nullptr;
    IComponentData* componentData = nullptr;
    IComponent* component = nullptr;
    DataObjectType type = DataObjectType::scope;
};

} // namespace console
