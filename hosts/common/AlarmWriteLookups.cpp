#include "hosts/common/AlarmWriteLookups.h"

#include "protocol/alarms/EmailRecipient.h"
#include "protocol/alarms/ProgramAction.h"

#include <array>

namespace common {
namespace {

using namespace protocol;

Shows recipientWritten(const WriteEmailRecipientRequest& request) {
    if (!request.id.empty() && request.name.empty() && request.email.empty()) {
        return showsGone<EmailRecipientRecord>(ListEmailRecipientsRequest{.id = request.id}, &EmailRecipientRecord::id,
                                               request.id);
    }
    const auto same = [=](const EmailRecipientRecord& shown) {
        return shown.name == request.name && shown.email == request.email && shown.active == (request.active != 0);
    };
    if (request.id.empty()) {
        return showsNew<EmailRecipientRecord>(ListEmailRecipientsRequest{}, &EmailRecipientRecord::id, same);
    }
    return showsChanged<EmailRecipientRecord>(ListEmailRecipientsRequest{.id = request.id}, &EmailRecipientRecord::id,
                                              request.id, same);
}

Shows recipientSwitched(const SetRecipientActiveRequest& request) {
    return showsChanged<EmailRecipientRecord>(
        ListEmailRecipientsRequest{.id = request.id}, &EmailRecipientRecord::id, request.id,
        [active = request.active != 0](const EmailRecipientRecord& shown) { return shown.active == active; });
}

Shows actionAdded(const AddProgramActionRequest& request) {
    return showsNew<ProgramActionRecord>(ListProgramActionsRequest{.programId = request.programId},
                                         &ProgramActionRecord::id, [](const ProgramActionRecord&) { return true; });
}

Shows actionDeleted(const DeleteProgramActionRequest& request, const SeenRequests& seen) {
    return showsGoneAmong<ProgramActionRecord>(seen.of<ListProgramActionsRequest>(), &ProgramActionRecord::id,
                                               request.actionId);
}

constexpr std::array alarmLookups = {
    lookup<WriteEmailRecipientRequest, recipientWritten>(),
    lookup<SetRecipientActiveRequest, recipientSwitched>(),
    lookup<AddProgramActionRequest, actionAdded>(),
    lookup<DeleteProgramActionRequest, actionDeleted>(),
};

} // namespace

std::span<const WriteLookup> alarmWriteLookups() {
    return alarmLookups;
}

} // namespace common
