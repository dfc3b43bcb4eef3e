#include "hosts/common/Admission.h"

#include "client/CQVXAdminClass.h"
#include "client/ServerCalls.h"
#include "protocol/estate/Printer.h"
#include "wire/Cancelled.h"

namespace common {
namespace {

// A server that turns commands away still gives out its key: whoever wants to log in needs it first.
bool givesOutKey() {
    client::CQVXAdminClass client;
    std::string key;
    const bool failed = client.fetchPublicKey(key, client.settings().host, client.settings().port);
    return !failed;
}

} // namespace

Admission askForAdmission() {
    const protocol::ListPrinterRecordsRequest nothing{
        .printerId = {}, .regionId = 0, .mode = protocol::printerListMode::printerById};
    try {
        client::CQVXAdminClass client;
        client::Exchange exchange(client, protocol::commandOf<protocol::ListPrinterRecordsRequest>());
        if (!exchange.connect()) {
            return Admission::unreachable;
        }
        exchange.send(client::dataMessageOf(nothing));
        if (exchange.receive()) {
            return Admission::admitted;
        }
    } catch (const wire::Cancelled&) {
        return Admission::unreachable;
    } catch (...) { // NOLINT(bugprone-empty-catch): no answer, whatever the reason
    }
    return givesOutKey() ? Admission::turnedAway : Admission::unreachable;
}

} // namespace common
