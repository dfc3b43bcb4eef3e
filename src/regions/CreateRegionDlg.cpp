#include "regions/CreateRegionDlg.h"

#include "client/CQVXAdminClass.h"

namespace regions {

CreateRegionDlg::CreateRegionDlg(platform::Platform& platform, std::int32_t parentId, Mode mode)
    : Form(platform, u"Create Region"), parentId_(parentId), mode_(mode) {
    name.onChange = [this] { okButton().setEnabled(true); };
}

void CreateRegionDlg::onInitDialog() {
    okButton().setEnabled(false);
}

// An empty name is sent as it is, and a region that was not made is not reported: the tree will show it.
void CreateRegionDlg::onOk() {
    const auto kind =
        mode_ == Mode::printerTree ? protocol::RegionKind::printersAndQueues : protocol::RegionKind::localPrinters;
    client::CQVXAdminClass client;
    client.createRegion(kind, parentId_, name.text());
    EndDialog(forms::idOk);
}

} // namespace regions
