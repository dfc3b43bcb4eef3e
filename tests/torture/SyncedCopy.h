#pragma once

namespace torture {

// If the plan says so, copies the file to one with ".synced" appended to its name: what would be left of it if the
// power failed before its next sync.
void keepSyncedCopy(int descriptor);

} // namespace torture
