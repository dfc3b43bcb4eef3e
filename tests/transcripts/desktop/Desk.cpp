#include "tests/transcripts/desktop/Desk.h"

#include "client/CQVXAdminClassProperties.h"
#include "hosts/common/QuietOutput.h"
#include "hosts/ctl/NodeFinder.h"
#include "hosts/desktop/look/Text.h"
#include "snapin/LoginThread.h"
#include "tests/transcripts/desktop/Hands.h"

#include <QCoreApplication>
#include <QTest>

namespace transcripts {
namespace {

constexpr int patience = 120'000; // milliseconds

template <class Condition>
void await(Condition condition) {
    if (!QTest::qWaitFor(condition, patience)) {
        throw std::runtime_error("the desktop does not come to rest");
    }
}

// The texts of what stands below an item, or of the first column of a list.
std::vector<wire::WideString> textsBelow(const QAbstractItemModel& model, const QModelIndex& parent) {
    std::vector<wire::WideString> texts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        texts.push_back(desktop::toWideString(model.index(row, 0, parent).data(Qt::EditRole).toString()));
    }
    return texts;
}

} // namespace

Desk::Desk(const SampleServer& server)
    : viewSettings_(QString::fromStdString(server.folder() / "view.ini")), person_([this] { checkCommands(); }) {
    snapin::loginDone = 0;
    settings_.values = {{"ServerName", u"127.0.0.1"},
                        {"ServerPort", wire::toWide(std::to_string(server.port()))},
                        {"UserName", u"admin"}};
    session_ = std::make_unique<desktop::Session>(settings_);
    window_ = std::make_unique<desktop::MainWindow>(*session_, viewSettings_, icons_);
    window_->resize(1000, 800);
    window_->show();
    window_->activateWindow();
    session_->ui().setPassword(wire::toWide(SampleServer::password));
    const common::QuietOutput quiet; // the login leaves a word on standard output
    bool started = false;
    window_->onStarted = [&](const std::optional<QString>&) { started = true; };
    window_->start({});
    await([&] { return started; });
    settle();
    if (!client::theProperties) {
        throw ctl::Failure(ctl::ExitStatus::noConnection, "There is no login");
    }
    client::theProperties->hooks.requests = &writes_;
    session_->observers().add(failures_);
}

Desk::~Desk() {
    session_->observers().remove(failures_);
    window_.reset();
    session_.reset();
    client::theProperties.reset();
}

void Desk::settle() {
    for (int round = 0; round < 4; ++round) {
        bool done = false;
        session_->operations().later([&] { done = true; });
        await([&] { return done && QApplication::activeModalWidget() == nullptr; });
        QCoreApplication::processEvents();
    }
}

void Desk::checkCommands() {
    const auto write = writes_.notCarriedOut();
    failures_.check();
    if (write) {
        throw ctl::Failure(ctl::ExitStatus::refused, "The server did not carry out the command " + *write);
    }
}

void Desk::check() {
    checkCommands();
    person_.finish();
}

void Desk::expand(const QModelIndex& item) {
    if (tree().isExpanded(item) || !tree().model()->hasChildren(item)) {
        return;
    }
    tree().scrollTo(item);
    const QRect text = tree().visualRect(item);
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {},
                      QPoint(text.left() - tree().indentation() / 2, text.center().y()));
    settle();
}

QModelIndex Desk::open(const ctl::NodePath& path) {
    const auto& model = *tree().model();
    QModelIndex item = model.index(0, 0, model.index(0, 0)); // the server below the root
    ctl::NodePath above;
    for (const auto& name : path) {
        expand(item);
        item = model.index(static_cast<int>(ctl::placeOfNode(name, textsBelow(model, item), above)), 0, item);
        above.push_back(name);
    }
    const QPersistentModelIndex kept = item;
    hands::click(tree(), item);
    settle();
    return kept;
}

void Desk::selectRow(const std::string& name) {
    const auto& model = *list().model();
    const auto row = ctl::placeOfRow(wire::toWide(name), textsBelow(model, {}));
    hands::click(list(), model.index(static_cast<int>(row), 0));
    settle();
}

} // namespace transcripts
