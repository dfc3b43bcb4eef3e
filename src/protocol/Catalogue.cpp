#include "protocol/Catalogue.h"

#include "protocol/CreateRecordReply.h"
#include "protocol/CreateRecordRequest.h"
#include "protocol/CreateRegionRequest.h"
#include "protocol/DeleteRecordRequest.h"
#include "protocol/DeleteRegionRequest.h"
#include "protocol/GetPublicKeyReply.h"
#include "protocol/GetPublicKeyRequest.h"
#include "protocol/GetStatusOctetOrderReply.h"
#include "protocol/GetStatusOctetOrderRequest.h"
#include "protocol/ListPrinterRecordsRequest.h"
#include "protocol/ListRegionsRequest.h"
#include "protocol/LoginReply.h"
#include "protocol/LoginRequest.h"
#include "protocol/MovePrinterRequest.h"
#include "protocol/MoveRegionRequest.h"
#include "protocol/PrinterRecord.h"
#include "protocol/RegionRecord.h"
#include "protocol/RenameRegionRequest.h"
#include "protocol/SetStatusOctetOrderRequest.h"
#include "protocol/StatusReply.h"
#include "protocol/UpdateRecordRequest.h"

#include <algorithm>
#include <array>

namespace protocol {
namespace {

// A command without a reply on a member connection that is closed, and what makes another one of it.
struct Row : Command {
    constexpr Row ofVersion(std::uint16_t number) const {
        Row row = *this;
        row.version = number;
        return row;
    }
    template <Record Request>
    constexpr Row asks() const {
        Row row = *this;
        row.request = &layoutOf<Request>;
        return row;
    }
    constexpr Row replies(ReplyShape shape, ReaderForm form, const RecordLayout* layout = nullptr) const {
        Row row = *this;
        row.reply = shape;
        row.reader = form;
        row.replyRecord = layout;
        return row;
    }
    constexpr Row single(ReaderForm form) const { return replies(ReplyShape::single, form); }
    template <Record Reply>
    constexpr Row single(ReaderForm form) const {
        return replies(ReplyShape::single, form, &layoutOf<Reply>);
    }
    template <Record Reply>
    constexpr Row singleAndBlock(ReaderForm form) const {
        return replies(ReplyShape::singleAndBlock, form, &layoutOf<Reply>);
    }
    constexpr Row list(ReaderForm form) const { return replies(ReplyShape::list, form); }
    template <Record Element>
    constexpr Row list(ReaderForm form) const {
        return replies(ReplyShape::list, form, &layoutOf<Element>);
    }
    constexpr Row over(Connection kind) const {
        Row row = *this;
        row.connection = kind;
        return row;
    }
    constexpr Row leftOpen() const {
        Row row = *this;
        row.closes = false;
        return row;
    }
    constexpr Row guarded() const {
        Row row = *this;
        row.send = SendForm::guarded;
        return row;
    }
};

constexpr Row row(std::uint16_t opcode, std::string_view name, std::string_view purpose) {
    return {{.opcode = opcode, .name = name, .purpose = purpose}};
}

using enum ReaderForm;

// By opcode. The list of regions comes as one message with all records as long as they fit, and only beyond that in the
// form of the other lists. CreateRecord and UpdateRecord have a single reply that must not be missing.
constexpr Command commands[] = {
    row(0, "ListRegions", "lists the regions of a tree, all or below one parent")
        .asks<ListRegionsRequest>()
        .list<RegionRecord>(strict)
        .over(Connection::open),
    row(1, "CreateRegion", "creates a region").asks<CreateRegionRequest>(),
    row(2, "RenameRegion", "renames a region").asks<RenameRegionRequest>(),
    row(3, "MoveRegion", "moves a region below another parent").asks<MoveRegionRequest>(),
    row(4, "ListDriverBrands", "lists the driver brands").list(plain),
    row(5, "ListDriverModels", "lists driver models by kind of list").list(strict).over(Connection::open).guarded(),
    row(6, "ListPrinterRecords", "lists printers, queues, follow-print queues or local printers, by mode")
        .asks<ListPrinterRecordsRequest>()
        .list<PrinterRecord>(plain),
    row(9, "CreateRecord", "creates a printer, a queue or a local printer")
        .asks<CreateRecordRequest>()
        .single<CreateRecordReply>(middle)
        .over(Connection::open),
    row(10, "UpdateRecord", "updates a printer, a queue or a local printer")
        .ofVersion(2)
        .asks<UpdateRecordRequest>()
        .single<StatusReply>(middle)
        .over(Connection::open),
    row(11, "ListOperatingSystems", "lists the operating systems known to the driver catalogue").list(plain),
    row(12, "ListDrivers", "lists drivers by kind of list").list(plain).leftOpen(),
    row(13, "DeleteDriver", "deletes a driver").leftOpen(),
    row(14, "ListDriverDeployments", "lists the deployments of a driver").list(plain).leftOpen(),
    row(15, "AddDriverDeployment", "adds a deployment").leftOpen(),
    row(16, "ChangeDriverDeployment", "changes or removes a deployment").leftOpen(),
    row(17, "ListQueueConfigurations", "lists the configurations of a queue, all or of one driver")
        .list(plain)
        .leftOpen(),
    row(18, "ListConfigurationChoices", "lists the configurations to choose from for a driver").list(plain).leftOpen(),
    row(19, "ApplyQueueConfiguration", "applies a configuration to a queue").leftOpen(),
    row(20, "SetDriverModelVisible", "shows or hides a model").leftOpen(),
    row(21, "MovePrinter", "moves a printer into another region").asks<MovePrinterRequest>(),
    row(22, "Login", "logs a user in").asks<LoginRequest>().single<LoginReply>(plain),
    row(23, "ListEmailRecipients", "lists the e-mail recipients").list(middle).leftOpen(),
    row(24, "WriteEmailRecipient", "adds or changes a recipient").leftOpen(),
    row(25, "SetRecipientActive", "switches a recipient on or off"),
    row(27, "ListAlarmPrograms", "lists the alarm programs").list(middle).leftOpen().guarded(),
    row(28, "WriteAlarmProgram", "adds or changes a program").single(plain),
    row(29, "ListAlarmEvents", "lists the alarm events").list(plain).leftOpen(),
    row(30, "ListAlarmActions", "lists the alarm actions").list(plain).leftOpen(),
    row(31, "ListAlarmDestinations", "lists the destinations of an alarm").list(plain).leftOpen(),
    row(32, "ListProgramActions", "lists the actions of a program").list(plain),
    row(33, "AddProgramAction", "adds an action to a program"),
    row(34, "DeleteProgramAction", "removes an action from a program"),
    row(36, "DeleteRecord", "deletes a printer or a queue").asks<DeleteRecordRequest>(),
    row(37, "ListSchemas", "lists migration plans").list(middle).leftOpen(),
    row(38, "ChangeSchema", "adds, changes or deletes a migration plan").leftOpen(),
    row(39, "SearchQueues", "finds queues by name pattern").list(middle).leftOpen(),
    row(40, "ListInventoryReports", "lists the inventory reports").list(plain).leftOpen(),
    row(41, "CreateInventoryReport", "creates an inventory report").leftOpen(),
    row(42, "DeleteInventoryReport", "deletes an inventory report").leftOpen(),
    row(43, "ListInventoryModels", "lists models and drivers of the inventory, by kind of list").list(plain).leftOpen(),
    row(44, "ListInventoryPrinters", "lists printers and queues of the inventory, by kind of list")
        .list(plain)
        .leftOpen(),
    row(45, "DeleteRegion", "deletes a region").asks<DeleteRegionRequest>().leftOpen(),
    row(46, "AddDriverModel", "adds a model to a brand").leftOpen(),
    row(47, "AddBuiltInDriver", "adds the built-in driver to a model").leftOpen(),
    row(48, "AddAlternateDriver", "links an alternate model").leftOpen(),
    row(49, "RemoveAlternateDriver", "unlinks an alternate model").leftOpen(),
    row(50, "ListConfigurations", "lists the configurations of a driver model").list(plain).leftOpen(),
    row(51, "SetConfigurationComment", "writes the comment of a configuration").leftOpen(),
    row(52, "DeleteConfiguration", "deletes a configuration").leftOpen(),
    row(53, "ListConfigurationQueues", "lists the queues that use a configuration").list(plain).leftOpen(),
    row(54, "RemoveConfigurationFromQueue", "takes a configuration away from a queue").leftOpen(),
    row(55, "ListIpRanges", "lists the IP ranges").list(middle).leftOpen(),
    row(56, "ChangeIpRange", "adds, changes or deletes an IP range").leftOpen(),
    row(57, "ListRuleGroups", "lists the rule groups").list(plain).leftOpen(),
    row(58, "WriteRuleGroup", "adds, changes or deletes a rule group"),
    row(59, "ListAffected", "lists what a rule group affects").list(plain).leftOpen(),
    row(60, "WriteAffected", "adds, changes or deletes what a rule group affects"),
    row(61, "ListRuleEntries", "lists rule entries").list(middle).leftOpen(),
    row(62, "RemoveRuleEntry", "removes a rule entry"),
    row(64, "WriteRuleObject", "adds, changes or deletes a page limit or a rule entry"),
    row(65, "GetPageLimit", "gets a page limit").single(plain),
    row(66, "DeletePageLimit", "deletes a page limit"),
    row(67, "ListUserMessages", "lists the user messages").list(middle),
    row(68, "WriteUserMessage", "adds, changes or deletes a user message"),
    row(69, "ListPricePlans", "lists the price plans").list(strict).over(Connection::open),
    row(70, "WritePricePlan", "adds, changes or deletes a price plan").over(Connection::open),
    row(71, "ListPriceEntries", "lists the entries of a price plan").list(strict).over(Connection::open),
    row(73, "ListPageLimits", "lists the page limits").list(strict).leftOpen().guarded(),
    row(74, "SetStatusOctetOrder", "sets the status octet order of a printer").asks<SetStatusOctetOrderRequest>(),
    row(75, "SetModelOctetOrder", "sets the status octet order of a driver model"),
    row(76, "GetStatusOctetOrder", "gets the status octet order of a printer")
        .asks<GetStatusOctetOrderRequest>()
        .single<GetStatusOctetOrderReply>(plain)
        .leftOpen(),
    row(77, "GetModelOctetOrder", "gets the status octet order of a driver model").single(plain).leftOpen(),
    row(78, "GetPublicKey", "gets the public key for the login")
        .asks<GetPublicKeyRequest>()
        .singleAndBlock<GetPublicKeyReply>(plain)
        .over(Connection::own),
    row(79, "ApplyConfigurationForDriver", "applies a configuration to a driver").leftOpen(),
    row(80, "CountDeploymentConfigs", "counts the queues with configurations of a deployment").single(plain).leftOpen(),
    row(81, "ListShortIds", "lists the short ids").list(strict).over(Connection::open),
    row(82, "DeleteShortId", "deletes a short id").over(Connection::open),
    row(83, "AddShortId", "adds a short id").over(Connection::open),
    row(84, "UpdateShortId", "updates a short id").over(Connection::open),
};

constexpr std::size_t opcodeCount = std::end(commands)[-1].opcode + 1U;
static_assert(std::ranges::is_sorted(commands, {}, &Command::opcode));

constexpr auto rowOfOpcode = [] {
    std::array<std::int8_t, opcodeCount> rows{};
    rows.fill(-1);
    for (std::size_t row = 0; row < std::size(commands); ++row)
        rows[commands[row].opcode] = static_cast<std::int8_t>(row);
    return rows;
}();

} // namespace

std::span<const Command> catalogue() {
    return commands;
}

const Command* findCommand(std::uint16_t opcode) {
    if (opcode >= opcodeCount || rowOfOpcode[opcode] < 0)
        return nullptr;
    return &commands[rowOfOpcode[opcode]];
}

} // namespace protocol
