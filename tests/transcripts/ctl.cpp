#include "tests/transcripts/CtlHost.h"
#include "tests/transcripts/Run.h"

int main(int count, char** arguments) {
    return transcripts::playTranscript(count, arguments, [](const transcripts::SampleServer& server) {
        return std::make_unique<transcripts::CtlHost>(server);
    });
}
