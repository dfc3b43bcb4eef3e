#include "server/Answer.h"

#include "protocol/GetStatusOctetOrderReply.h"
#include "protocol/GetStatusOctetOrderRequest.h"
#include "server/RecordListAnswer.h"
#include "server/RegionListAnswer.h"

namespace server {

namespace {

// Tells the status octet order of a printer, 0 for a printer that is not there.
class OctetOrderAnswer final : public Answer {
public:
    OctetOrderAnswer(const protocol::GetStatusOctetOrderRequest& request, Estate& estate)
        : order_(estate.records().octetOrder(request.printerId).value_or(0)) {}

    bool append(ReplyBuffer& buffer, std::size_t) override {
        buffer.putFrame(protocol::GetStatusOctetOrderReply{.order = order_});
        return false;
    }

private:
    std::uint32_t order_;
};

template <class Made, class Request>
std::unique_ptr<Answer> make(std::span<const std::uint8_t> fields, Estate& estate) {
    return std::make_unique<Made>(RequestReader(fields).read<Request>(), estate);
}

struct Entry {
    std::uint16_t opcode;
    std::unique_ptr<Answer> (*make)(std::span<const std::uint8_t> fields, Estate& estate);
};

template <class Made, class Request>
constexpr Entry entry = {Request::opcode, &make<Made, Request>};

constexpr Entry entries[] = {
    entry<RegionListAnswer, protocol::ListRegionsRequest>,
    entry<RecordListAnswer, protocol::ListPrinterRecordsRequest>,
    entry<OctetOrderAnswer, protocol::GetStatusOctetOrderRequest>,
};

const Entry* find(std::uint16_t opcode) {
    for (const auto& one : entries) {
        if (one.opcode == opcode)
            return &one;
    }
    return nullptr;
}

} // namespace

std::unique_ptr<Answer> makeAnswer(std::uint16_t opcode, std::span<const std::uint8_t> fields, Estate& estate) {
    const Entry* one = find(opcode);
    return one == nullptr ? nullptr : one->make(fields, estate);
}

bool isAnswered(std::uint16_t opcode) {
    return find(opcode) != nullptr;
}

} // namespace server
