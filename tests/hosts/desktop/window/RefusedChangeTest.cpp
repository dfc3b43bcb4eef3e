#include "tests/hosts/desktop/WindowFixture.h"

#include "client/CQVXAdminClass.h"

#include <QLabel>
#include <QLineEdit>
#include <QTreeView>

namespace desktoptest {
namespace {

// The window where a change is refused without a reply, or does not arrive.
class RefusedChange : public WindowFixture {
protected:
    static QString textOf(const QDialog& box) {
        QString text;
        for (const auto* const label : box.findChildren<QLabel*>()) {
            text += label->text();
        }
        return text;
    }
    // The box in the tree for a new name; null when there is none. One that was closed may still exist before it.
    QLineEdit* nameBox() {
        const auto boxes = panes().tree().findChildren<QLineEdit*>();
        return boxes.isEmpty() ? nullptr : boxes.back();
    }
    void renameTo(const QString& name) {
        window().actions().rename->trigger();
        ASSERT_NE(nullptr, nameBox());
        nameBox()->setText(name);
        QTest::keyClick(nameBox(), Qt::Key_Return);
    }
    // As somebody else would do it meanwhile.
    static void deletePlan(wire::WideStringView name) {
        client::CQVXAdminClass client;
        std::vector<protocol::PricePlanRecord> plans;
        ASSERT_TRUE(client.listPricePlans(plans));
        const auto plan = std::ranges::find(plans, name, &protocol::PricePlanRecord::name);
        ASSERT_NE(plans.end(), plan);
        client.deletePricePlan(plan->id);
    }
    static constexpr const char* openAgain = "Open again with what you typed";
};

TEST_F(RefusedChange, aSecondRegionOfTheSameNameIsToldAndCanBeNamedAnew) {
    open();
    QString said;
    whenAsked([](QDialog& dialog) {
        type(dialog, 0, QStringLiteral("Berlin"));
        press(dialog, QStringLiteral("OK"));
    });
    whenAsked([&](QDialog& box) {
        said = textOf(box);
        press(box, QString::fromLatin1(openAgain));
    });
    whenAsked([](QDialog& dialog) {
        EXPECT_EQ(QStringLiteral("Berlin"), dialog.findChildren<QLineEdit*>()[0]->text());
        type(dialog, 0, QStringLiteral("Berlin West"));
        press(dialog, QStringLiteral("OK"));
    });

    choose(QStringLiteral("Create region"));

    EXPECT_TRUE(said.contains(QStringLiteral("did not accept this change: Create region."))) << said.toStdString();
    window().actions().refresh->trigger();
    settle();
    EXPECT_TRUE(childrenOf(QStringLiteral("Printers")).contains(QStringLiteral("Berlin West")));
}

TEST_F(RefusedChange, whatIsNotOpenedAgainIsForgotten) {
    open();
    whenAsked([](QDialog& dialog) {
        type(dialog, 0, QStringLiteral("Berlin"));
        press(dialog, QStringLiteral("OK"));
    });
    whenAsked([](QDialog& box) { press(box, QStringLiteral("Close")); });
    choose(QStringLiteral("Create region"));
    QString name;
    whenAsked([&](QDialog& dialog) {
        name = dialog.findChildren<QLineEdit*>()[0]->text();
        press(dialog, QStringLiteral("Cancel"));
    });

    choose(QStringLiteral("Create region"));

    EXPECT_EQ(QString(), name);
}

TEST_F(RefusedChange, aNameThatIsTakenComesBackIntoTheBoxForTheName) {
    open(QStringLiteral("Printers/Berlin"));
    whenAsked([](QDialog& box) { press(box, QString::fromLatin1(openAgain)); });
    renameTo(QStringLiteral("München"));
    settle();

    QLineEdit* const editor = nameBox();
    ASSERT_NE(nullptr, editor);
    EXPECT_EQ(QStringLiteral("München"), editor->text());
    editor->setText(QStringLiteral("Berlin East"));
    QTest::keyClick(editor, Qt::Key_Return);
    settle();
    EXPECT_TRUE(childrenOf(QStringLiteral("Printers")).contains(QStringLiteral("Berlin East")));
}

TEST_F(RefusedChange, theRowsOfADialogsListComeBackWithWhatWasTyped) {
    open(QStringLiteral("Rules/Price Plans"));
    selectRow(QStringLiteral("Students"));
    const auto rowsOf = [](const QDialog& dialog) { return dialog.findChild<QTreeView*>()->model()->rowCount(); };
    int edited = 0;
    whenAsked([&](QDialog& dialog) {
        const int before = rowsOf(dialog);
        type(dialog, 0, QStringLiteral("Pupils"));
        auto* const prices = dialog.findChild<QTreeView*>();
        QTest::mouseClick(prices->viewport(), Qt::LeftButton, {},
                          prices->visualRect(prices->model()->index(0, 0)).center());
        press(dialog, QStringLiteral("Remove"));
        QCoreApplication::processEvents(); // the list fills when the handler has returned
        edited = rowsOf(dialog);
        EXPECT_GT(before, edited);
        deletePlan(u"Students");
        press(dialog, QStringLiteral("OK"));
    });
    whenAsked([](QDialog& box) { press(box, QString::fromLatin1(openAgain)); });
    int shownAgain = 0;
    whenAsked([&](QDialog& dialog) {
        shownAgain = rowsOf(dialog);
        EXPECT_EQ(QStringLiteral("Pupils"), dialog.findChildren<QLineEdit*>()[0]->text());
        press(dialog, QStringLiteral("Cancel"));
    });

    choose(QStringLiteral("Edit price plan"));

    EXPECT_NE(0, edited);
    EXPECT_EQ(edited, shownAgain);
}

TEST_F(RefusedChange, aRecordThatTheServerRefusesWithAReasonComesBackAsItWasLeft) {
    open(QStringLiteral("Printers/München"));
    selectRow(QStringLiteral("MUC-002"));
    QString reason;
    whenAsked([](QDialog& dialog) {
        type(dialog, 0, QStringLiteral("MUC-001"));
        type(dialog, 1, QStringLiteral("Attic"));
        press(dialog, QStringLiteral("OK"));
    });
    const auto readReason = [&](QDialog& box) {
        reason = textOf(box);
        press(box, QStringLiteral("OK"));
    };
    whenAsked(readReason); // once for each update, and there is one for each field
    whenAsked(readReason);
    whenAsked([](QDialog& box) { press(box, QString::fromLatin1(openAgain)); });
    whenAsked([](QDialog& dialog) {
        const auto boxes = dialog.findChildren<QLineEdit*>();
        EXPECT_EQ(QStringLiteral("MUC-001"), boxes[0]->text());
        EXPECT_EQ(QStringLiteral("Attic"), boxes[1]->text());
        type(dialog, 0, QStringLiteral("MUC-009"));
        press(dialog, QStringLiteral("OK"));
    });

    choose(QStringLiteral("Edit Printer/Printer Properties"));

    EXPECT_TRUE(reason.contains(QStringLiteral("MUC-001"))) << reason.toStdString();
    EXPECT_EQ(nullptr, QApplication::activeModalWidget());
    window().actions().refresh->trigger();
    settle();
    ASSERT_TRUE(rows().contains(QStringLiteral("MUC-009")));
    EXPECT_EQ(QStringLiteral("Attic"), rowNamed(QStringLiteral("MUC-009")).siblingAtColumn(2).data().toString());
}

TEST_F(RefusedChange, aPricePlanStaysOpenWithWhatWasTypedWhileTheServerIsDown) {
    open(QStringLiteral("Rules/Price Plans"));
    QString said;
    whenAsked([&](QDialog& dialog) {
        server.stop();
        auto* const name = dialog.findChildren<QLineEdit*>()[0];
        type(dialog, 0, QStringLiteral("Night"));
        whenAsked([&](QDialog& box) {
            said = textOf(box);
            press(box, QStringLiteral("Close"));
        });
        whenAsked([&, name](QDialog& plan) {
            EXPECT_EQ(QStringLiteral("Night"), name->text());
            server.restart();
            whenAsked([](QDialog& box) { press(box, QStringLiteral("Log In Again...")); });
            whenAsked([](QDialog& login) {
                type(login, 3, QStringLiteral("secret-pw"));
                press(login, QStringLiteral("Login"));
            });
            press(plan, QStringLiteral("OK"));
        });
        press(dialog, QStringLiteral("OK"));
    });

    choose(QStringLiteral("New Price Plan..."));

    EXPECT_TRUE(said.contains(QStringLiteral("can't be reached"))) << said.toStdString();
    EXPECT_TRUE(rows().contains(QStringLiteral("Night")));
}

TEST_F(RefusedChange, aRenameWhileTheServerIsDownKeepsTheOldNameAndTheNewOneInItsBox) {
    open(QStringLiteral("Printers/Berlin"));
    server.stop();
    whenAsked([](QDialog& box) { press(box, QStringLiteral("Close")); });
    renameTo(QStringLiteral("Berlin East"));
    settle();

    EXPECT_TRUE(childrenOf(QStringLiteral("Printers")).contains(QStringLiteral("Berlin")));
    const QLineEdit* const editor = nameBox();
    ASSERT_NE(nullptr, editor);
    EXPECT_EQ(QStringLiteral("Berlin East"), editor->text());
}

TEST_F(RefusedChange, aMoveWhileTheServerIsDownIsTold) {
    open(QStringLiteral("Printers/München"));
    selectRow(QStringLiteral("MUC-001"));
    window().actions().cut->trigger();
    settle();
    show(QStringLiteral("Printers/Łódź"));
    ASSERT_TRUE(window().actions().paste->isEnabled());
    server.stop();
    QString said;
    whenAsked([&](QDialog& box) {
        said = textOf(box);
        press(box, QStringLiteral("Close"));
    });

    window().actions().paste->trigger();
    settle();

    EXPECT_TRUE(said.contains(QStringLiteral("Nothing was changed"))) << said.toStdString();
}

TEST_F(RefusedChange, aChangeThatIsAcceptedIsNotSpokenOf) {
    open();
    whenAsked([](QDialog& dialog) {
        type(dialog, 0, QStringLiteral("North"));
        press(dialog, QStringLiteral("OK"));
    });

    choose(QStringLiteral("Create region"));

    EXPECT_EQ(nullptr, QApplication::activeModalWidget());
}

} // namespace
} // namespace desktoptest
