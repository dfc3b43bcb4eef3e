#pragma once

#include "forms/DropList.h"
#include "forms/EditBox.h"
#include "forms/Form.h"
#include "protocol/rules/Affected.h"
#include "rules/SavedChoice.h"

#include <vector>

namespace rules {

// Creates or edits whom a rule affects: a user, a group, or all except one of these.
class AffectedDlg final : public forms::Form {
public:
    // The dialog of a rule that opened this one and is updated with the result. All of it outlives the form.
    struct Opener {
        std::vector<protocol::AffectedRecord>& list; // read again once the record is written
        SavedChoice& saved;                          // set to the record
    };

    AffectedDlg(platform::Platform& platform, Opener opener);
    AffectedDlg(platform::Platform& platform, Opener opener, protocol::AffectedRecord affected);

    forms::EditBox name{*this, u"Name"};
    forms::DropList type{*this, u"Type"};
    forms::DropList equals{*this, u"Equals"};

protected:
    void onInitDialog() override;
    void onOk() override;

private:
    void tellOpener();

    bool editing_;
    Opener opener_;
    protocol::AffectedRecord affected_;
};

} // namespace rules
