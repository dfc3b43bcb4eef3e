#pragma once

#include "hosts/desktop/activity/InputBlocker.h"
#include "hosts/desktop/activity/Operations.h"
#include "hosts/desktop/activity/WaitPanel.h"
#include "shell/Observers.h"

#include <memory>

namespace desktop {

// Keeps the windows alive while a command waits for the server. They are repainted at once; after half a second a panel
// says what is being done and how many records have arrived, and offers Cancel. All other input is blocked, so that no
// second command can start within the first.
class WaitIndicator final : private shell::ShellObserver {
public:
    static constexpr std::chrono::milliseconds patience{500};

    // All outlive it.
    WaitIndicator(const Operations& operations, shell::Observers& observers, QWidget& mainWindow);
    WaitIndicator(const WaitIndicator&) = delete;
    WaitIndicator& operator=(const WaitIndicator&) = delete;
    ~WaitIndicator() override;

    [[nodiscard]] bool isShown() const { return panel_ != nullptr; }
    // Cancels the running command, and those that the same operation would send after it.
    void cancel() { cancelled_ = true; }

    // "ListPrinterRecords" as "List printer records".
    static QString spoken(const QString& command);
    // What is being done, as text: "List regions (Berlin): 1,200 records, 3 s".
    static QString describe(const QString& command, const QString& about, std::uint32_t records,
                            std::chrono::milliseconds elapsed);

private:
    void commandStarted(const client::CommandReport& report) override;
    bool commandWaits(std::chrono::milliseconds elapsed, std::uint32_t records) override;
    void commandEnded(const client::CommandReport& report) override;
    void showPanel(std::chrono::milliseconds elapsed, std::uint32_t records);

    const Operations& operations_;
    shell::Observers& observers_;
    QWidget& mainWindow_;
    QString command_;
    QString about_;
    std::chrono::steady_clock::time_point start_;
    int running_ = 0; // a login runs one command within another
    bool cancelled_ = false;
    std::uint64_t operation_ = 0; // the operation that cancelled_ applies to
    bool processing_ = false;
    std::unique_ptr<WaitPanel> panel_;
    std::unique_ptr<InputBlocker> gate_;
};

} // namespace desktop
