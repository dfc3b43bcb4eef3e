#include "hosts/desktop/pictures/DialogPictures.h"

#include "console/IniSettingsStore.h"
#include "console/TextControl.h"
#include "hosts/desktop/DesktopUserInterface.h"
#include "hosts/desktop/PrefilledSettings.h"
#include "hosts/desktop/forms/FormDialog.h"
#include "hosts/desktop/forms/MessageBox.h"
#include "hosts/desktop/pictures/Framed.h"
#include "regions/CreateRegionDlg.h"
#include "regions/RegionDeletion.h"
#include "snapin/AuthenticationDlg.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>

#include <array>
#include <filesystem>
#include <functional>
#include <memory>

namespace desktop {
namespace {

// A dialog, filled as a person would have it.
struct Sample {
    const char* name;
    std::function<std::unique_ptr<console::Form>(console::Platform&)> make;
    std::function<void(console::Form&)> fill;
};

template <class Dialog, class... Arguments>
Sample sample(const char* name, std::function<void(Dialog&)> fill, Arguments... arguments) {
    return {name, [=](console::Platform& platform) { return std::make_unique<Dialog>(platform, arguments...); },
            [fill](console::Form& form) { fill(dynamic_cast<Dialog&>(form)); }};
}

// Types the text where the picture shows it.
void enter(console::TextControl& box, const wire::WideString& text) {
    box.setText(text);
    box.userTyped(text);
}

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
    showMessageBox(nullptr, regions::deleteRegionQuestion, u"Warning", console::boxStyle::okCancel);
    return image;
}

} // namespace

std::vector<std::pair<QString, QImage>> dialogPictures() {
    const QTemporaryDir folder;
    console::IniSettingsStore store(std::filesystem::path(folder.filePath(QStringLiteral("none.ini")).toStdString()));
    PrefilledSettings settings(store, {{"ServerName", u"print.example.com"},
                                       {"ServerPort", u"5005"},
                                       {"UserName", u"admin"},
                                       {"DomainName", u"EXAMPLE"}});
    shell::TaskQueue tasks;
    DesktopUserInterface ui(tasks);
    console::Platform platform{.ui = ui,
                               .settings = settings,
                               .productVersion = std::array<std::uint16_t, 4>{
                                   VANTREL_VERSION_MAJOR, VANTREL_VERSION_MINOR, VANTREL_VERSION_PATCH, 0}};
    std::vector<std::pair<QString, QImage>> pictures;
    for (const Sample& each : samples()) {
        const auto form = each.make(platform);
        FormDialog dialog(*form);
        each.fill(*form);
        dialog.show();
        pictures.emplace_back(QString::fromLatin1(each.name), framed(dialog));
    }
    pictures.emplace_back(QStringLiteral("message-box"), boxPicture());
    return pictures;
}

} // namespace desktop
