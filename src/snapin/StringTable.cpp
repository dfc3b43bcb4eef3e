#include "snapin/StringTable.h"

namespace snapin {

std::u16string_view stringTable(std::int32_t id) {
    switch (id) {
    case resourceId::description:
        return u"Vantrel Print Management is a Microsoft Management Console (MMC) snap-in that is used to manage "
               u"Vantrel print servers and printers.";
    case resourceId::provider:
        return u"Vantrel";
    case resourceId::version:
        return u"Version 1.0.2";
    default:
        return {};
    }
}

} // namespace snapin
