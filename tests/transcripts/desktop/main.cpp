#include "hosts/desktop/window/Application.h"
#include "tests/transcripts/Run.h"
#include "tests/transcripts/desktop/DesktopHost.h"

#include <QStandardPaths>

// On no screen.
int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    int none = 1;
    desktop::Application application(none, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return transcripts::playTranscript(count, arguments, [](const transcripts::SampleServer& server) {
        return std::make_unique<transcripts::DesktopHost>(server);
    });
}
