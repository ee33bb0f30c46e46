// Numbers of the non-volatile store: what they hold, and what is left of it in another process's life.

#include "tests/platform/Nv_folder.h"
#include "tests/platform/Nv_vfs.h"

#include <atomic>
#include <cmath>
#include <limits>
#include <thread>

using namespace nv;

namespace {

class NvNumber : public Folder
{};

TEST_F(NvNumber, HasItsDefaultAtFirst)
{
    Store store(path);
    EXPECT_EQ(Double(store, "rate", 200).get(), 200);
    EXPECT_EQ(Int(store, "count").get(), 0);
}

TEST_F(NvNumber, HasAtOnceWhatWasSet)
{
    Store store(path, never);
    Double rate(store, "rate", 200);
    rate.set(180.5);
    EXPECT_EQ(rate.get(), 180.5);
}

TEST_F(NvNumber, KnowsItsNameTypeAndStore)
{
    Store store(path);
    const Double rate(store, "rate", 200);
    EXPECT_EQ(rate.name(), "rate");
    EXPECT_EQ(rate.type(), Data_item::float64);
    EXPECT_EQ(&rate.store(), &store);
}

TEST_F(NvNumber, KeepsItsValueWhenTheStoreIsClosed)
{
    {
        Store store(path, never);
        Double(store, "rate", 200).set(180.5);
        Bool(store, "is closed", false).set(true);
    }
    Store store(path);
    EXPECT_EQ(Double(store, "rate", 200).get(), 180.5);
    EXPECT_TRUE(Bool(store, "is closed", false).get());
}

TEST_F(NvNumber, KeepsItsValueWhileNoItemHasIt)
{
    Store store(path, never);
    Double(store, "rate", 200).set(180.5);
    EXPECT_EQ(Double(store, "rate", 200).get(), 180.5) << "not written yet, too";
}

TEST_F(NvNumber, LeavesOtherItemsOfTheFileAlone)
{
    {
        Store store(path);
        Double(store, "rate", 200).set(1);
        Double(store, "depth", 200).set(2);
    }
    {
        Store store(path);
        Double(store, "rate", 200).set(3);
    }
    Store store(path);
    EXPECT_EQ(Double(store, "depth", 200).get(), 2);
    EXPECT_EQ(Double(store, "rate", 200).get(), 3);
}

TEST_F(NvNumber, DoesNotWriteItsDefault)
{
    {
        Store store(path);
        Double rate(store, "rate", 200);
    }
    Store store(path);
    EXPECT_EQ(Double(store, "rate", 250).get(), 250);
}

TEST_F(NvNumber, WritesADefaultThatSomebodyChose)
{
    {
        Store store(path);
        Double(store, "rate", 200).set(200);
    }
    Store store(path);
    EXPECT_EQ(Double(store, "rate", 250).get(), 200);
}

template <class N>
void keeps(const std::string& path, typename N::value_type value)
{
    fs::remove(path);
    {
        Store store(path);
        N(store, "it", typename N::value_type(1)).set(value);
    }
    Store store(path);
    const auto kept = N(store, "it", typename N::value_type(1)).get();
    EXPECT_EQ(kept, value);
    EXPECT_EQ(std::signbit(static_cast<double>(kept)), std::signbit(static_cast<double>(value)));
}

template <typename T, Data_item::item_type_t code>
void keeps_its_ends(const std::string& path)
{
    using N = NV_store::NV_number<T, code>;
    SCOPED_TRACE(code);
    keeps<N>(path, std::numeric_limits<T>::lowest());
    keeps<N>(path, T(0));
    keeps<N>(path, std::numeric_limits<T>::min());
    keeps<N>(path, std::numeric_limits<T>::max());
}

TEST_F(NvNumber, OfEveryTypeKeepsItsWholeRange)
{
    keeps_its_ends<bool, static_cast<Data_item::item_type_t>(2)>(path);
    keeps_its_ends<unsigned char, static_cast<Data_item::item_type_t>(4)>(path);
    keeps_its_ends<unsigned short, static_cast<Data_item::item_type_t>(5)>(path);
    keeps_its_ends<unsigned int, static_cast<Data_item::item_type_t>(6)>(path);
    keeps_its_ends<signed char, static_cast<Data_item::item_type_t>(7)>(path);
    keeps_its_ends<short, static_cast<Data_item::item_type_t>(8)>(path);
    keeps_its_ends<int, static_cast<Data_item::item_type_t>(9)>(path);
    keeps_its_ends<float, static_cast<Data_item::item_type_t>(10)>(path);
    keeps_its_ends<double, static_cast<Data_item::item_type_t>(11)>(path);
    keeps_its_ends<unsigned long long, static_cast<Data_item::item_type_t>(15)>(path);
    keeps_its_ends<long long, static_cast<Data_item::item_type_t>(16)>(path);
}

TEST_F(NvNumber, KeepsWhatIsNoOrdinaryNumber)
{
    keeps<Double>(path, HUGE_VAL);
    keeps<Double>(path, -HUGE_VAL);
    keeps<Double>(path, -0.0);
    keeps<Double>(path, std::numeric_limits<double>::denorm_min());
    keeps<Float>(path, -HUGE_VALF);
    keeps<Float>(path, std::numeric_limits<float>::denorm_min());
}

TEST_F(NvNumber, KeepsThatItIsNoNumber)
{
    {
        Store store(path);
        Double(store, "double", 1).set(-std::numeric_limits<double>::signaling_NaN());
        Float(store, "float", 1).set(NAN);
    }
    Store store(path);
    EXPECT_TRUE(std::isnan(Double(store, "double", 1).get()));
    EXPECT_TRUE(std::isnan(Float(store, "float", 1).get()));
}

TEST_F(NvNumber, MayHaveAnyName)
{
    const std::string name("\"rate\"; -- 'x' \xC3\xA4\n");
    {
        Store store(path);
        Double(store, name, 1).set(2);
    }
    Store store(path);
    EXPECT_EQ(Double(store, name, 1).get(), 2);
}

TEST_F(NvNumber, MayHaveZerosInItsName)
{
    const std::string b("a\0b", 3), c("a\0c", 3);
    {
        Store store(path);
        Double(store, b, 0).set(1);
        Double(store, c, 0).set(2);
        Double(store, "a", 0).set(3);
    }
    Store store(path);
    EXPECT_EQ(Double(store, b, 0).get(), 1);
    EXPECT_EQ(Double(store, c, 0).get(), 2);
    EXPECT_EQ(Double(store, "a", 0).get(), 3);
}

TEST_F(NvNumber, IsThereOnce)
{
    Store store(path);
    Double rate(store, "rate", 200);
    EXPECT_EQ(complaint([&] { Double other(store, "rate", 100); }), named() + ": the item \"rate\" is there twice");
    EXPECT_EQ(rate.get(), 200);
}

TEST_F(NvNumber, IsRefusedWhereTheFileHasAnotherType)
{
    {
        Store store(path);
        Double(store, "rate", 200).set(7);
    }
    Store store(path);
    EXPECT_EQ(complaint([&] { Byte rate(store, "rate", 1); }),
              named() + ": the item \"rate\" is stored as float64, not as uint8");
    EXPECT_EQ(Double(store, "rate", 200).get(), 7) << "and not lost";
}

TEST_F(NvNumber, MayChangeItsTypeAsLongAsNothingIsStored)
{
    Store store(path);
    EXPECT_EQ(Double(store, "rate", 200).get(), 200);
    EXPECT_EQ(Byte(store, "rate", 100).get(), 100);
}

TEST_F(NvNumber, InMemoryIsGoneWithItsStore)
{
    const fs::path before = fs::current_path();
    fs::current_path(folder);
    {
        Store store(Store::in_memory);
        Double(store, "rate", 200).set(7);
        store.flush();
        EXPECT_EQ(Double(store, "rate", 200).get(), 7);
        EXPECT_EQ(complaint([&] { Byte rate(store, "rate", 1); }),
                  "non-volatile store \":memory:\": the item \"rate\" is stored as float64, not as uint8");
        EXPECT_EQ(store.put_aside(), "");
        EXPECT_EQ(store.take_problem(), "");
    }
    Store store(Store::in_memory);
    EXPECT_EQ(Double(store, "rate", 200).get(), 200);
    EXPECT_TRUE(files().empty());
    fs::current_path(before);
}

TEST_F(NvNumber, IsInTheFileItselfAfterAFlush)
{
    Store store(path, never);
    Double rate(store, "rate", 200);
    for (const double value : {1.0, 2.0, 3.0}) {
        rate.set(value);
        store.flush();
        fs::copy_file(path, path + "2", fs::copy_options::overwrite_existing); // without its log
        Store copy(path + "2");
        EXPECT_EQ(Double(copy, "rate", 200).get(), value);
    }
    store.flush();
}

TEST_F(NvNumber, IsWrittenSoonWithoutAFlush)
{
    using namespace std::chrono_literals;
    Store store(path, 1ms);
    Double rate(store, "rate", 200);
    store.flush(); // from here on the writing thread waits to be told
    const std::string before = content(path);
    rate.set(1);
    for (int i = 0; i < 1000 && content(path) == before; ++i)
        std::this_thread::sleep_for(5ms);
    EXPECT_FALSE(content(path) == before);
}

TEST_F(NvNumber, IsWrittenOnceForManyChanges)
{
    std::atomic<std::size_t> written{0};
    const Vfs vfs([&](const Vfs::Event& event) {
        written += event.bytes.size();
        return SQLITE_OK;
    });
    Store store(path, never);
    Double rate(store, "rate", 200);
    const auto written_by_flush = [&] {
        written = 0;
        store.flush();
        return written.load();
    };
    rate.set(1);
    const std::size_t one = written_by_flush();
    EXPECT_GT(one, 0U);
    for (int i = 0; i < 10'000; ++i)
        rate.set(i);
    EXPECT_EQ(written_by_flush(), one);
    EXPECT_EQ(written_by_flush(), 0U);
}

TEST_F(NvNumber, IsNotWrittenWhenItIsSetToWhatItIs)
{
    std::atomic<int> writes{0};
    const Vfs vfs([&](const Vfs::Event& event) {
        writes += event.what == Vfs::Event::write;
        return SQLITE_OK;
    });
    Store store(path, never);
    Double rate(store, "rate", 200);
    Double none(store, "none", 200);
    rate.set(1);
    none.set(NAN);
    store.flush();
    writes = 0;
    rate.set(1);
    none.set(-NAN);
    store.flush();
    EXPECT_EQ(writes, 0);
}

TEST_F(NvNumber, WrittenOftenLeavesAShortLog)
{
    Store store(path, never);
    Double rate(store, "rate", 200);
    for (int i = 0; i < 300; ++i) {
        rate.set(i);
        store.flush();
    }
    EXPECT_LT(fs::file_size(path + "-wal"), 20'000U) << "it begins anew each time";
}

TEST_F(NvNumber, IsSetTogetherWithOthers)
{
    Store store(path, never);
    Double length(store, "length", 0);
    Byte width(store, "width", 0);
    store.set({length.to(12.5), width.to(3)});
    EXPECT_EQ(length.get(), 12.5);
    EXPECT_EQ(width.get(), 3);
    store.set({});
}

TEST_F(NvNumber, IsNotSetByAnotherStore)
{
    Store store(Store::in_memory);
    Store other(path);
    Double mine(store, "mine", 1);
    Double foreign(other, "foreign", 2);
    std::string text;
    try {
        store.set({mine.to(3), foreign.to(4)});
    } catch (const std::invalid_argument& e) {
        text = e.what();
    }
    EXPECT_EQ(text, "non-volatile store \":memory:\" has no item \"foreign\": it is another store's");
    EXPECT_EQ(mine.get(), 1);
    EXPECT_EQ(foreign.get(), 2);
}

TEST_F(NvNumber, IsNeverTorn)
{
    Store store(Store::in_memory);
    Unsigned_long number(store, "number", 0);
    std::thread setter([&] {
        for (unsigned long long i = 0; i < 200'000; ++i)
            number.set(i << 32 | i);
    });
    for (int i = 0; i < 200'000; ++i) {
        const auto value = number.get();
        ASSERT_EQ(value >> 32, value & 0xFFFFFFFF);
    }
    setter.join();
}

TEST(NvItemCode, IsThatOfTheFiles)
{
    EXPECT_EQ(Data_item::boolean, 2);
    EXPECT_EQ(Data_item::uint8, 4);
    EXPECT_EQ(Data_item::uint16, 5);
    EXPECT_EQ(Data_item::uint32, 6);
    EXPECT_EQ(Data_item::int8, 7);
    EXPECT_EQ(Data_item::int16, 8);
    EXPECT_EQ(Data_item::int32, 9);
    EXPECT_EQ(Data_item::float32, 10);
    EXPECT_EQ(Data_item::float64, 11);
    EXPECT_EQ(Data_item::uint64, 15);
    EXPECT_EQ(Data_item::int64, 16);
}

} // namespace
