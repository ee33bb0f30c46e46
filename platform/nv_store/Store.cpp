#include "nv_store/Store.h"

#include "nv_store/Access.h"
#include "nv_store/File.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <pthread.h>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace NV_store {

namespace {

/// As long as it lives, threads that are started handle no signals: those are the application's.
class Signals_blocked
{
  public:
    Signals_blocked()
    {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &before);
    }
    ~Signals_blocked() { pthread_sigmask(SIG_SETMASK, &before, nullptr); }
    Signals_blocked(const Signals_blocked&) = delete;
    Signals_blocked& operator=(const Signals_blocked&) = delete;

  private:
    sigset_t before;
};

const char* type_name(Data_item::item_type_t type)
{
    switch (type) {
#define NV_STORE_NAME(T, name, code)                                                                                   \
    case Data_item::name:                                                                                              \
        return #name;
        NV_STORE_FOR_NUMBERS(NV_STORE_NAME)
#undef NV_STORE_NAME
    }
    return "an unknown type";
}

} // namespace

Store::Store(const std::string& path, std::chrono::milliseconds gathering_)
    : gathering(gathering_), file_path(path == in_memory ? path : File::whole_path(path))
{
    if (path == in_memory)
        return;
    File::Content content;
    file = File::open(file_path, content);
    for (const Row& row : content.rows) {
        Record& record = find_or_add(row.name);
        record.type = row.type;
        record.value = row.value;
        record.is_kept = true;
        record.checksum = checksum(row.name, row.type, row.value);
    }
    damaged_path = content.put_aside; // from now on what is not there yet counts as lost
    for (const std::string& name : content.lost)
        find_or_add(name);
    const Signals_blocked blocked;
    writer = std::thread(&Store::write_changes, this);
}

Store::~Store()
{
    if (!file)
        return;
    {
        const std::lock_guard lock(mutex);
        is_closing = true;
    }
    work.notify_one();
    writer.join();
    if (!unsaved.is_empty())
        std::fprintf(stderr, "%s; its last changes are lost\n", failure.text().c_str());
}

std::vector<std::string> Store::lost() const
{
    const std::lock_guard lock(mutex);
    std::vector<std::string> names;
    for (const auto& [name, record] : records)
        if (record.is_lost)
            names.push_back(name);
    return names;
}

Record& Store::find_or_add(const std::string& name)
{
    const auto [entry, is_new] = records.try_emplace(name);
    Record& record = entry->second;
    if (is_new) {
        record.name = &entry->first; // and never again: others read it without the lock
        record.is_lost = !damaged_path.empty();
    }
    return record;
}

Record& Store::claim(const std::string& name, Data_item::item_type_t type, Bits initial)
{
    const std::lock_guard lock(mutex);
    Record& record = find_or_add(name);
    if (record.is_in_use)
        refuse(record, "is there twice");
    if (!record.is_kept) {
        record.type = type;
        record.value.store(initial, std::memory_order_release);
    }
    if (record.type != type)
        refuse(record, std::string("is stored as ") + type_name(record.type) + ", not as " + type_name(type));
    record.is_in_use = true;
    return record;
}

void Store::release(Record& record)
{
    const std::lock_guard lock(mutex);
    record.is_in_use = false;
}

void Store::refuse(const Record& record, const std::string& what) const
{
    throw std::runtime_error(naming(file_path) + ": the item \"" + *record.name + "\" " + what);
}

void Store::set(const NV_item::Change* begin, const NV_item::Change* end)
{
    for (const NV_item::Change* c = begin; c != end; ++c)
        if (&c->item.owner != this)
            throw std::invalid_argument(naming(file_path) + " has no item \"" + c->item.name() +
                                        "\": it is another store's");
    bool is_first = false;
    {
        const std::lock_guard lock(mutex);
        for (const NV_item::Change* c = begin; c != end; ++c)
            is_first |= change(c->item.record, c->value);
    }
    if (is_first)
        work.notify_one();
}

/// With the lock held. True if there was nothing to write before.
bool Store::change(Record& record, Bits value)
{
    const bool is_new = record.value.load(std::memory_order_relaxed) != value;
    if (is_new) {
        record.value.store(value, std::memory_order_release);
        record.accesses.for_each([](Virt_access& access) { access.notify(); });
    }
    const bool is_unsaved = is_new || !record.is_kept; // a default that somebody chose is kept, too
    record.is_kept = true;
    if (!is_unsaved || !file || record.unsaved.is_listed())
        return false;
    const bool is_first = unsaved.is_empty();
    unsaved.append(record.unsaved);
    return is_first;
}

void Store::flush()
{
    if (!file)
        return;
    std::unique_lock lock(mutex);
    const std::uint64_t mine = ++asked;
    work.notify_one();
    done.wait(lock, [&] { return tried >= mine; });
    if (written < mine)
        failure.raise();
}

std::string Store::take_problem()
{
    const std::lock_guard lock(mutex);
    return std::exchange(problem, {});
}

/// The writer's thread.
void Store::write_changes()
{
    pthread_setname_np(pthread_self(), "nv_store");
    const sched_param ordinary{}; // even if the opener's thread has to be on time
    pthread_setschedparam(pthread_self(), SCHED_OTHER, &ordinary);
    std::vector<File::Change> changes; // keeps its memory
    std::unique_lock lock(mutex);
    const auto is_urgent = [this] { return is_closing || asked > tried; };
    bool is_last = false;
    while (!is_last) {
        work.wait(lock, [&] { return !unsaved.is_empty() || is_urgent(); });
        work.wait_for(lock, failure ? std::max<std::chrono::milliseconds>(gathering, retry_time) : gathering,
                      is_urgent);

        is_last = is_closing;
        const std::uint64_t flushes = asked;
        changes.clear();
        while (Record* const record = unsaved.take_first())
            changes.push_back({record, record->type, record->value.load(std::memory_order_relaxed)});

        lock.unlock();
        Problem result = file->write(changes);
        lock.lock();

        if (result) {
            if (result.text() != failure.text())
                problem = result.text();
            for (const File::Change& change : changes)
                if (!change.record->unsaved.is_listed())
                    unsaved.append(change.record->unsaved);
        } else {
            written = flushes;
        }
        failure = std::move(result);
        tried = flushes;
        done.notify_all();
    }
}

} // namespace NV_store
