#pragma once

#include "client/PrinterRecordEdit.h"

#include <type_traits>
#include <utility>

namespace client {

// Sets a field of a record unless it has the value already: the server gets an update for each field that is set.
template <class Value>
void change(PrinterRecordEdit& edit, Value protocol::PrinterRecord::*field, void (PrinterRecordEdit::*set)(Value),
            std::type_identity_t<Value> value) {
    if (edit.record().*field != value) {
        (edit.*set)(std::move(value));
    }
}

} // namespace client
