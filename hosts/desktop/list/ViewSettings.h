#pragma once

#include "shell/SortOrder.h"

#include <QRect>
#include <QString>

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace desktop {

// A column as the user arranged it.
struct ColumnChoice {
    QString title;
    int width = 0;
    bool hidden = false;
};

// Where and as whom somebody has logged in; never with the password.
struct ServerLogin {
    QString host;
    quint16 port = 0;
    QString user;
    QString domain;

    friend bool operator==(const ServerLogin&, const ServerLogin&) = default;
};

// What the windows remember from one start to the next, in an INI file. An invalid file or one with unusable values is
// ignored; it is rewritten when there is something to remember.
class ViewSettings {
public:
    explicit ViewSettings(QString file);

    [[nodiscard]] const QString& file() const { return file_; }

    // In the order in which they are shown; empty when nothing is remembered for the list.
    [[nodiscard]] std::vector<ColumnChoice> columns(const QString& list) const;
    void setColumns(const QString& list, const std::vector<ColumnChoice>& columns);
    void forgetColumns(const QString& list);

    // The orders of lists, by the class of the items that they belong to; a list in its natural order has none.
    [[nodiscard]] std::unordered_map<std::string, shell::SortOrder> sortOrders() const;
    void setSortOrder(const std::string& list, const std::optional<shell::SortOrder>& order);

    // The window's position and size, held to the screen; an invalid rectangle when that is unknown or no screen would
    // show enough of it.
    [[nodiscard]] QRect geometry(const std::vector<QRect>& screens) const;
    void setGeometry(const QRect& geometry);

    // The recent logins, the latest first, each once.
    static constexpr int mostLogins = 8;
    [[nodiscard]] std::vector<ServerLogin> logins() const;
    void addLogin(const ServerLogin& login);

    // By name: positions of splitters and docks, whether something is shown.
    [[nodiscard]] QByteArray state(const QString& name) const;
    void setState(const QString& name, const QByteArray& state);

private:
    QString file_;
};

} // namespace desktop
