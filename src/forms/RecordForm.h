#pragma once

#include "client/CQVXAdminClass.h"
#include "forms/Form.h"

#include <functional>
#include <optional>
#include <string_view>
#include <utility>

namespace forms {

// The titles of a dialog that makes records and edits them.
struct RecordTitles {
    std::u16string_view ofNew;
    std::u16string_view ofEdited;
};

// The base of a dialog that makes a record of the server, or edits one. A class says how the record is shown, what is
// taken from its controls, and which commands write it.
template <class RecordType>
class RecordForm : public Form {
public:
    using Record = RecordType;

    // As it was sent to the server, once the form has ended with OK.
    [[nodiscard]] const Record& record() const { return record_; }

    // The record is written, and the form about to end. If it throws, the form stays.
    std::function<void(const Record& written)> onWritten;

protected:
    // Edits a record, or without one makes one, which begins as the fresh one.
    RecordForm(platform::Platform& platform, RecordTitles titles, std::optional<Record> edited, Record fresh)
        : Form(platform, edited ? titles.ofEdited : titles.ofNew),
          record_(edited ? std::move(*edited) : std::move(fresh)),
          isNew_(!edited) {}

    [[nodiscard]] bool isNew() const { return isNew_; }
    // Puts what the person has entered into the record. False once it has told what is missing.
    [[nodiscard]] virtual bool take() = 0;
    virtual void addRecord(client::CQVXAdminClass& client) = 0;
    virtual void updateRecord(client::CQVXAdminClass& client) = 0;

    void onOk() override {
        if (!take()) {
            return;
        }
        client::CQVXAdminClass client;
        if (isNew_) {
            addRecord(client);
        } else {
            updateRecord(client);
        }
        if (onWritten) {
            onWritten(record_);
        }
        EndDialog(idOk);
    }

    Record record_;

private:
    bool isNew_;
};

} // namespace forms
