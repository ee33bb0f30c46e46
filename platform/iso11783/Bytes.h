#ifndef ISO11783_BYTES_H
#define ISO11783_BYTES_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace Iso {

/// Appends little-endian values to a byte vector that the caller owns. The vector keeps its capacity from message to
/// message, so a writer allocates only while the vector grows to the largest message it has seen.
class Byte_writer
{
  public:
    explicit Byte_writer(std::vector<std::uint8_t>& bytes) : out(bytes) {}

    std::size_t size() const { return out.size(); }

    void u8(std::uint8_t value) { out.push_back(value); }
    void u16(std::uint16_t value) { put(value); }
    void s16(std::int16_t value) { put(value); }
    void u32(std::uint32_t value) { put(value); }
    void s32(std::int32_t value) { put(value); }
    void f32(float value) { put(value); }

    void bytes(const void* data, std::size_t count)
    {
        const auto* const first = static_cast<const std::uint8_t*>(data);
        out.insert(out.end(), first, first + count);
    }

    void fill(std::size_t count, std::uint8_t value) { out.insert(out.end(), count, value); }

  private:
    static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__, "values are copied as they lie in memory");

    template <typename T>
    void put(T value)
    {
        std::uint8_t raw[sizeof value];
        std::memcpy(raw, &value, sizeof value);
        out.insert(out.end(), raw, raw + sizeof value);
    }

    std::vector<std::uint8_t>& out;
};

/// Reads a little-endian value of type T at `bytes`; the caller has checked that it lies inside.
template <typename T>
T read(const std::uint8_t* bytes)
{
    static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__, "values are copied as they lie in memory");
    T value;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

/// Overwrites the little-endian value of type T at `bytes`; the caller has checked that it lies inside.
template <typename T>
void write(std::uint8_t* bytes, T value)
{
    std::memcpy(bytes, &value, sizeof value);
}

} // namespace Iso

#endif
