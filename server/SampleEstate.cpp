#include "server/SampleEstate.h"

#include "server/alarms/AlarmSample.h"
#include "server/configurations/ConfigurationSample.h"
#include "server/drivers/DriverSample.h"
#include "server/estate/RegionSample.h"
#include "server/inventory/InventorySample.h"
#include "server/rules/RuleSample.h"

namespace server {

namespace {

// Each part of the estate has its own random seed, so that changing one part leaves the others as they were.
enum Seed : std::uint32_t { driverSeed = 1, configurationSeed, alarmSeed, ruleSeed, inventorySeed };

} // namespace

void SampleEstate::fillSmall() {
    addDrivers(RegionSample::printersInSmall);
    RegionSample(connection_).fillSmall();
    addTheRest(RegionSample::printersInSmall);
}

void SampleEstate::fill(int printers) {
    addDrivers(printers);
    RegionSample(connection_).fill(printers);
    addTheRest(printers);
}

void SampleEstate::addDrivers(int printers) {
    SampleRandom random(driverSeed);
    addDriverSample(connection_, random, printers);
}

void SampleEstate::addTheRest(int printers) {
    const auto add = [&](auto& part, std::uint32_t seed) {
        SampleRandom random(seed);
        part(connection_, random, printers);
    };
    add(addConfigurationSample, configurationSeed);
    add(addAlarmSample, alarmSeed);
    add(addRuleSample, ruleSeed);
    add(addInventorySample, inventorySeed);
}

} // namespace server
