#include "queues/QueuePreferencesDlg.h"

#include "client/ChangedField.h"

#include <utility>

namespace queues {

using client::PrinterRecordEdit;
using protocol::PrinterRecord;

QueuePreferencesDlg::QueuePreferencesDlg(platform::Platform& platform, std::string queueId)
    : Form(platform, u"Queue Preferences"), queueId_(std::move(queueId)) {
    head.onComplete = [this] { okButton().setEnabled(head.complete()); };
}

void QueuePreferencesDlg::onInitDialog() {
    edit_ = std::make_unique<client::PrinterRecordEdit>(queueId_, protocol::recordType::loadQueue);
    const auto& queue = edit_->record();
    comment.setText(queue.location);
    adminComment.setText(queue.comment);
    localDriverHandling.setChecked(queue.localDriverHandling);
    localConfigHandling.setChecked(queue.localConfigHandling);
    status.show(queue);
    head.openFor(queue);
    configurations.open(queueId_);
}

// Empty comments clear those of the queue. The dialog ends even if the server refuses, which has said why by then.
void QueuePreferencesDlg::onOk() {
    head.takeModelByName(*edit_);
    change(*edit_, &PrinterRecord::invisible, &PrinterRecordEdit::setInvisible, status.invisibleByte());
    head.takeName(*edit_);
    head.takeTimeToLive(*edit_);
    change(*edit_, &PrinterRecord::localDriverHandling, &PrinterRecordEdit::setLocalDriverHandling,
           localDriverHandling.checked());
    change(*edit_, &PrinterRecord::localConfigHandling, &PrinterRecordEdit::setLocalConfigHandling,
           localConfigHandling.checked());
    change(*edit_, &PrinterRecord::location, &PrinterRecordEdit::setLocation, comment.text());
    change(*edit_, &PrinterRecord::comment, &PrinterRecordEdit::setComment, adminComment.text());
    edit_->save();
    EndDialog(forms::idOk);
}

} // namespace queues
