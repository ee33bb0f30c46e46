#ifndef TESTS_PLATFORM_NV_FOLDER_H
#define TESTS_PLATFORM_NV_FOLDER_H

#include "nv_store/Access.h"
#include "nv_store/Store.h"
#include "nv_store/waiter_descriptor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <vector>

/// What the tests of the non-volatile store share.
namespace nv {

namespace fs = std::filesystem;
using NV_store::Store;

using Double = NV_store::NV_number<double, Data_item::float64>;
using Float = NV_store::NV_number<float, Data_item::float32>;
using Byte = NV_store::NV_number<unsigned char, Data_item::uint8>;
using Int = NV_store::NV_number<int, Data_item::int32>;
using Bool = NV_store::NV_number<bool, Data_item::boolean>;
using Long = NV_store::NV_number<long long, Data_item::int64>;
using Unsigned_long = NV_store::NV_number<unsigned long long, Data_item::uint64>;

/// So long that nothing is written unless somebody asks for it.
constexpr std::chrono::hours never{1};

/// A folder of its own for each test.
class Folder : public ::testing::Test
{
  protected:
    Folder()
    {
        std::string pattern = (fs::temp_directory_path() / "nv_store_test.XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            throw std::runtime_error("no folder for the test");
        folder = pattern;
        path = (folder / "settings.db").string();
    }
    ~Folder() override { fs::remove_all(folder); }

    /// The names of the files.
    std::vector<std::string> files() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    void write_file(const std::string& content) const { std::ofstream(path, std::ios::binary) << content; }

    /// How messages begin.
    std::string named() const { return "non-volatile store \"" + path + "\""; }

    fs::path folder;
    std::string path;
};

inline std::string content(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// What an operation complains of; empty if it does not.
inline std::string complaint(const std::function<void()>& operation)
{
    try {
        operation();
    } catch (const std::runtime_error& e) {
        return e.what();
    }
    return {};
}

inline std::string open_complaint(const std::string& path)
{
    return complaint([&] { Store store(path); });
}

/// Counts how often it hears of changes, and keeps what it read then.
template <class N>
class Watcher : public NV_store::Access<N, NV_store::Virt_access>
{
  public:
    using NV_store::Access<N, NV_store::Virt_access>::Access;

    void handle_event() override
    {
        heard.push_back(this->read());
        if (then)
            then();
    }
    typename N::value_type look() { return this->read(); }

    std::vector<typename N::value_type> heard;
    std::function<void()> then; ///< what else to do
};

inline bool is_ready(const waiter_descriptor& waiter, int milliseconds = 0)
{
    pollfd wanted{waiter.descriptor(), POLLIN, 0};
    return poll(&wanted, 1, milliseconds) == 1;
}

} // namespace nv

#endif
