#ifndef VT_COMMAND_H
#define VT_COMMAND_H

#include "iso11783/Bytes.h"
#include "iso11783/Function.h"
#include "vt/Object_pool_interface.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace VT {

/// A command to the terminal, put together on the stack: `Command(function).u16(id).u8(value).send_to(pool)`.
class Command
{
  public:
    explicit Command(Iso::Function function) { u8(static_cast<std::uint8_t>(function)); }

    Command& u8(std::uint8_t value) { return put(value); }
    Command& u16(std::uint16_t value) { return put(value); }
    Command& s16(std::int16_t value) { return put(value); }
    Command& u32(std::uint32_t value) { return put(value); }

    void send_to(Client::Object_pool_interface& pool) const { pool.send(bytes.data(), size, nullptr, 0); }
    /// The command goes on with `count` bytes at `tail`.
    void send_to(Client::Object_pool_interface& pool, const void* tail, std::size_t count) const
    {
        pool.send(bytes.data(), size, tail, count);
    }

  private:
    template <typename T>
    Command& put(T value)
    {
        Iso::write(bytes.data() + size, value);
        size += sizeof value;
        return *this;
    }

    std::array<std::uint8_t, 12> bytes; ///< the longest command has nine
    std::size_t size{0};
};

} // namespace VT

#endif
