#include "hosts/desktop/list/ExportList.h"

#include "hosts/desktop/forms/MessageBox.h"
#include "hosts/desktop/look/Text.h"
#include "platform/UserInterface.h"
#include "shell/ListExport.h"

#include <QDir>
#include <QFileDialog>
#include <QLocale>
#include <QRegularExpression>
#include <QSaveFile>

#include <sstream>

namespace desktop {
namespace {

constexpr const char* filters = "CSV, for spreadsheets (*.csv);;JSON (*.json);;Text (*.txt)";

QString endingOf(const QString& filter) {
    return filter.contains(QLatin1String("*.json"))  ? QStringLiteral(".json")
           : filter.contains(QLatin1String("*.txt")) ? QStringLiteral(".txt")
                                                     : QStringLiteral(".csv");
}

QString fileNameFor(const QString& name) {
    static const QRegularExpression unfit(QStringLiteral("[\\\\/:*?\"<>|[:cntrl:]]"));
    const QString fit = QString(name).replace(unfit, QStringLiteral("_")).left(80).trimmed();
    return (fit.isEmpty() ? QStringLiteral("List") : fit) + QStringLiteral(".csv");
}

} // namespace

ListFormat listFormatOf(const QString& file) {
    if (file.endsWith(QLatin1String(".json"), Qt::CaseInsensitive)) {
        return ListFormat::json;
    }
    return file.endsWith(QLatin1String(".txt"), Qt::CaseInsensitive) ? ListFormat::text : ListFormat::csv;
}

std::optional<QString> writeList(const shell::Table& table, const QString& file, ListFormat format) {
    std::ostringstream stream;
    switch (format) {
    case ListFormat::csv:
        shell::writeCsv(stream, table);
        break;
    case ListFormat::json:
        shell::writeJson(stream, table);
        break;
    case ListFormat::text:
        shell::writeText(stream, table);
        break;
    }
    const auto bytes = stream.view();
    QSaveFile target(file);
    if (target.open(QIODevice::WriteOnly) &&
        target.write(bytes.data(), static_cast<qint64>(bytes.size())) == static_cast<qint64>(bytes.size()) &&
        target.commit()) {
        return std::nullopt;
    }
    return QStringLiteral("The list could not be written to %1: %2").arg(file, target.errorString());
}

QString exportList(const shell::Table& table, const QString& name, QWidget* owner) {
    QString filter;
    QString file =
        QFileDialog::getSaveFileName(owner, QStringLiteral("Export List"), QDir::home().filePath(fileNameFor(name)),
                                     QString::fromLatin1(filters), &filter);
    if (file.isEmpty()) {
        return {};
    }
    if (!QFileInfo(file).fileName().contains(QLatin1Char('.'))) {
        file += endingOf(filter);
    }
    if (const auto error = writeList(table, file, listFormatOf(file))) {
        showMessageBox(owner, toWideString(*error), u"Export List",
                       platform::boxStyle::ok | platform::boxStyle::iconStop);
        return QStringLiteral("The list was not exported.");
    }
    return QStringLiteral("%1 rows were written to %2")
        .arg(QLocale().toString(static_cast<qulonglong>(table.rowCount)), file);
}

} // namespace desktop
