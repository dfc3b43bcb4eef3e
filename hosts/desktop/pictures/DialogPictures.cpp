#include "hosts/desktop/pictures/DialogPictures.h"

#include "client/CQVXAdminClassProperties.h"
#include "hosts/common/IniSettingsStore.h"
#include "hosts/desktop/forms/FormDialog.h"
#include "hosts/desktop/forms/MessageBox.h"
#include "hosts/desktop/pictures/Framed.h"
#include "hosts/desktop/pictures/PrinterSamples.h"
#include "hosts/desktop/pictures/QueueSamples.h"
#include "hosts/desktop/pictures/RuleGroupSamples.h"
#include "hosts/desktop/pictures/RuleSamples.h"
#include "hosts/desktop/window/DesktopUserInterface.h"
#include "hosts/desktop/window/PrefilledSettings.h"
#include "regions/CreateRegionDlg.h"
#include "regions/RegionHolder.h"
#include "snapin/AuthenticationDlg.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <array>
#include <filesystem>
#include <iterator>
#include <utility>

namespace desktop {
namespace {

std::vector<Sample> samples() {
    using regions::CreateRegionDlg;
    using snapin::AuthenticationDlg;
    return {
        sample<AuthenticationDlg>("login", [](auto& dialog) { enter(dialog.password, u"a password"); }),
        sample<CreateRegionDlg>(
            "create-region", [](auto& dialog) { enter(dialog.name, u"Harbour"); }, 0,
            CreateRegionDlg::Mode::printerTree),
    };
}

QImage boxPicture() {
    QImage image;
    QTimer::singleShot(0, [&image] {
        QWidget* const box = QApplication::activeModalWidget();
        image = framed(*box);
        box->close();
    });
    showMessageBox(nullptr, regions::printersAndQueues.deleteQuestion, u"Warning", platform::boxStyle::okCancel,
                   u"Harbour");
    return image;
}

std::vector<NamedPicture> picturesOf(const std::vector<Sample>& samples) {
    const QTemporaryDir folder;
    common::IniSettingsStore store(std::filesystem::path(folder.filePath(QStringLiteral("none.ini")).toStdString()));
    PrefilledSettings settings(store, {{"ServerName", u"print.example.com"},
                                       {"ServerPort", u"5005"},
                                       {"UserName", u"admin"},
                                       {"DomainName", u"EXAMPLE"}});
    shell::TaskQueue tasks;
    DesktopUserInterface ui(tasks);
    platform::Platform platform{.ui = ui,
                                .settings = settings,
                                .productVersion = std::array<std::uint16_t, 4>{
                                    VANTREL_VERSION_MAJOR, VANTREL_VERSION_MINOR, VANTREL_VERSION_PATCH, 0}};
    std::vector<NamedPicture> pictures;
    for (const Sample& each : samples) {
        const auto form = each.make(platform);
        FormDialog dialog(*form);
        each.fill(*form);
        dialog.show();
        pictures.emplace_back(QString::fromLatin1(each.name), framed(dialog));
    }
    return pictures;
}

} // namespace

std::vector<NamedPicture> dialogPictures() {
    auto pictures = picturesOf(samples());
    pictures.emplace_back(QStringLiteral("message-box"), boxPicture());
    return pictures;
}

std::vector<NamedPicture> serverDialogPictures() {
    if (client::theProperties != nullptr) {
        client::theProperties->hooks = {}; // the hooks of the session that logged in no longer exist
    }
    auto all = ruleGroupSamples();
    std::ranges::move(ruleSamples(), std::back_inserter(all));
    std::ranges::move(printerSamples(), std::back_inserter(all));
    std::ranges::move(queueSamples(), std::back_inserter(all));
    return picturesOf(all);
}

} // namespace desktop
