#ifndef NV_STORE_REPLACEMENT_H
#define NV_STORE_REPLACEMENT_H

#include <functional>
#include <string>

// How a damaged file makes room for a new one, so that whoever is killed on the way leaves nothing that the next start
// could take for a sound file: the new one is complete before the old one moves, and tells of what is not finished.

namespace NV_store {

/// Calls the damaged file, and what SQLite keeps beside it, path.damaged-n, which it returns. `make` makes the file
/// that takes its place, under the name that it is given. Keeps the newest three of the damaged ones.
std::string replace(const std::string& path, const std::function<void(const std::string& successor)>& make);

/// Finishes what a process left that was killed on the way, or undoes it if the damaged file had no other name yet.
/// Returns that name if it was finished, otherwise nothing. Only for whoever holds the lock of what is there: when this
/// is finished, or another process has finished it, something else is there.
std::string settle_replacement(const std::string& path);

} // namespace NV_store

#endif
