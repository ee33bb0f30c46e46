#include "nv_store/Lock.h"

#include "nv_store/Problem.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace NV_store {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 1s; // the process before this one may still be dying

// The bytes by which SQLite's processes keep each other out. Few files are that long, and none needs to be.
constexpr off_t first_byte = 0x40000000;
constexpr off_t bytes = 512;

} // namespace

Lock::Lock(const std::string& path_) : path(path_)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!take()) {
        close();
        if (std::chrono::steady_clock::now() >= end)
            throw Problem{naming(path) + " is open elsewhere"};
        std::this_thread::sleep_for(10ms);
    }
}

Lock::~Lock() { close(); }

/// False if somebody else has the file, or has just put another one in its place. Otherwise it is to be closed.
bool Lock::take()
{
    descriptor = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (descriptor < 0) {
        const int error = errno;
        const bool is_readable = error == EACCES && faccessat(AT_FDCWD, path.c_str(), R_OK, AT_EACCESS) == 0;
        throw Problem::refused(naming(path) + (is_readable ? " cannot be written" : " cannot be opened"), error);
    }
    flock wanted{};
    wanted.l_type = F_WRLCK;
    wanted.l_whence = SEEK_SET;
    wanted.l_start = first_byte;
    wanted.l_len = bytes;
    if (fcntl(descriptor, F_OFD_SETLK, &wanted) == 0)
        return !is_moved();
    const int error = errno;
    if (error == EAGAIN || error == EACCES)
        return false;
    close(); // no destructor will
    throw Problem::refused(naming(path) + " cannot be locked", error);
}

void Lock::close()
{
    if (descriptor >= 0)
        ::close(descriptor);
    descriptor = -1;
}

bool Lock::is_moved() const
{
    struct stat named, held;
    return stat(path.c_str(), &named) != 0 || fstat(descriptor, &held) != 0 || named.st_dev != held.st_dev ||
           named.st_ino != held.st_ino;
}

} // namespace NV_store
