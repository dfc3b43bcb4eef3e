#pragma once

#include "protocol/drivers/DriverBrand.h"
#include "protocol/drivers/DriverModel.h"
#include "tests/support/FakeEstate.h"

#include <map>
#include <string>
#include <vector>

namespace support {

// What a FakeEstate lists of the driver catalogue. It has to outlive the commands.
class DriverEstate {
public:
    explicit DriverEstate(FakeEstate& estate);
    DriverEstate(const DriverEstate&) = delete;
    DriverEstate& operator=(const DriverEstate&) = delete;

    // Set these only between commands. Lists are sent in this order.
    std::vector<protocol::DriverBrandRecord> brands;
    std::map<std::string, std::vector<protocol::DriverModelRecord>> models; // by the id of the brand

    // Two brands with two models each: the brands "acme" and "oki", the models "a1", "a2", "o1" and "o2".
    void addSamples();
};

} // namespace support
