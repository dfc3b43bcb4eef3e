#include "rules/SearchDestinationDlg.h"

#include "client/CQVXAdminClass.h"
#include "forms/SendableText.h"

#include <utility>

namespace rules {

SearchDestinationDlg::SearchDestinationDlg(platform::Platform& platform, std::string& destinationId,
                                           wire::WideString& destinationName)
    : Form(platform, u"Search Destination"), destinationId_(destinationId), destinationName_(destinationName) {
    searchButton.setBeside(searchTerms);
    searchButton.onPress = [this] { search(); };
}

// The last queue that the server found comes first; this must stay.
void SearchDestinationDlg::search() {
    if (!forms::canSend(searchTerms, searchTerms.text())) {
        return;
    }
    ids_.clear();
    names_.clear();
    queue.clear();
    okButton().setEnabled(false); // if the search fails, the destination must not be replaced
    client::CQVXAdminClass client;
    const bool searched = client.searchQueues(searchTerms.text());
    protocol::FoundQueueRecord found;
    while (client.nextFoundQueue(found)) {
        queue.addItem(found.queueName);
        ids_.push_back(std::move(found.queueId));
        names_.push_back(std::move(found.queueName));
    }
    queue.select(0);
    okButton().setEnabled(searched);
}

// Without a queue the destination is removed; this must stay.
void SearchDestinationDlg::onOk() {
    const auto row = queue.selection();
    destinationId_ = row ? ids_.at(*row) : std::string();
    destinationName_ = row ? names_.at(*row) : wire::WideString();
    EndDialog(forms::idOk);
}

} // namespace rules
