#include "tests/torture/Errands.h"

#include "protocol/estate/Printer.h"
#include "wire/Text.h"

namespace torture {

using protocol::printerListMode::followQueuesInRegion;

void Errands::run() {
    name_ = wire::toWide("errand " + std::to_string(++runs_));
    try {
        if (const auto reply = askFor<protocol::CreateRecordReply>(port_, followQueue(region_, name_))) {
            (reply->status.caption.empty() ? acknowledged_ : refused_).insert(name_);
        }
        if (const auto queues = recordsIn(port_, region_, followQueuesInRegion)) {
            for (const auto& queue : *queues) {
                listed_.insert(queue.name);
            }
        }
    } catch (const std::runtime_error&) {
        // The server could not be reached, or had no answer.
    }
}

std::string Errands::lies() const {
    std::multiset<wire::WideString> kept;
    const auto queues = recordsIn(port_, region_, followQueuesInRegion).value();
    for (const auto& queue : queues) {
        kept.insert(queue.name);
    }
    std::string lies;
    const auto check = [&](const std::set<wire::WideString>& names, std::size_t count, const char* lie) {
        for (const auto& name : names) {
            if (kept.count(name) != count) {
                lies += wire::toUtf8(name) + lie + "\n";
            }
        }
    };
    check(acknowledged_, 1, " was acknowledged and is lost");
    check(listed_, 1, " was listed and is lost");
    check(refused_, 0, " was refused and is there");
    return lies;
}

} // namespace torture
