#ifndef NV_STORE_DATA_ITEM_H
#define NV_STORE_DATA_ITEM_H

#include <cstdint>

/// The numbers that a non-volatile store keeps: type, name and code of each. The codes stand in the files, so they
/// never change.
#define NV_STORE_FOR_NUMBERS(apply)                                                                                    \
    apply(bool, boolean, 2) apply(unsigned char, uint8, 4) apply(unsigned short, uint16, 5)                            \
        apply(unsigned int, uint32, 6) apply(signed char, int8, 7) apply(short, int16, 8) apply(int, int32, 9)         \
            apply(float, float32, 10) apply(double, float64, 11) apply(unsigned long long, uint64, 15)                 \
                apply(long long, int64, 16)

struct Data_item
{
#define NV_STORE_CODE(T, name, code) name = code,
    enum item_type_t : std::uint32_t { NV_STORE_FOR_NUMBERS(NV_STORE_CODE) };
#undef NV_STORE_CODE
};

namespace NV_store {

/// The code of a type.
template <typename T>
struct Item_type;

#define NV_STORE_TYPE(T, name, code)                                                                                   \
    template <>                                                                                                        \
    struct Item_type<T>                                                                                                \
    {                                                                                                                  \
        static constexpr Data_item::item_type_t value = Data_item::name;                                               \
    };
NV_STORE_FOR_NUMBERS(NV_STORE_TYPE)
#undef NV_STORE_TYPE

} // namespace NV_store

#endif
