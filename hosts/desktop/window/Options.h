#pragma once

#include "hosts/desktop/look/ColorScheme.h"
#include "wire/Text.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <string>
#include <variant>

namespace desktop {

// The options from the command line.
struct Options {
    std::map<std::string, wire::WideString, std::less<>> login; // by the names of the saved values
    QString passwordFile;
    QString settings;                // the file of the saved values; empty for the usual one
    std::optional<ColorScheme> look; // none for the one that was chosen in the window
    QString screenshot;              // the picture to write; empty to run interactively
    QSize size;
    double scale = 0; // 0 for the one that was chosen in the window
    bool activity = false;
    bool details = false;
    QString path;
};

// The text to print instead of running, and the exit status: help, the version, or an error.
struct Refusal {
    QString text;
    int status = 0;
};

std::variant<Options, Refusal> readOptions(const QStringList& arguments);

// From the file's first line, or else from the environment's VANTREL_PASSWORD. Empty without either; an error with the
// file is returned as Refusal.
std::variant<std::optional<wire::WideString>, Refusal> readPassword(const Options& options);

} // namespace desktop
