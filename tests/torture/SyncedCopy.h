#pragma once

namespace torture {

// Copies the file to one with ".synced" at the end of its name, when the plan wants it: what would be left of it if the
// power failed before its next sync.
void keepSyncedCopy(int descriptor);

} // namespace torture
