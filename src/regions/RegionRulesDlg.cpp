#include "regions/RegionRulesDlg.h"

#include "rules/AddRuleEntryDlg.h"

namespace regions {

RegionRulesDlg::RegionRulesDlg(platform::Platform& platform, std::int32_t regionId)
    : Form(platform, u"Region Rules"), regionId_(regionId) {
    rules.onAdd = [this] { add(); };
}

void RegionRulesDlg::onInitDialog() {
    rules.open({}, regionId_);
}

void RegionRulesDlg::add() {
    rules::AddRuleEntryDlg dialog(platform(), rules::AddRuleEntryDlg::Mode::place, rules.place());
    runModal(dialog);
}

} // namespace regions
