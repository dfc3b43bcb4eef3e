#include "hosts/common/IniSettingsStore.h"
#include "hosts/desktop/look/ColorScheme.h"
#include "hosts/desktop/pictures/DialogPictures.h"
#include "hosts/desktop/pictures/IconSheet.h"
#include "hosts/desktop/pictures/WindowPictures.h"
#include "hosts/desktop/window/Application.h"

#include <QDir>

#include <cstdio>
#include <filesystem>

namespace {

bool save(const QImage& image, const QDir& folder, const QString& name, const QString& look) {
    const QString file = folder.filePath(name + QLatin1Char('-') + look + QStringLiteral(".png"));
    if (image.isNull() || !image.save(file)) {
        std::fprintf(stderr, "vantrel-pictures: %s could not be made\n", qPrintable(file));
        return false;
    }
    return true;
}

} // namespace

// vantrel-pictures LOOK FOLDER SETTINGS PATH: the password comes from VANTREL_PASSWORD.
int main(int argc, char** argv) {
    const desktop::Application application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const auto look = arguments.size() == 5 ? desktop::colorSchemeNamed(arguments[1]) : std::nullopt;
    if (!look) {
        std::fputs("vantrel-pictures light|dark FOLDER SETTINGS PATH\n", stderr);
        return 2;
    }
    desktop::applyColorScheme(*look);
    const QDir folder(arguments[2]);
    bool done = save(desktop::iconSheet(), folder, QStringLiteral("icons"), arguments[1]);
    for (const auto& [name, image] : desktop::dialogPictures()) {
        done = save(image, folder, name, arguments[1]) && done;
    }
    common::IniSettingsStore settings(std::filesystem::path(arguments[3].toStdU16String()));
    const auto ofWindow = desktop::windowPictures(settings, qEnvironmentVariable("VANTREL_PASSWORD"), arguments[4]);
    done = !ofWindow.empty() && done;
    for (const auto& [name, image] : ofWindow) {
        done = save(image, folder, name, arguments[1]) && done;
    }
    // These need the login that the window made.
    for (const auto& [name, image] : desktop::serverDialogPictures()) {
        done = save(image, folder, name, arguments[1]) && done;
    }
    return done ? 0 : 1;
}
