#pragma once

#include "console/Button.h"
#include "console/DropList.h"
#include "console/EditBox.h"
#include "console/Form.h"

#include <string>
#include <vector>

namespace rules {

// Finds the queue to which print jobs are to go.
class SearchDestinationDlg final : public console::Form {
public:
    // OK puts the queue that was chosen into the two, which outlive the form.
    SearchDestinationDlg(console::Platform& platform, std::string& destinationId, wire::WideString& destinationName);

    console::EditBox searchTerms{*this, u"Search terms"};
    console::Button searchButton{*this, u"Search", true};
    console::DropList queue{*this, u"Queue"};

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
