#ifndef NV_STORE_ROW_H
#define NV_STORE_ROW_H

#include "nv_store/Bits.h"
#include "nv_store/Data_item.h"

#include <string>

namespace NV_store {

/// What a file keeps of one item.
struct Row
{
    std::string name;
    Data_item::item_type_t type{};
    Bits value{0};
};

inline bool is_floating(Data_item::item_type_t type)
{
    return type == Data_item::float32 || type == Data_item::float64;
}

/// Whether the type is one of ours and can have the value.
inline bool is_of_type(Data_item::item_type_t type, Bits value)
{
    switch (type) {
#define NV_STORE_FITS(T, name, code)                                                                                   \
    case Data_item::name:                                                                                              \
        return fits<T>(value);
        NV_STORE_FOR_NUMBERS(NV_STORE_FITS)
#undef NV_STORE_FITS
    }
    return false;
}

/// A sum over bytes, of which each that changes changes the sum (Fowler, Noll and Vo's, 64 bits).
class Checksum
{
  public:
    Checksum& add(const std::string& bytes)
    {
        for (const char byte : bytes)
            add_byte(static_cast<unsigned char>(byte));
        return *this;
    }
    /// Its lowest byte first, on every machine.
    Checksum& add(Bits number)
    {
        for (unsigned shift = 0; shift != 64; shift += 8)
            add_byte(static_cast<unsigned char>(number >> shift));
        return *this;
    }
    Bits get() const { return sum; }

  private:
    void add_byte(unsigned char byte) { sum = (sum ^ byte) * 0x100000001B3; }

    Bits sum{0xCBF29CE484222325};
};

/// What stands beside the row in the file.
inline Bits checksum(const std::string& name, Data_item::item_type_t type, Bits value)
{
    return Checksum().add(Bits{type}).add(value).add(name).get();
}

} // namespace NV_store

#endif
