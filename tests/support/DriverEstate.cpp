#include "tests/support/DriverEstate.h"

#include "tests/support/Bytes.h"

#include <algorithm>
#include <iterator>

namespace support {
namespace {

template <class Record>
std::vector<Bytes> bytesOfRecords(const std::vector<Record>& records) {
    std::vector<Bytes> all;
    std::ranges::transform(records, std::back_inserter(all), [](const Record& record) {
        const auto message = protocol::makeDataMessage(record);
        return Bytes(message->bytes().begin() + 5, message->bytes().end());
    });
    return all;
}

} // namespace

DriverEstate::DriverEstate(FakeEstate& estate) {
    estate.lists[4] = [this](const Bytes&) { return bytesOfRecords(brands); };
    estate.lists[5] = [this](const Bytes& fields) {
        const std::string brandId(fields.begin() + 3, fields.end()); // after the kind of list and the length
        const auto found = models.find(brandId);
        return found != models.end() ? bytesOfRecords(found->second) : std::vector<Bytes>();
    };
}

void DriverEstate::addSamples() {
    brands = {{.brandId = "oki", .name = u"Oki"}, {.brandId = "acme", .name = u"Acme"}};
    models = {{"acme", {{"a1", u"Acme Laser 1", true}, {"a2", u"Acme Laser 2", true}}},
              {"oki", {{"o1", u"Oki C1", true}, {"o2", u"Oki C2", true}}}};
}

} // namespace support
