#include "hosts/desktop/activity/ActivityModel.h"

#include "hosts/desktop/look/Text.h"

#include <QLocale>

#include <array>

namespace desktop {
namespace {

struct ActivityColumn {
    const char* title;
    bool isNumber;
    QString (*text)(const Activity&);
};

QString outcomeOf(const Activity& activity) {
    switch (activity.outcome) {
    case client::CommandOutcome::running:
        return QStringLiteral("Running");
    case client::CommandOutcome::done:
        return QStringLiteral("Done");
    case client::CommandOutcome::cancelled:
        return QStringLiteral("Cancelled");
    case client::CommandOutcome::failed:
        break;
    }
    return activity.text.isEmpty() ? QStringLiteral("Failed") : QStringLiteral("Failed: ") + activity.text;
}

QString numberOf(const Activity& activity, std::uint64_t number) {
    return activity.isCommand ? QLocale().toString(static_cast<qulonglong>(number)) : QString();
}

QString durationOf(const Activity& activity) {
    if (!activity.isCommand || activity.outcome == client::CommandOutcome::running) {
        return {};
    }
    const auto milliseconds = static_cast<double>(activity.duration.count()) / 1e6;
    return QLocale().toString(milliseconds, 'f', milliseconds < 10 ? 1 : 0) + QStringLiteral(" ms");
}

const std::array<ActivityColumn, 9> columns{{
    {"Time", false, [](const Activity& a) { return a.time.toString(QStringLiteral("hh:mm:ss.zzz")); }},
    {"Command", false, [](const Activity& a) { return a.command; }},
    {"About", false, [](const Activity& a) { return a.about; }},
    {"Server", false, [](const Activity& a) { return a.target; }},
    {"Records", true, [](const Activity& a) { return numberOf(a, a.records); }},
    {"Bytes Sent", true, [](const Activity& a) { return numberOf(a, a.bytesSent); }},
    {"Bytes Received", true, [](const Activity& a) { return numberOf(a, a.bytesReceived); }},
    {"Duration", true, durationOf},
    {"Outcome", false, outcomeOf},
}};

} // namespace

ActivityModel::ActivityModel(ActivityLog& log) : log_(log) {
    log_.listener = {.aboutToAdd = [this] { beginInsertRows({}, rowCount(), rowCount()); },
                     .added = [this] { endInsertRows(); },
                     .aboutToDrop = [this] { beginRemoveRows({}, 0, 0); },
                     .dropped = [this] { endRemoveRows(); },
                     .aboutToClear = [this] { beginResetModel(); },
                     .cleared = [this] { endResetModel(); },
                     .changed =
                         [this](std::size_t place) {
                             const int row = static_cast<int>(place);
                             emit dataChanged(index(row, 0), index(row, columnCount() - 1));
                         }};
}

ActivityModel::~ActivityModel() {
    log_.listener = {};
}

int ActivityModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(log_.size());
}

int ActivityModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns.size());
}

QVariant ActivityModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || static_cast<std::size_t>(index.row()) >= log_.size()) {
        return {};
    }
    const auto& column = columns[static_cast<std::size_t>(index.column())];
    const auto& activity = log_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return oneLine(toWideString(column.text(activity)));
    case Qt::ToolTipRole:
        return column.text(activity);
    case Qt::TextAlignmentRole:
        return static_cast<int>((column.isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant ActivityModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    const auto& column = columns[static_cast<std::size_t>(section)];
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromLatin1(column.title);
    case Qt::TextAlignmentRole:
        return static_cast<int>((column.isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    default:
        return {};
    }
}

Qt::ItemFlags ActivityModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

} // namespace desktop
