#pragma once

#include "rules/RuleEntryForm.h"

namespace regions {

// Creates a rule entry on a printer or a queue.
class AddTabRuleDlg final : public rules::RuleEntryForm {
public:
    AddTabRuleDlg(platform::Platform& platform, rules::RuleEntryPlace place, std::optional<Record> edited = {});

protected:
    bool take() override;
    void addRecord(client::CQVXAdminClass& client) override;
};

} // namespace regions
