#pragma once

#include "forms/Form.h"
#include "rules/RuleEntryList.h"

#include <cstdint>

namespace regions {

// The rules that apply in a region. They change as soon as they are added or removed, whichever button ends the dialog.
class RegionRulesDlg final : public forms::Form {
public:
    RegionRulesDlg(platform::Platform& platform, std::int32_t regionId);

    rules::RuleEntryList rules{
        *this, {u"Rule Type", u"Rule Name", u"Rule Affected"}, rules::RuleEntryList::TypeWords::ofConsole};

protected:
    void onInitDialog() override;

private:
    void add();

    std::int32_t regionId_;
};

} // namespace regions
