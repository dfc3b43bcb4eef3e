#include "queues/QueuePropertiesDlg.h"

#include "client/ChangedField.h"

#include <utility>

namespace queues {

using client::PrinterRecordEdit;
using protocol::PrinterRecord;

QueuePropertiesDlg::QueuePropertiesDlg(platform::Platform& platform, QueueMode mode, std::string queueId,
                                       const wire::WideString& name)
    : Form(platform, name + u" Properties"), queue_{.mode = mode}, queueId_(std::move(queueId)) {
    watchHead();
}

QueuePropertiesDlg::QueuePropertiesDlg(platform::Platform& platform, NewQueue queue)
    : Form(platform, u"Add Queue"), queue_(std::move(queue)) {
    watchHead();
}

void QueuePropertiesDlg::watchHead() {
    head.onComplete = [this] { okButton().setEnabled(head.complete()); };
}

std::unique_ptr<PrinterRecordEdit> QueuePropertiesDlg::begin() const {
    if (isNew()) {
        return queue_.begin();
    }
    namespace type = protocol::recordType;
    return std::make_unique<PrinterRecordEdit>(queueId_, queue_.mode == QueueMode::followPrint ? type::followQueue
                                                                                               : type::loadQueue);
}

void QueuePropertiesDlg::onInitDialog() {
    edit_ = begin();
    general.status.show(edit_->record());
    if (isNew()) {
        head.openForNew();
    } else {
        openExisting();
    }
    rules.open(queueId_);
}

void QueuePropertiesDlg::openExisting() {
    const auto& queue = edit_->record();
    general.comment.setText(queue.location);
    general.adminComment.setText(queue.comment);
    head.openFor(queue);
    general.configurations.open(queueId_);
}

// "Invisible" counts as changed in every case. Unlike the name and the time to live, an empty comment is taken: it
// clears that of the queue. The dialog ends even if the server refuses, which has said why by then.
void QueuePropertiesDlg::onOk() {
    edit_->setInvisible(general.status.invisibleByte());
    head.takeModel(*edit_);
    head.takeName(*edit_);
    change(*edit_, &PrinterRecord::location, &PrinterRecordEdit::setLocation, general.comment.text());
    change(*edit_, &PrinterRecord::comment, &PrinterRecordEdit::setComment, general.adminComment.text());
    head.takeTimeToLive(*edit_);
    edit_->save();
    EndDialog(forms::idOk);
}

} // namespace queues
