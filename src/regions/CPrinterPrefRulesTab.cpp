#include "regions/CPrinterPrefRulesTab.h"

#include "forms/Form.h"
#include "regions/AddTabRuleDlg.h"

namespace regions {

CPrinterPrefRulesTab::CPrinterPrefRulesTab(forms::Tabs& tabs)
    : page(tabs, u"Rules"),
      rules(page, {u"Rule type", u"Rule name", u"Rule affected"}, rules::RuleEntryList::TypeWords::ofConsole) {
    rules.onAdd = [this] { add(); };
}

void CPrinterPrefRulesTab::open(const std::string& ownerId) {
    rules.addButton.setEnabled(!ownerId.empty());
    if (!ownerId.empty()) {
        rules.open(ownerId);
    }
}

// The owner is the parent too, because applying a rule group replaces the owner by the group.
void CPrinterPrefRulesTab::add() {
    auto place = rules.place();
    place.parentId = place.ownerId;
    AddTabRuleDlg dialog(page.form().platform(), place);
    page.form().runModal(dialog);
}

} // namespace regions
