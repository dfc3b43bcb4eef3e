#include "hosts/common/DiagnosticsLog.h"
#include "hosts/desktop/window/Application.h"
#include "hosts/desktop/window/Program.h"

#include <cstdio>

namespace {

int refuse(const desktop::Refusal& refusal) {
    std::fputs(qPrintable(refusal.text), refusal.status == 0 ? stdout : stderr);
    return refusal.status;
}

bool hasDisplay() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

} // namespace

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments += QString::fromLocal8Bit(argv[i]);
    }
    const auto read = desktop::readOptions(arguments);
    if (const auto* const refusal = std::get_if<desktop::Refusal>(&read)) {
        return refuse(*refusal);
    }
    const auto& options = std::get<desktop::Options>(read);
    const auto password = desktop::readPassword(options);
    if (const auto* const refusal = std::get_if<desktop::Refusal>(&password)) {
        return refuse(*refusal);
    }
    if (!hasDisplay()) {
        if (options.screenshot.isEmpty()) {
            std::fputs("vantrel-admin: there is no display; vantrelctl does the same from a terminal\n", stderr);
            return 1;
        }
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    common::installDiagnosticsLog(
        [](const std::string& line) { std::fprintf(stderr, "vantrel-admin: %s\n", line.c_str()); });
    if (const double scale = desktop::scaleOf(options); scale > 0 && scale != 1) {
        qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    }
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    desktop::Application application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("vantrel-admin"));
    QApplication::setDesktopFileName(QStringLiteral("vantrel-admin"));
    return desktop::runProgram(options, std::get<std::optional<wire::WideString>>(password));
}
