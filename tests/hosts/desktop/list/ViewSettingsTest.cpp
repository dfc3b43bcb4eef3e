#include "hosts/desktop/list/ViewSettings.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace desktoptest {
namespace {

using desktop::ViewSettings;

class ViewSettingsTest : public testing::Test {
protected:
    void write(const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("view.ini"));
    const std::vector<QRect> screens{QRect(0, 0, 1920, 1080)};
};

TEST_F(ViewSettingsTest, remembersColumnsOfEachListByThemselves) {
    ViewSettings(path).setColumns(QStringLiteral("class A;Name;Two"),
                                  {{QStringLiteral("Two"), 90, false}, {QStringLiteral("Name"), 200, true}});
    ViewSettings(path).setColumns(QStringLiteral("class B"), {{QStringLiteral("Name"), 50, false}});
    const auto columns = ViewSettings(path).columns(QStringLiteral("class A;Name;Two"));
    ASSERT_EQ(2U, columns.size());
    EXPECT_EQ(QStringLiteral("Two"), columns[0].title);
    EXPECT_EQ(90, columns[0].width);
    EXPECT_TRUE(columns[1].hidden);
    EXPECT_EQ(1U, ViewSettings(path).columns(QStringLiteral("class B")).size());
    EXPECT_TRUE(ViewSettings(path).columns(QStringLiteral("class C")).empty());
}

TEST_F(ViewSettingsTest, forgottenColumnsAreGone) {
    ViewSettings settings(path);
    settings.setColumns(QStringLiteral("class A"), {{QStringLiteral("Name"), 200, false}});
    settings.forgetColumns(QStringLiteral("class A"));
    EXPECT_TRUE(settings.columns(QStringLiteral("class A")).empty());
}

TEST_F(ViewSettingsTest, columnsThatNoListCanShowAreNotTaken) {
    write("[columns]\nclass%20A\\size=4\nclass%20A\\1\\title=Name\nclass%20A\\1\\width=-5\n"
          "class%20A\\2\\title=Two\nclass%20A\\2\\width=80\nclass%20A\\3\\title=Two\nclass%20A\\3\\width=90\n"
          "class%20A\\4\\width=999999\n");
    const auto columns = ViewSettings(path).columns(QStringLiteral("class A"));
    ASSERT_EQ(1U, columns.size());
    EXPECT_EQ(80, columns[0].width);
}

TEST_F(ViewSettingsTest, anAbsurdNumberOfColumnsDoesNoHarm) {
    write("[columns]\nA\\size=2000000000\nA\\1\\title=Name\nA\\1\\width=80\n");
    EXPECT_EQ(1U, ViewSettings(path).columns(QStringLiteral("A")).size());
}

TEST_F(ViewSettingsTest, aFileOfGarbageIsSurvivedAndWrittenAnew) {
    QByteArray garbage;
    for (int i = 0; i < 5'000; ++i) {
        garbage += static_cast<char>(i * 31 % 256);
    }
    write(garbage);
    ViewSettings settings(path);
    EXPECT_FALSE(settings.geometry(screens).isValid());
    EXPECT_TRUE(settings.columns(QStringLiteral("A")).empty());
    EXPECT_TRUE(settings.state(QStringLiteral("panes")).isEmpty());
    settings.setGeometry(QRect(10, 10, 800, 600));
    EXPECT_EQ(QRect(10, 10, 800, 600), ViewSettings(path).geometry(screens));
}

TEST_F(ViewSettingsTest, aWindowStandsWhereItStood) {
    ViewSettings(path).setGeometry(QRect(100, 50, 900, 700));
    EXPECT_EQ(QRect(100, 50, 900, 700), ViewSettings(path).geometry(screens));
}

TEST_F(ViewSettingsTest, aPlaceOnAScreenThatIsGoneIsNotUsed) {
    ViewSettings settings(path);
    settings.setGeometry(QRect(2'500, 100, 900, 700));
    EXPECT_FALSE(settings.geometry(screens).isValid());
    EXPECT_TRUE(settings.geometry({screens[0], QRect(1920, 0, 1920, 1080)}).isValid());
}

TEST_F(ViewSettingsTest, aWindowThatStoodPartlyOffItsScreenIsHeldToIt) {
    ViewSettings settings(path);
    const std::vector<QRect> small{QRect(0, 0, 1280, 800)};

    settings.setGeometry(QRect(900, 300, 900, 700));
    EXPECT_EQ(QRect(380, 100, 900, 700), settings.geometry(small));
    settings.setGeometry(QRect(100, 50, 1900, 1000));
    EXPECT_EQ(QRect(0, 0, 1280, 800), settings.geometry(small));
}

TEST_F(ViewSettingsTest, theEightLatestLoginsAreRememberedOnceEach) {
    ViewSettings settings(path);
    for (int place = 0; place < 10; ++place) {
        settings.addLogin({.host = QStringLiteral("server%1").arg(place), .port = 5005, .user = "admin", .domain = {}});
    }
    settings.addLogin({.host = QStringLiteral("server5"), .port = 5005, .user = "admin", .domain = {}});

    const auto logins = ViewSettings(path).logins();

    ASSERT_EQ(8U, logins.size());
    EXPECT_EQ(QStringLiteral("server5"), logins[0].host);
    EXPECT_EQ(QStringLiteral("server9"), logins[1].host);
    EXPECT_EQ(QStringLiteral("server2"), logins[7].host);
}

TEST_F(ViewSettingsTest, aWindowThatCannotBeMovedOrSeenIsNotUsed) {
    ViewSettings settings(path);
    for (const QRect& bad : {QRect(0, -500, 900, 700), QRect(1'850, 100, 900, 700), QRect(0, 0, 20, 20),
                             QRect(0, 0, 100'000, 700), QRect(100, 1'050, 900, 700)}) {
        settings.setGeometry(bad);
        EXPECT_FALSE(settings.geometry(screens).isValid()) << bad.x() << ' ' << bad.y();
    }
}

TEST_F(ViewSettingsTest, remembersTheOrderOfEachListThatHasOne) {
    ViewSettings settings(path);
    settings.setSortOrder("class A", shell::SortOrder{5, false});
    settings.setSortOrder("class B", shell::SortOrder{0, true});
    settings.setSortOrder("class C", shell::SortOrder{1, true});

    settings.setSortOrder("class C", std::nullopt);

    EXPECT_EQ((std::unordered_map<std::string, shell::SortOrder>{{"class A", {5, false}}, {"class B", {0, true}}}),
              ViewSettings(path).sortOrders());
}

TEST_F(ViewSettingsTest, ordersOfGarbageAreIgnored) {
    write("[sort]\na=-1 ascending\nb=x\nc=\nd=99999999999 descending\ne=1 sideways\nf=1000000 ascending\n");

    EXPECT_TRUE(ViewSettings(path).sortOrders().empty());
}

} // namespace
} // namespace desktoptest
