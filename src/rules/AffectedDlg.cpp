#include "rules/AffectedDlg.h"

#include "client/CQVXAdminClass.h"
#include "client/rules/NewRecord.h"
#include "forms/Questions.h"

#include <utility>

namespace rules {
namespace {

using protocol::AffectedRecord;

namespace sense = protocol::affectedSense;
using protocol::affectedType::group;
using protocol::affectedType::user;
constexpr std::size_t userRow = 1;
constexpr std::size_t isRow = 1;

} // namespace

AffectedDlg::AffectedDlg(platform::Platform& platform, Opener opener)
    : Form(platform, u"Affected"), editing_(false), opener_(opener), affected_(client::newRecord<AffectedRecord>()) {}

AffectedDlg::AffectedDlg(platform::Platform& platform, Opener opener, AffectedRecord affected)
    : Form(platform, u"Affected"), editing_(true), opener_(opener), affected_(std::move(affected)) {}

void AffectedDlg::onInitDialog() {
    type.addItem(u"Group");
    type.addItem(u"User");
    equals.addItem(u"IS NOT");
    equals.addItem(u"IS");
    name.setText(affected_.name);
    type.select(editing_ && affected_.type == user ? userRow : 0);
    equals.select(!editing_ || affected_.equals == sense::is ? isRow : 0);
}

void AffectedDlg::onOk() {
    if (name.text().empty()) {
        forms::refuseBlank(name, u"Name field should not be blank!");
        return;
    }
    affected_.name = name.text();
    affected_.type = type.selection() == userRow ? user : group;
    affected_.equals = equals.selection() == isRow ? sense::is : sense::isNot;
    client::CQVXAdminClass client;
    if (editing_) {
        client.updateAffected(affected_);
    } else {
        client.addAffected(affected_);
    }
    tellOpener();
    EndDialog(forms::idOk);
}

void AffectedDlg::tellOpener() {
    client::CQVXAdminClass client;
    client.listAffected(opener_.list);
    opener_.saved.become(affected_.name, opener_.list, affected_.id, &AffectedRecord::id);
}

} // namespace rules
