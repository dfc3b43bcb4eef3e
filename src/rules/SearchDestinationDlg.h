#pragma once

#include "forms/Button.h"
#include "forms/DropList.h"
#include "forms/EditBox.h"
#include "forms/Form.h"

#include <string>
#include <vector>

namespace rules {

// Finds the queue to which print jobs are moved.
class SearchDestinationDlg final : public forms::Form {
public:
    // OK stores the chosen queue in these two, which outlive the form.
    SearchDestinationDlg(platform::Platform& platform, std::string& destinationId, wire::WideString& destinationName);

    forms::EditBox searchTerms{*this, u"Search terms"};
    forms::Button searchButton{*this, u"Search", true};
    forms::DropList queue{*this, u"Queue"};

protected:
    void onOk() override;

private:
    void search();

    std::string& destinationId_;
    wire::WideString& destinationName_;
    std::vector<std::string> ids_; // of the rows of the list, beside their names
    std::vector<wire::WideString> names_;
};

} // namespace rules
