#pragma once

#include "forms/Page.h"
#include "rules/RuleEntryList.h"

#include <string>

namespace regions {

// The page with the rules of a printer, a queue or a local printer in its dialog.
class CPrinterPrefRulesTab {
public:
    explicit CPrinterPrefRulesTab(forms::Tabs& tabs);

    // Lists the rules of the printer or queue. A new one has no id yet, and so there is nothing to add rules to.
    void open(const std::string& ownerId);

    forms::Page page;
    rules::RuleEntryList rules;

private:
    void add();
};

} // namespace regions
