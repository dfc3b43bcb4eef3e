#include "rules/PageLimitersNode.h"

namespace rules {

// The list of all has only names: each limit is read with a separate command.
bool PageLimitersNode::listRecords(client::CQVXAdminClass& client, std::vector<Record>& records) {
    std::vector<std::string> ids;
    if (!client.listPageLimits(ids, names_)) {
        return false;
    }
    for (const auto& id : ids) {
        auto limit = client.getPageLimit(id);
        if (!limit) {
            return false;
        }
        records.push_back(std::move(*limit));
    }
    return true;
}

void PageLimitersNode::readRows() {
    RecordList::readRows();
    for (std::size_t row = 0; row < recordRows().size(); ++row) {
        recordRows()[row]->setDisplayName(names_[row]);
    }
}

} // namespace rules
