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

// What the program was told on its command line.
struct Options {
    std::map<std::string, wire::WideString, std::less<>> login; // by the names of the saved values
    QString passwordFile;
    QString settings; // the file of the saved values; empty for the usual one
    ColorScheme look = ColorScheme::system;
    QString screenshot; // the picture to write; empty to run for a person
    QSize size;
    double scale = 0;
    bool activity = false;
    QString path;
};

// What there is to say instead of running, and with which exit status: help, the version, or what is wrong.
struct Refusal {
    QString text;
    int status = 0;
};

std::variant<Options, Refusal> readOptions(const QStringList& arguments);

// From the file's first line, else the environment's VANTREL_PASSWORD. Nothing without either; what is wrong with the
// file comes back as Refusal.
std::variant<std::optional<wire::WideString>, Refusal> readPassword(const Options& options);

} // namespace desktop
