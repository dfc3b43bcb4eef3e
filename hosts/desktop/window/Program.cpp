#include "hosts/desktop/window/Program.h"

#include "hosts/common/IniSettingsStore.h"
#include "hosts/common/QuietOutput.h"
#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/window/LookChoices.h"
#include "hosts/desktop/window/MainWindow.h"
#include "hosts/desktop/window/PrefilledSettings.h"
#include "hosts/desktop/window/Screenshot.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>

namespace desktop {
namespace {

constexpr int failedStatus = 1;
constexpr int noLoginStatus = 3;

std::filesystem::path settingsFile(const Options& options) {
    return options.settings.isEmpty() ? common::IniSettingsStore::defaultPath()
                                      : std::filesystem::path(options.settings.toStdU16String());
}

// In the folder of the login's settings, which the other consoles share.
QString viewSettingsFile(const std::filesystem::path& settings) {
    auto file = settings;
    file.replace_extension("desktop.ini");
    return QString::fromStdU16String(file.u16string());
}

// A screenshot shows the window in its initial state, and leaves no settings behind.
bool isPicture(const Options& options) {
    return !options.screenshot.isEmpty();
}

void complain(const QString& text) {
    std::fprintf(stderr, "vantrel-admin: %s\n", qPrintable(text));
}

} // namespace

double scaleOf(const Options& options) {
    if (options.scale > 0 || isPicture(options)) {
        return options.scale;
    }
    return LookChoices::savedScale(ViewSettings(viewSettingsFile(settingsFile(options)))) / 100.0;
}

int runProgram(const Options& options, const std::optional<wire::WideString>& password) {
    const common::QuietOutput quiet; // the login leaves a word there, which nobody asked for
    const auto file = settingsFile(options);
    common::IniSettingsStore saved(file);
    PrefilledSettings settings(saved, options.login);
    const QTemporaryDir pictureSettings;
    ViewSettings viewSettings(isPicture(options) ? pictureSettings.filePath(QStringLiteral("desktop.ini"))
                                                 : viewSettingsFile(file));
    applyColorScheme(options.look.value_or(LookChoices::savedLook(viewSettings)));
    const IconStrips icons;
    Session session(settings);
    if (password) {
        session.ui().setPassword(*password);
    }
    MainWindow window(session, viewSettings, icons);
    window.restorePlace();
    if (isPicture(options) || options.size.isValid()) {
        window.resize(options.size.isValid() ? options.size : MainWindow::naturalSize);
    }
    if (options.activity) {
        window.activity().show();
    }
    if (options.details) {
        window.details().show();
    }
    int status = 0;
    if (isPicture(options)) {
        session.ui().setUnattended();
        window.onStarted = [&](std::optional<QString> error) {
            error = error ? error : takeScreenshot(window, options.screenshot);
            if (error) {
                complain(*error);
                status = failedStatus;
            }
            QCoreApplication::quit();
        };
    }
    window.show();
    window.start(options.path);
    QApplication::exec();
    if (isPicture(options) && !session.ui().loginFailure().isEmpty()) {
        complain(session.ui().loginFailure());
        return noLoginStatus;
    }
    return status;
}

} // namespace desktop
