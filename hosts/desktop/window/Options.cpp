#include "hosts/desktop/window/Options.h"

#include "hosts/desktop/look/Text.h"

#include <QCommandLineParser>
#include <QFile>

#include <array>

namespace desktop {
namespace {

constexpr int usageStatus = 2;
constexpr int noLoginStatus = 3;
constexpr int largestSide = 10'000;
constexpr double largestScale = 8;

constexpr std::array<std::pair<const char*, const char*>, 4> savedValues{
    {{"server", "ServerName"}, {"port", "ServerPort"}, {"user", "UserName"}, {"domain", "DomainName"}}};

void describe(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        QStringLiteral("The administration console of a Vantrel print server.\n\n"
                       "It asks for the login; with a password file or the environment variable VANTREL_PASSWORD the\n"
                       "login needs no dialog. A cancelled login ends the program with status 0; one\n"
                       "that fails when nobody can answer (--screenshot) ends it with status 3."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({
        {"server", "Name or address of the server.", "host"},
        {"port", "Port of the server.", "number"},
        {"user", "User name.", "name"},
        {"domain", "Domain of the user.", "name"},
        {"password-file", "File whose first line is the password.", "file"},
        {"settings", "File of the saved login, instead of the usual one.", "file"},
        {"look", "light, dark or system (like the desktop), instead of the one in View > Look.", "look"},
        {"screenshot", "Saves a picture of the window to the file (PNG) and exits.", "file"},
        {"size", "Size of the window, for instance 1200x800.", "WxH"},
        {"scale", "Scale of everything, for instance 1.5, instead of the one in the View menu.", "factor"},
        {"activity", "Shows the activity log."},
        {"details", "Shows the details of the selected row."},
    });
    parser.addPositionalArgument(
        QStringLiteral("path"), QStringLiteral("What to show, for instance Printers/Berlin; a slash in a name is \\/."),
        QStringLiteral("[path]"));
}

Refusal wrong(const QString& text) {
    return {QStringLiteral("vantrel-admin: ") + text + QStringLiteral("\nTry vantrel-admin --help\n"), usageStatus};
}

bool readSize(const QString& text, QSize& size) {
    const auto parts = text.split(QLatin1Char('x'));
    size = parts.size() == 2 ? QSize(parts[0].toInt(), parts[1].toInt()) : QSize();
    return size.width() > 0 && size.height() > 0 && size.width() <= largestSide && size.height() <= largestSide;
}

} // namespace

std::variant<Options, Refusal> readOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(arguments)) {
        return wrong(parser.errorText());
    }
    if (parser.isSet(QStringLiteral("help"))) {
        // The parser learns the program's name only from an application object.
        return Refusal{parser.helpText().replace(QStringLiteral("<executable_name>"), QStringLiteral("vantrel-admin")),
                       0};
    }
    if (parser.isSet(QStringLiteral("version"))) {
        return Refusal{QStringLiteral("vantrel-admin " VANTREL_VERSION "\n"), 0};
    }
    Options options;
    for (const auto& [option, name] : savedValues) {
        if (parser.isSet(QString::fromLatin1(option))) {
            options.login[name] = toWideString(parser.value(QString::fromLatin1(option)));
        }
    }
    bool isNumber = true;
    if (parser.isSet(QStringLiteral("port"))) {
        const auto port = parser.value(QStringLiteral("port")).toUInt(&isNumber);
        if (!isNumber || port == 0 || port > 0xFFFF) {
            return wrong(QStringLiteral("--port takes a number from 1 to 65535"));
        }
    }
    options.look = colorSchemeNamed(parser.value(QStringLiteral("look")));
    if (parser.isSet(QStringLiteral("look")) && !options.look) {
        return wrong(QStringLiteral("--look takes light, dark or system"));
    }
    if (parser.isSet(QStringLiteral("size")) && !readSize(parser.value(QStringLiteral("size")), options.size)) {
        return wrong(QStringLiteral("--size takes a width and a height, for instance 1200x800"));
    }
    if (parser.isSet(QStringLiteral("scale"))) {
        options.scale = parser.value(QStringLiteral("scale")).toDouble(&isNumber);
        if (!isNumber || options.scale <= 0 || options.scale > largestScale) {
            return wrong(QStringLiteral("--scale takes a factor up to 8, for instance 1.5"));
        }
    }
    if (parser.positionalArguments().size() > 1) {
        return wrong(QStringLiteral("there is more than one path"));
    }
    options.passwordFile = parser.value(QStringLiteral("password-file"));
    options.settings = parser.value(QStringLiteral("settings"));
    options.screenshot = parser.value(QStringLiteral("screenshot"));
    options.activity = parser.isSet(QStringLiteral("activity"));
    options.details = parser.isSet(QStringLiteral("details"));
    options.path = parser.positionalArguments().value(0);
    return options;
}

std::variant<std::optional<wire::WideString>, Refusal> readPassword(const Options& options) {
    if (options.passwordFile.isEmpty()) {
        const bool isSet = qEnvironmentVariableIsSet("VANTREL_PASSWORD");
        return isSet ? std::optional(toWideString(qEnvironmentVariable("VANTREL_PASSWORD"))) : std::nullopt;
    }
    QFile file(options.passwordFile);
    QByteArray line;
    if (file.open(QIODevice::ReadOnly)) {
        line = file.readLine();
    }
    while (line.endsWith('\n') || line.endsWith('\r')) {
        line.chop(1);
    }
    if (line.isEmpty()) {
        return Refusal{
            QStringLiteral("vantrel-admin: the password file %1 can't be read or is empty\n").arg(options.passwordFile),
            noLoginStatus};
    }
    return std::optional(toWideString(QString::fromUtf8(line)));
}

} // namespace desktop
