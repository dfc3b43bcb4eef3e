#pragma once

#include "client/CQVXAdminClass.h"

#include <cstdint>

namespace regions {

// What the lists read before a delete have shown. Unknown when one of them could not be read: then nothing is deleted.
enum class RegionContents : std::uint8_t { empty, something, unknown };

// Reads the printers, the follow-print queues and the sub-regions of a region of printers and queues.
RegionContents readRegionContents(client::CQVXAdminClass& client, std::int32_t regionId);

// Reads the printers of a region of local printers, and nothing else.
RegionContents readLocalRegionContents(client::CQVXAdminClass& client, std::int32_t regionId);

} // namespace regions
