#include "server/inventory/ReportService.h"

#include "protocol/inventory/InventoryReport.h"
#include "server/commands/Refusal.h"
#include "server/commands/ReplyBuffer.h"
#include "server/inventory/InventoryScan.h"
#include "server/inventory/ReportTable.h"
#include "wire/WireUuid.h"

#include <fmt/chrono.h>

#include <chrono>

namespace server {

using protocol::StatusReply;

namespace {

std::string newId() {
    return wire::toText(wire::randomUuid());
}

// The server's local time in the date format of the wire.
wire::WideString now() {
    const auto time = std::chrono::system_clock::now();
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(time.time_since_epoch()).count();
    return wire::toWide(fmt::format("{:%Y-%m-%d %H:%M:%S}.{:03}",
                                    fmt::localtime(std::chrono::system_clock::to_time_t(time)), milliseconds % 1000));
}

StatusReply notMade(const wire::WideString& text) {
    return refusal(u"Not made", text);
}

} // namespace

StatusReply ReportService::create(const protocol::CreateInventoryReportRequest& request) {
    if (request.reportName.empty() || request.reportName.front() == u'\0') {
        return notMade(u"A report needs a name.");
    }
    if (request.reportType > protocol::reportType::onlyShared) {
        return notMade(u"There is no report of this type.");
    }
    const auto scope = IpScope::parse(request.ipScope);
    if (!scope) {
        return notMade(u"The IP scope " + quoted(wire::toWide(request.ipScope)) + u" cannot be understood.");
    }
    const auto period = ReportPeriod::parse(request.dateFrom, request.dateTo);
    if (!period) {
        return notMade(u"The period of the report has a date that cannot be understood.");
    }
    if (period->isBackwards()) {
        return notMade(u"The period of the report ends before it begins.");
    }
    const protocol::InventoryReportRecord report{.reportId = newId(),
                                                 .reportDate = now(),
                                                 .reportUser = request.reportUser,
                                                 .reportName = request.reportName,
                                                 .comment = request.comment,
                                                 .ipScope = wire::toWide(request.ipScope),
                                                 .reportType = request.reportType};
    if (frameDataSize(report) > largestReceivableFrame) {
        return notMade(u"The texts of this report are too long to be sent back in one piece.");
    }
    InventoryScan(connection_, newId).run(report, *scope, *period);
    return done();
}

StatusReply ReportService::remove(const protocol::DeleteInventoryReportRequest& request) {
    return connection_.table<ReportTable>().remove(request.reportId) ? done()
                                                                     : notMade(u"The report does not exist any more.");
}

} // namespace server
