#include "queues/AddQueueDlg.h"

#include "client/ChangedField.h"

#include <utility>

namespace queues {

AddQueueDlg::AddQueueDlg(platform::Platform& platform, NewQueue queue)
    : Form(platform, u" Add Queue"), queue_(std::move(queue)) {
    head.onComplete = [this] { okButton().setEnabled(head.complete()); };
}

void AddQueueDlg::onInitDialog() {
    setTitle(queue_.mode == QueueMode::followPrint ? u"Add Follow Printer Queue" : u"Add Queue");
    edit_ = queue_.begin();
    head.openForNew();
}

// The dialog ends even if the server refuses the queue, which has said why by then.
void AddQueueDlg::onOk() {
    head.takeModelByName(*edit_);
    head.takeName(*edit_);
    head.takeTimeToLive(*edit_);
    client::change(*edit_, &protocol::PrinterRecord::location, &client::PrinterRecordEdit::setLocation, comment.text());
    client::change(*edit_, &protocol::PrinterRecord::comment, &client::PrinterRecordEdit::setComment,
                   adminComment.text());
    edit_->save();
    EndDialog(forms::idOk);
}

} // namespace queues
