#ifndef NV_STORE_LOCK_H
#define NV_STORE_LOCK_H

#include <string>

namespace NV_store {

/// Keeps everybody else out of a file, in this process and others, under whatever name: it locks the bytes that SQLite
/// locks. It belongs to its own opening of the file. SQLite's locks belong to the process, which loses them all as soon
/// as any part of it closes the file, say after copying it; so here SQLite takes none.
class Lock
{
  public:
    /// Makes the file if there is none. Throws a Problem: after a second if somebody else has the file, otherwise at
    /// once.
    explicit Lock(const std::string& path);
    ~Lock();
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

    /// The path does not lead to the file any more.
    bool is_moved() const;

  private:
    bool take();
    void close();

    const std::string path;
    int descriptor{-1};
};

} // namespace NV_store

#endif
