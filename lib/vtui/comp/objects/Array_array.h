#ifndef VTUI_COMP_ARRAY_ARRAY_H
#define VTUI_COMP_ARRAY_ARRAY_H

#include "iso11783/Export.h"

#include <cstddef>

/// Exactly N elements, stored inline. No bounds are checked.
template <typename T, std::size_t N>
class VTUI_EXPORT Array_array
{
  public:
    virtual ~Array_array() = default;
    virtual std::size_t size() const { return N; }
    virtual T& operator[](std::size_t i) { return elements[i]; }

  private:
    T elements[N]{};
};

// One template parameter each, so that a class template can take an array of a given capacity.

template <typename T>
class VTUI_EXPORT Array_array_1 : public Array_array<T, 1>
{};

template <typename T>
class VTUI_EXPORT Array_array_2 : public Array_array<T, 2>
{};

template <typename T>
class VTUI_EXPORT Array_array_3 : public Array_array<T, 3>
{};

template <typename T>
class VTUI_EXPORT Array_array_4 : public Array_array<T, 4>
{};

template <typename T>
class VTUI_EXPORT Array_array_8 : public Array_array<T, 8>
{};

#endif
