#include "hosts/desktop/list/ViewSettings.h"

#include <QSettings>

#include <algorithm>
#include <utility>

namespace desktop {
namespace {

constexpr int narrowest = 16;
constexpr int widest = 4'000;
constexpr int mostColumns = 100;
constexpr QLatin1String ascending("ascending");
constexpr QLatin1String descending("descending");
constexpr QSize leastVisible(200, 100);
constexpr QSize smallestWindow(400, 300);

// Moved, and if need be made smaller, so that the screen which shows most of it shows all of it.
QRect heldTo(const std::vector<QRect>& screens, const QRect& wanted) {
    const auto area = [&](const QRect& screen) {
        const QRect visible = screen.intersected(wanted);
        return visible.width() * visible.height();
    };
    const QRect screen = *std::ranges::max_element(screens, {}, area);
    QRect held(wanted.topLeft(), wanted.size().boundedTo(screen.size()));
    held.moveRight(std::min(held.right(), screen.right()));
    held.moveBottom(std::min(held.bottom(), screen.bottom()));
    held.moveTopLeft({std::max(held.left(), screen.left()), std::max(held.top(), screen.top())});
    return held;
}

} // namespace

ViewSettings::ViewSettings(QString file) : file_(std::move(file)) {}

std::vector<ColumnChoice> ViewSettings::columns(const QString& list) const {
    QSettings settings(file_, QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("columns"));
    const int count = std::clamp(settings.beginReadArray(list), 0, mostColumns);
    std::vector<ColumnChoice> columns;
    for (int place = 0; place < count; ++place) {
        settings.setArrayIndex(place);
        const ColumnChoice column{.title = settings.value(QStringLiteral("title")).toString(),
                                  .width = settings.value(QStringLiteral("width")).toInt(),
                                  .hidden = settings.value(QStringLiteral("hidden")).toBool()};
        const auto same = [&](const ColumnChoice& other) { return other.title == column.title; };
        if (column.width >= narrowest && column.width <= widest && std::ranges::none_of(columns, same)) {
            columns.push_back(column);
        }
    }
    return columns;
}

void ViewSettings::setColumns(const QString& list, const std::vector<ColumnChoice>& columns) {
    QSettings settings(file_, QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("columns"));
    settings.remove(list);
    settings.beginWriteArray(list, static_cast<int>(columns.size()));
    int place = 0;
    for (const auto& column : columns) {
        settings.setArrayIndex(place++);
        settings.setValue(QStringLiteral("title"), column.title);
        settings.setValue(QStringLiteral("width"), std::clamp(column.width, narrowest, widest));
        settings.setValue(QStringLiteral("hidden"), column.hidden);
    }
    settings.endArray();
}

void ViewSettings::forgetColumns(const QString& list) {
    QSettings settings(file_, QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("columns"));
    settings.remove(list);
}

std::unordered_map<std::string, shell::SortOrder> ViewSettings::sortOrders() const {
    QSettings settings(file_, QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("sort"));
    std::unordered_map<std::string, shell::SortOrder> orders;
    for (const QString& list : settings.childKeys()) {
        const auto words = settings.value(list).toString().split(QLatin1Char(' '));
        bool isNumber = false;
        const int column = words.front().toInt(&isNumber);
        if (isNumber && column >= 0 && column < mostColumns &&
            (words.back() == ascending || words.back() == descending)) {
            orders[list.toStdString()] = {column, words.back() == ascending};
        }
    }
    return orders;
}

void ViewSettings::setSortOrder(const std::string& list, const std::optional<shell::SortOrder>& order) {
    QSettings settings(file_, QSettings::IniFormat);
    const QString key = QStringLiteral("sort/") + QString::fromStdString(list);
    if (order) {
        settings.setValue(key, QString::number(order->column) + QLatin1Char(' ') +
                                   (order->ascending ? ascending : descending));
    } else {
        settings.remove(key);
    }
}

QRect ViewSettings::geometry(const std::vector<QRect>& screens) const {
    const QSettings settings(file_, QSettings::IniFormat);
    const QRect wanted = settings.value(QStringLiteral("window/geometry")).toRect();
    const auto shows = [&](const QRect& screen) {
        const QRect visible = screen.intersected(wanted);
        // A window is moved by its upper edge.
        return visible.width() >= leastVisible.width() && visible.height() >= leastVisible.height() &&
               wanted.top() >= screen.top() && wanted.width() <= 2 * screen.width() &&
               wanted.height() <= 2 * screen.height();
    };
    const bool usable = wanted.width() >= smallestWindow.width() && wanted.height() >= smallestWindow.height() &&
                        std::ranges::any_of(screens, shows);
    return usable ? heldTo(screens, wanted) : QRect();
}

void ViewSettings::setGeometry(const QRect& geometry) {
    QSettings(file_, QSettings::IniFormat).setValue(QStringLiteral("window/geometry"), geometry);
}

std::vector<ServerLogin> ViewSettings::logins() const {
    QSettings settings(file_, QSettings::IniFormat);
    const int count = std::clamp(settings.beginReadArray(QStringLiteral("logins")), 0, mostLogins);
    std::vector<ServerLogin> logins;
    for (int place = 0; place < count; ++place) {
        settings.setArrayIndex(place);
        const ServerLogin login{.host = settings.value(QStringLiteral("host")).toString(),
                                .port = static_cast<quint16>(settings.value(QStringLiteral("port")).toUInt()),
                                .user = settings.value(QStringLiteral("user")).toString(),
                                .domain = settings.value(QStringLiteral("domain")).toString()};
        if (!login.host.isEmpty() && login.port != 0 && std::ranges::find(logins, login) == logins.end()) {
            logins.push_back(login);
        }
    }
    return logins;
}

void ViewSettings::addLogin(const ServerLogin& login) {
    auto logins = this->logins();
    std::erase(logins, login);
    logins.insert(logins.begin(), login);
    logins.resize(std::min<std::size_t>(logins.size(), mostLogins));
    QSettings settings(file_, QSettings::IniFormat);
    settings.remove(QStringLiteral("logins"));
    settings.beginWriteArray(QStringLiteral("logins"), static_cast<int>(logins.size()));
    int place = 0;
    for (const ServerLogin& each : logins) {
        settings.setArrayIndex(place++);
        settings.setValue(QStringLiteral("host"), each.host);
        settings.setValue(QStringLiteral("port"), each.port);
        settings.setValue(QStringLiteral("user"), each.user);
        settings.setValue(QStringLiteral("domain"), each.domain);
    }
    settings.endArray();
}

QByteArray ViewSettings::state(const QString& name) const {
    return QSettings(file_, QSettings::IniFormat).value(QStringLiteral("window/") + name).toByteArray();
}

void ViewSettings::setState(const QString& name, const QByteArray& state) {
    QSettings(file_, QSettings::IniFormat).setValue(QStringLiteral("window/") + name, state);
}

} // namespace desktop
